// SPDX-License-Identifier: GPL-3.0-or-later
// How much of the photo shows through a watermark, in per cent: a slider, and a field to type it into. Main thread only.
#pragma once

#include "app/editors/controls/number_field.h"

#include <QSlider>
#include <QWidget>

namespace zelto {

// A record's `Transparency`, which is its opacity from 0 to 1, as the per cent of transparency that users choose, and
// back. Halves of a per cent are rounded up.
int transparencyPercent(float transparency);
float transparencyOf(int percent);

class TransparencySlider : public QWidget {
    Q_OBJECT

  public:
    explicit TransparencySlider(QWidget* parent = nullptr);

    // Shows a record's `Transparency` without telling anyone.
    void load(float transparency);

    QSlider& slider() { return *slider_; }
    NumberField& field() { return *field_; }

  Q_SIGNALS:
    // What the record's `Transparency` is to be.
    void chosen(float transparency);

  private:
    void choose(int percent);

    QSlider* slider_;
    NumberField* field_;
};

}  // namespace zelto
