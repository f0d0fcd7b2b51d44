// SPDX-License-Identifier: GPL-3.0-or-later
// How a text is written: font, size, styles, alignment, colours, shadow and effect. Main thread only.
#pragma once

#include "app/editors/controls/record_binder.h"
#include "records/watermark.h"

#include <QWidget>

namespace zelto {

class TextStyleGroup : public QWidget {
    Q_OBJECT

  public:
    // Its controls are bound to the record of `binder`.
    explicit TextStyleGroup(RecordBinder<Watermark>& binder, QWidget* parent = nullptr);

  private:
    QWidget* makeSize();
    QWidget* makeStyles();
    QWidget* makeColors();
    QWidget* makeEffect();

    RecordBinder<Watermark>& binder_;
};

}  // namespace zelto
