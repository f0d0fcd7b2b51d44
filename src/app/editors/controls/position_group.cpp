// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_group.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>

namespace zelto {
namespace {

// A label beside its field, at two columns of a grid.
void addRow(QGridLayout& grid, int row, int column, NumberField* field) {
    auto* label = new QLabel(field->accessibleName(), field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(label->text().remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    grid.addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(field, row, column + 1);
}

}  // namespace

PositionGroup::PositionGroup(Tiling tiling, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makePosition());
    column->addWidget(makePadding());
    if (tiling == Tiling::Offered) column->addWidget(makeTiling());
    column->addStretch();
}

NumberField* PositionGroup::addNumber(const char* name, const QString& label, const NumberKind& kind,
                                      std::int64_t Watermark::*value) {
    auto* field = new NumberField(kind, this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(label);
    connect(field, &NumberField::valueChanged, this, [this, value](double number) {
        Q_EMIT edited([value, number](Watermark& record) {
            record.*value = static_cast<std::int64_t>(std::llround(number));
            if (value == &Watermark::CustomPositionLeft || value == &Watermark::CustomPositionTop) {
                record.Position = CustomPosition;
            }
        });
    });
    fields_.push_back({field, value});
    return field;
}

QWidget* PositionGroup::makePosition() {
    auto* box = new QGroupBox(tr("Position"), this);
    preset_ = new QRadioButton(tr("&Preset"), box);
    preset_->setObjectName(QStringLiteral("PresetPosition"));
    grid_ = new PositionGrid(box);
    custom_ = new QRadioButton(tr("C&ustom"), box);
    custom_->setObjectName(QStringLiteral("CustomPosition"));
    left_ = addNumber("CustomPositionLeft", tr("From l&eft:"), number_kind::Length,
                      &Watermark::CustomPositionLeft);
    top_ =
        addNumber("CustomPositionTop", tr("From &top:"), number_kind::Length, &Watermark::CustomPositionTop);

    auto* layout = new QGridLayout(box);
    layout->addWidget(preset_, 0, 0);
    layout->addWidget(grid_, 1, 0, 3, 1);
    layout->addWidget(custom_, 0, 1, 1, 2);
    addRow(*layout, 1, 1, left_);
    addRow(*layout, 2, 1, top_);
    layout->setRowStretch(3, 1);
    layout->setColumnStretch(0, 1);

    connect(preset_, &QRadioButton::clicked, this, [this] {
        Q_EMIT edited([cell = lastCell_](Watermark& record) {
            if (record.Position == CustomPosition) setPresetPosition(record, cell);
        });
    });
    connect(custom_, &QRadioButton::clicked, this,
            [this] { Q_EMIT edited([](Watermark& record) { record.Position = CustomPosition; }); });
    connect(grid_, &PositionGrid::cellChosen, this, [this](int cell) {
        Q_EMIT edited([cell](Watermark& record) { setPresetPosition(record, cell); });
    });
    return box;
}

QWidget* PositionGroup::makePadding() {
    auto* box = new QGroupBox(tr("Padding"), this);
    const auto add = [this](const char* name, const QString& label, std::int64_t Watermark::*value) {
        return addNumber(name, label, number_kind::Offset, value);
    };
    paddingTop_ = add("PaddingTop", tr("Top:"), &Watermark::PaddingTop);
    paddingLeft_ = add("PaddingLeft", tr("Left:"), &Watermark::PaddingLeft);
    paddingBottom_ = add("PaddingBottom", tr("Bottom:"), &Watermark::PaddingBottom);
    paddingRight_ = add("PaddingRight", tr("Right:"), &Watermark::PaddingRight);
    auto* layout = new QGridLayout(box);
    addRow(*layout, 0, 0, paddingTop_);
    addRow(*layout, 0, 2, paddingLeft_);
    addRow(*layout, 1, 0, paddingBottom_);
    addRow(*layout, 1, 2, paddingRight_);
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);
    return box;
}

QWidget* PositionGroup::makeTiling() {
    auto* box = new QGroupBox(tr("Tiling"), this);
    horizontalTiling_ = new QCheckBox(tr("Repeat &across"), box);
    horizontalTiling_->setObjectName(QStringLiteral("HorizontalTiling"));
    verticalTiling_ = new QCheckBox(tr("Repeat &down"), box);
    verticalTiling_->setObjectName(QStringLiteral("VerticalTiling"));
    horizontalSpacing_ = addNumber("HorizontalSpacing", tr("Horizontal spacing"), number_kind::Offset,
                                   &Watermark::HorizontalSpacing);
    verticalSpacing_ = addNumber("VerticalSpacing", tr("Vertical spacing"), number_kind::Offset,
                                 &Watermark::VerticalSpacing);
    auto* layout = new QGridLayout(box);
    int row = 0;
    for (const auto& [check, spacing] :
         {std::pair(horizontalTiling_, horizontalSpacing_), std::pair(verticalTiling_, verticalSpacing_)}) {
        QSizePolicy kept = spacing->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        spacing->setSizePolicy(kept);
        spacing->setToolTip(spacing->accessibleName());
        spacing->setPrefix(tr("Gap "));
        layout->addWidget(check, row, 0);
        layout->addWidget(spacing, row++, 1);
    }
    layout->setColumnStretch(0, 1);
    connect(horizontalTiling_, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT edited([on](Watermark& record) { setHorizontalTiling(record, on); }); });
    connect(verticalTiling_, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT edited([on](Watermark& record) { setVerticalTiling(record, on); }); });
    return box;
}

void PositionGroup::load(const Watermark& record) {
    const PositionControls controls = EnableDisablePositionControls(record);
    const bool isCustom = record.Position == CustomPosition;
    if (record.Position >= 1 && record.Position <= 9) lastCell_ = record.Position;
    (isCustom ? custom_ : preset_)->setChecked(true);
    preset_->setEnabled(controls.type);
    custom_->setEnabled(controls.type);
    grid_->load(isCustom ? 0 : record.Position);
    grid_->enableCells(controls);
    left_->setEnabled(controls.custom);
    top_->setEnabled(controls.custom);
    paddingTop_->setEnabled(controls.padding.top);
    paddingLeft_->setEnabled(controls.padding.left);
    paddingBottom_->setEnabled(controls.padding.bottom);
    paddingRight_->setEnabled(controls.padding.right);
    for (const BoundField& bound : fields_) bound.field->load(static_cast<double>(record.*bound.value));
    if (horizontalTiling_ == nullptr) return;
    horizontalTiling_->setChecked(record.HorizontalTiling);
    verticalTiling_->setChecked(record.VerticalTiling);
    horizontalSpacing_->setVisible(record.HorizontalTiling);
    verticalSpacing_->setVisible(record.VerticalTiling);
}

}  // namespace zelto
