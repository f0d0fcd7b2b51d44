// SPDX-License-Identifier: GPL-3.0-or-later
// A line of text that takes the room it is given and shows what fits into it, whole in its tool tip. Main thread only.
#pragma once

#include <QString>
#include <QWidget>

namespace zelto {

class ElidedLabel : public QWidget {
  public:
    // `cut` is what gives way where there is no room for all.
    explicit ElidedLabel(QWidget* parent, Qt::TextElideMode cut = Qt::ElideMiddle);

    const QString& text() const { return text_; }
    void setText(const QString& text);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString text_;
    Qt::TextElideMode cut_;
};

}  // namespace zelto
