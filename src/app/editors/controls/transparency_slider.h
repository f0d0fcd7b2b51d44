// SPDX-License-Identifier: GPL-3.0-or-later
// The slider for how much of the photo shows through a watermark, in per cent, with the figure beside it. Main
// thread only.
#pragma once

#include <QLabel>
#include <QSlider>
#include <QWidget>

namespace zelto {

class TransparencySlider : public QWidget {
    Q_OBJECT

  public:
    explicit TransparencySlider(QWidget* parent = nullptr);

    // Shows a record's `Transparency` without telling anyone.
    void load(float transparency);

    QSlider& slider() { return *slider_; }
    QString label() const { return label_->text(); }

  Q_SIGNALS:
    // What the record's `Transparency` is to be.
    void transparencyChosen(float transparency);

  private:
    void showPercent(int percent);

    QSlider* slider_;
    QLabel* label_;
};

}  // namespace zelto
