// SPDX-License-Identifier: GPL-3.0-or-later
// The logo as its file holds it, small, on a ground that shows what is transparent; a click takes the colour
// of the very pixel under the pointer. The file is read in the background. Main thread only.
#pragma once

#include "records/watermark.h"

#include <QImage>
#include <QWidget>

#include <optional>

namespace zelto {

class LogoSample : public QWidget {
    Q_OBJECT

  public:
    explicit LogoSample(QWidget* parent = nullptr);

    // Shows the logo of `record`, and whether a click picks a colour of it.
    void load(const Watermark& record);

    // The file's picture; null while it is being read and where it is none.
    const QImage& picture() const { return picture_; }
    // Where the picture is drawn.
    QRect place() const;

  Q_SIGNALS:
    // The colour clicked.
    void chosen(const zelto::Color& color);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void read();

    QByteArray data_;
    QString path_;
    QImage picture_;
    QPixmap scaled_;
    QString message_;
    quint64 asked_ = 0;
    bool picksColor_ = false;
};

}  // namespace zelto
