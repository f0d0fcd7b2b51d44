// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_group.h"

#include "app/common/enabling.h"
#include "app/editors/controls/length_box.h"
#include "app/editors/controls/value_page.h"

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
void addRow(QGridLayout& grid, int row, int column, const QString& text, QWidget* field) {
    auto* label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    nameAfterLabel(text, *field);
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

NumberField* PositionGroup::makeNumber(const char* name, const NumberKind& kind) {
    auto* field = new NumberField(kind, this);
    field->setObjectName(QLatin1String(name));
    return field;
}

QWidget* PositionGroup::makePosition() {
    auto* box = new QWidget(this);
    auto* preset = new QRadioButton(tr("Preset"), box);
    preset->setObjectName(QStringLiteral("PresetPosition"));
    grid_ = new PositionGrid(box);
    auto* custom = new QRadioButton(tr("Custom"), box);
    custom->setObjectName(QStringLiteral("CustomPosition"));
    NumberField* left = makeNumber("CustomPositionLeft", number_kind::Length);
    NumberField* top = makeNumber("CustomPositionTop", number_kind::Length);
    auto* types = new QButtonGroup(box);
    types->addButton(preset, Preset);
    types->addButton(custom, Custom);
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(preset, 0, 0);
    layout->addWidget(grid_, 1, 0, 3, 1);
    layout->addWidget(custom, 0, 1, 1, 2);
    addRow(*layout, 1, 1, tr("From left:"), left);
    addRow(*layout, 2, 1, tr("From top:"), top);
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
        for (QWidget* type : {preset, custom})
            enableOr(*type, controls.type, tr("What is repeated has a row or a column, not a place"));
        for (QWidget* length : {left, top}) length->setEnabled(controls.custom);
        grid_->enableCells(controls);
    });
    return box;
}

QWidget* PositionGroup::makePadding() {
    auto* box = new QGroupBox(tr("Padding"), this);
    auto* layout = new QGridLayout(box);
    auto* unit = new LengthUnit(tr("Unit of the padding"), box);
    unit->setObjectName(QStringLiteral("PaddingUnit"));
    bindUnit(binder_, unit, length_field::Paddings);
    layout->addWidget(unit, 0, 0, 1, 4);
    struct SideRow {
        const char* name;
        QString label;
        length_field::WatermarkLength padding;
        bool PaddingControls::*isUsed;
    };
    const SideRow sides[] = {
        {"PaddingTop", tr("Top:"), length_field::PaddingTop, &PaddingControls::top},
        {"PaddingLeft", tr("Left:"), length_field::PaddingLeft, &PaddingControls::left},
        {"PaddingBottom", tr("Bottom:"), length_field::PaddingBottom, &PaddingControls::bottom},
        {"PaddingRight", tr("Right:"), length_field::PaddingRight, &PaddingControls::right},
    };
    int place = 0;
    for (const SideRow& side : sides) {
        auto* field = new LengthBox(number_kind::Offset, {}, box);
        field->setObjectName(QLatin1String(side.name));
        addRow(*layout, 1 + place / 2, place % 2 * 2, side.label, field);
        ++place;
        bindLength(binder_, field, side.padding);
        binder_.follow([field, isUsed = side.isUsed](const Watermark& record) {
            enableOr(*field, EnableDisablePadding(record).*isUsed,
                     tr("At this position this padding moves nothing"));
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
        length_field::WatermarkLength spacing;
    };
    const Direction directions[] = {
        {"HorizontalTiling", tr("Repeat across"), &Watermark::HorizontalTiling, setHorizontalTiling,
         "HorizontalSpacing", tr("Horizontal spacing"), length_field::HorizontalSpacing},
        {"VerticalTiling", tr("Repeat down"), &Watermark::VerticalTiling, setVerticalTiling,
         "VerticalSpacing", tr("Vertical spacing"), length_field::VerticalSpacing},
    };
    int row = 0;
    for (const Direction& direction : directions) {
        auto* check = new QCheckBox(direction.label, box);
        check->setObjectName(QLatin1String(direction.name));
        auto* spacing = new LengthBox(number_kind::Offset, direction.spacingLabel, box);
        spacing->setObjectName(QLatin1String(direction.spacingName));
        QSizePolicy kept = spacing->sizePolicy();
        kept.setRetainSizeWhenHidden(true);
        spacing->setSizePolicy(kept);
        spacing->setToolTip(direction.spacingLabel);
        spacing->number().setPrefix(tr("Gap "));
        layout->addWidget(check, row, 0);
        layout->addWidget(spacing, row++, 1);
        binder_.bind(check, direction.isOn, direction.set);
        bindLength(binder_, spacing, direction.spacing);
        binder_.follow(
            [spacing, isOn = direction.isOn](const Watermark& record) { spacing->setVisible(record.*isOn); });
    }
    auto* unit = new LengthUnit(tr("Unit of the gaps"), box);
    unit->setObjectName(QStringLiteral("SpacingUnit"));
    bindUnit(binder_, unit, length_field::Spacings);
    binder_.follow([unit](const Watermark& record) {
        unit->setEnabled(record.HorizontalTiling || record.VerticalTiling);
    });
    layout->addWidget(unit, row, 0, 1, 2);
    layout->setColumnStretch(0, 1);
    return box;
}

}  // namespace zelto
