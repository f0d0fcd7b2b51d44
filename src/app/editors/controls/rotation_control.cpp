// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/rotation_control.h"

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <array>
#include <cmath>

namespace zelto {
namespace {

struct UsualTurn {
    const char* title;
    int degrees;
};
constexpr std::array Presets = {
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Straight"), 0},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Slightly rising"), -15},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Rising diagonally"), -45},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Upward"), -90},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Slightly falling"), 15},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Falling diagonally"), 45},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Downward"), 90},
    UsualTurn{QT_TRANSLATE_NOOP("zelto::RotationControl", "Upside down"), 180},
};

// The same turn, 0 to 359 degrees.
int withinTurn(qint64 degrees) {
    return static_cast<int>((degrees % 360 + 360) % 360);
}

// The same turn, -180 to 179 degrees: a dial counts from its lowest point on, and 0 is the highest.
int dialValue(qint64 degrees) {
    return withinTurn(degrees + 180) - 180;
}

}  // namespace

RotationControl::RotationControl(QWidget* parent)
    : QWidget(parent),
      dial_(new QDial(this)),
      field_(new NumberField(number_kind::Degrees, this)),
      presets_(new QComboBox(this)) {
    dial_->setRange(-180, 180);
    dial_->setWrapping(true);
    dial_->setPageStep(15);
    dial_->setFixedSize(48, 48);
    dial_->setFocusPolicy(Qt::ClickFocus);  // its field has the keyboard
    dial_->setAccessibleName(tr("Rotation"));
    field_->setAccessibleName(tr("Rotation in degrees"));
    presets_->setAccessibleName(tr("Usual rotations"));
    presets_->setPlaceholderText(tr("Custom"));
    for (const UsualTurn& preset : Presets) presets_->addItem(tr(preset.title), preset.degrees);
    setFocusProxy(field_);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(field_);
    row->addWidget(dial_);
    row->addWidget(presets_, 1);
    load(0);

    connect(field_, &NumberField::valueChanged, this, [this](double value) { choose(std::llround(value)); });
    connect(dial_, &QDial::valueChanged, this, [this](int value) { choose(withinTurn(value)); });
    connect(presets_, &QComboBox::activated, this,
            [this](int chosen) { choose(presets_->itemData(chosen).toInt()); });
}

void RotationControl::load(qint64 degrees) {
    const QSignalBlocker quietDial(dial_);
    const QSignalBlocker quietPresets(presets_);
    const bool isInRange = degrees >= -360 && degrees <= 360;
    field_->load(static_cast<double>(isInRange ? degrees : withinTurn(degrees)));
    if (dialValue(degrees) != dialValue(dial_->value())) dial_->setValue(dialValue(degrees));
    int row = 0;
    const int rows = presets_->count();
    while (row < rows && withinTurn(presets_->itemData(row).toInt()) != withinTurn(degrees)) ++row;
    presets_->setCurrentIndex(row < rows ? row : -1);
}

void RotationControl::choose(qint64 degrees) {
    load(degrees);
    Q_EMIT chosen(degrees);
}

}  // namespace zelto
