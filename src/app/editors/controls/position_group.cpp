// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_group.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <cmath>

namespace zelto {
namespace {

// Ids of the two kinds of position.
enum PositionType { Preset = 1, Custom = 2 };

// A label beside its field, at two columns of a grid.
void addRow(QGridLayout& grid, int row, int column, NumberField* field) {
    auto* label = new QLabel(field->accessibleName(), field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(label->text().remove(QLatin1Char('&')).remove(QLatin1Char(':')));
    grid.addWidget(label, row, column, Qt::AlignRight | Qt::AlignVCenter);
    grid.addWidget(field, row, column + 1);
}

PositionType positionType(const Watermark& record) {
    return record.Position == CustomPosition ? Custom : Preset;
}

}  // namespace

PositionGroup::PositionGroup(RecordBinder<Watermark>& binder, QWidget* parent)
    : QWidget(parent), binder_(binder) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makePosition());
    column->addWidget(makePadding());
}

NumberField* PositionGroup::makeNumber(const char* name, const NumberKind& kind, const QString& label) {
    auto* field = new NumberField(kind, this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(label);
    return field;
}

QWidget* PositionGroup::makePosition() {
    auto* box = new QWidget(this);
    auto* preset = new QRadioButton(tr("Preset"), box);
    preset->setObjectName(QStringLiteral("PresetPosition"));
    grid_ = new PositionGrid(box);
    auto* custom = new QRadioButton(tr("Custom"), box);
    custom->setObjectName(QStringLiteral("CustomPosition"));
    NumberField* left = makeNumber("CustomPositionLeft", number_kind::Length, tr("From left:"));
    NumberField* top = makeNumber("CustomPositionTop", number_kind::Length, tr("From top:"));
    auto* types = new QButtonGroup(box);
    types->addButton(preset, Preset);
    types->addButton(custom, Custom);
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(preset, 0, 0);
    layout->addWidget(grid_, 1, 0, 3, 1);
    layout->addWidget(custom, 0, 1, 1, 2);
    addRow(*layout, 1, 1, left);
    addRow(*layout, 2, 1, top);
    layout->setRowStretch(3, 1);
    layout->setColumnStretch(0, 1);

    binder_.bind(types, positionType, [this](Watermark& record, int type) {
        if (type != positionType(record)) record.Position = type == Custom ? CustomPosition : lastCell_;
    });
    binder_.bind(
        grid_,
        [](const Watermark& record) { return record.Position == CustomPosition ? 0 : record.Position; },
        setPresetPosition);
    for (const auto& pair :
         {std::pair(left, &Watermark::CustomPositionLeft), std::pair(top, &Watermark::CustomPositionTop)}) {
        binder_.bind(pair.first, pair.second, [length = pair.second](Watermark& record, double pixels) {
            record.*length = std::llround(pixels);
            record.Position = CustomPosition;
        });
    }
    binder_.follow([=, this](const Watermark& record) {
        const PositionControls controls = EnableDisablePositionControls(record);
        if (record.Position >= 1 && record.Position <= 9) lastCell_ = record.Position;
        for (QWidget* type : {preset, custom}) type->setEnabled(controls.type);
        for (QWidget* length : {left, top}) length->setEnabled(controls.custom);
        grid_->enableCells(controls);
    });
    return box;
}

QWidget* PositionGroup::makePadding() {
    auto* box = new QGroupBox(tr("Padding"), this);
    auto* layout = new QGridLayout(box);
    struct Side {
        const char* name;
        QString label;
        std::int64_t Watermark::*padding;
        bool PaddingControls::*isUsed;
    };
    const Side sides[] = {
        {"PaddingTop", tr("Top:"), &Watermark::PaddingTop, &PaddingControls::top},
        {"PaddingLeft", tr("Left:"), &Watermark::PaddingLeft, &PaddingControls::left},
        {"PaddingBottom", tr("Bottom:"), &Watermark::PaddingBottom, &PaddingControls::bottom},
        {"PaddingRight", tr("Right:"), &Watermark::PaddingRight, &PaddingControls::right},
    };
    int place = 0;
    for (const Side& side : sides) {
        NumberField* field = makeNumber(side.name, number_kind::Offset, side.label);
        addRow(*layout, place / 2, place % 2 * 2, field);
        ++place;
        binder_.bind(field, side.padding);
        binder_.follow([field, isUsed = side.isUsed](const Watermark& record) {
            field->setEnabled(EnableDisablePadding(record).*isUsed);
        });
    }
    layout->setColumnStretch(1, 1);
    layout->setColumnStretch(3, 1);
    return box;
}

QWidget* PositionGroup::makeTiling() {
    auto* box = new QWidget(this);
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    struct Direction {
        const char* name;
        QString label;
        bool Watermark::*isOn;
        void (*set)(Watermark&, bool);
        const char* spacingName;
        QString spacingLabel;
        std::int64_t Watermark::*spacing;
    };
    const Direction directions[] = {
        {"HorizontalTiling", tr("Repeat across"), &Watermark::HorizontalTiling, setHorizontalTiling,
         "HorizontalSpacing", tr("Horizontal spacing"), &Watermark::HorizontalSpacing},
        {"VerticalTiling", tr("Repeat down"), &Watermark::VerticalTiling, setVerticalTiling,
         "VerticalSpacing", tr("Vertical spacing"), &Watermark::VerticalSpacing},
    };
    int row = 0;
    for (const Direction& direction : directions) {
        auto* check = new QCheckBox(direction.label, box);
        check->setObjectName(QLatin1String(direction.name));
        NumberField* spacing = makeNumber(direction.spacingName, number_kind::Offset, direction.spacingLabel);
        QSizePolicy kept = spacing->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        spacing->setSizePolicy(kept);
        spacing->setToolTip(direction.spacingLabel);
        spacing->setPrefix(tr("Gap "));
        layout->addWidget(check, row, 0);
        layout->addWidget(spacing, row++, 1);
        binder_.bind(check, direction.isOn, direction.set);
        binder_.bind(spacing, direction.spacing);
        binder_.follow(
            [spacing, isOn = direction.isOn](const Watermark& record) { spacing->setVisible(record.*isOn); });
    }
    layout->setColumnStretch(0, 1);
    return box;
}

}  // namespace zelto
