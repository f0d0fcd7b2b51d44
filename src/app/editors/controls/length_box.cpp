// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/length_box.h"

#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace zelto {

LengthBox::LengthBox(const NumberKind& pixels, const QString& name, QWidget* parent)
    : QWidget(parent), pixels_(pixels), number_(new NumberField(pixels, this)), note_(new QLabel(this)) {
    setAccessibleName(name);
    number_->setAccessibleName(name);
    note_->setAlignment(Qt::AlignRight);
    QFont small = note_->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    note_->setFont(small);
    note_->setToolTip(tr("On the selected photo"));
    note_->hide();
    setFocusProxy(number_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(number_);
    column->addWidget(note_);
    connect(number_, &NumberField::valueChanged, this, [this](double value) {
        if (length_.share) {
            length_.share = static_cast<float>(value / 100.0);
            const double side = std::min(area_.width(), area_.height());
            if (side > 0.0) length_.pixels = std::llround(relativeLength(*length_.share, side));
        } else {
            length_.pixels = std::llround(value);
        }
        showNote();
        Q_EMIT chosen(length_);
    });
}

void LengthBox::load(const PhotoLength& length) {
    constexpr NumberKind Share{-100, 100, 2, QLatin1String(" %"), 0.5};
    NumberKind share = Share;
    if (pixels_.smallest >= 0.0) share.smallest = 0.0;
    length_ = length;
    number_->setKind(length.share ? share : pixels_);
    number_->load(length.share ? static_cast<double>(*length.share) * 100.0
                               : static_cast<double>(length.pixels));
    showNote();
}

void LengthBox::showReference(QSizeF area) {
    area_ = area;
    showNote();
}

void LengthBox::showNote() {
    note_->setVisible(length_.share && !area_.isEmpty());
    if (!length_.share) return;
    const double side = std::min(area_.width(), area_.height());
    note_->setText(tr("= %L1 px").arg(std::llround(relativeLength(*length_.share, side))));
}

LengthUnit::LengthUnit(const QString& name, QWidget* parent) : QComboBox(parent) {
    addItem(tr("in pixels"));
    addItem(tr("in % of the shorter side"));
    setAccessibleName(name);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(10);
    connect(this, &QComboBox::activated, this, [this](int unit) { Q_EMIT chosen(unit == 1); });
}

void showReferenceIn(const QWidget& page, QSizeF area) {
    for (auto* box : page.findChildren<LengthBox*>()) box->showReference(area);
    for (auto* unit : page.findChildren<LengthUnit*>()) unit->showReference(area);
}

}  // namespace zelto
