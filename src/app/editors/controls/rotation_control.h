// SPDX-License-Identifier: GPL-3.0-or-later
// How far a watermark is turned: a dial, a field in degrees and a list of usual turns, each showing what the
// others choose. Degrees grow clockwise. Main thread only.
#pragma once

#include "app/editors/controls/number_field.h"

#include <QComboBox>
#include <QDial>
#include <QWidget>

namespace zelto {

class RotationControl : public QWidget {
    Q_OBJECT

  public:
    explicit RotationControl(QWidget* parent = nullptr);

    // Shows a rotation, whole degrees of any size, without telling anyone.
    void load(qint64 degrees);

    QDial& dial() { return *dial_; }
    NumberField& field() { return *field_; }
    QComboBox& presets() { return *presets_; }

  Q_SIGNALS:
    void chosen(qint64 degrees);

  private:
    void choose(qint64 degrees);

    QDial* dial_;
    NumberField* field_;
    QComboBox* presets_;
};

}  // namespace zelto
