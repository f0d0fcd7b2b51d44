// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/size_field.h"

#include <QHBoxLayout>

#include <cmath>

namespace zelto {
namespace {

enum Unit { Pixels, Share };

}  // namespace

SizeField::SizeField(const QString& shareTitle, QWidget* parent)
    : QWidget(parent), number_(new NumberField(number_kind::Size, this)), unit_(new QComboBox(this)) {
    unit_->addItem(tr("Pixels"));
    unit_->addItem(shareTitle);
    unit_->setAccessibleName(tr("Unit"));
    setFocusProxy(number_);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(number_, 2);
    row->addWidget(unit_, 3);
    connect(number_, &NumberField::valueChanged, this, [this](double value) {
        const bool isRelative = unit_->currentIndex() == Share;
        Q_EMIT chosen({isRelative ? value / 100.0 : value, isRelative});
    });
    connect(unit_, &QComboBox::activated, this, [this](int unit) { changeUnit(unit == Share); });
}

void SizeField::load(const Length& length) {
    unit_->setCurrentIndex(length.isRelative ? Share : Pixels);
    number_->setKind(length.isRelative ? number_kind::Percent : number_kind::Size);
    number_->load(length.isRelative ? length.value * 100.0 : length.value);
}

void SizeField::changeUnit(bool toRelative) {
    const bool isRelative = number_->suffix() == QLatin1String(number_kind::Percent.unit);
    if (toRelative == isRelative) return;
    double length = toRelative ? 0.2 : 200.0;  // where there is no photo to convert by
    if (reference_ > 0.0) {
        // A share has the six decimals that setting files keep.
        length = toRelative ? std::round(number_->value() / reference_ * 1e6) / 1e6
                            : std::round(number_->value() / 100.0 * reference_);
    }
    load({length, toRelative});
    Q_EMIT chosen({length, toRelative});
}

}  // namespace zelto
