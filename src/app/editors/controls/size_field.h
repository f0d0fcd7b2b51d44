// SPDX-License-Identifier: GPL-3.0-or-later
// A length in pixels or as a share of the photo, with the choice between the two. Choosing the other one keeps
// the length as it is on the photo. Main thread only.
#pragma once

#include "app/editors/controls/number_field.h"

#include <QComboBox>
#include <QWidget>

namespace zelto {

// A length in pixels, or as a fraction of a length of the photo.
struct Length {
    double value = 0.0;
    bool isRelative = false;
};

class SizeField : public QWidget {
    Q_OBJECT

  public:
    // `shareTitle` says what the share is of.
    explicit SizeField(const QString& shareTitle, QWidget* parent = nullptr);

    // What the share is of, in pixels; 0 where it is not known, as it is at first.
    void setReference(double reference) { reference_ = reference; }

    // Shows a length without telling anyone.
    void load(const Length& length);

    NumberField& number() { return *number_; }
    QComboBox& unit() { return *unit_; }

  Q_SIGNALS:
    void chosen(const zelto::Length& length);

  private:
    void changeUnit(bool toRelative);

    double reference_ = 0.0;
    NumberField* number_;
    QComboBox* unit_;
};

}  // namespace zelto
