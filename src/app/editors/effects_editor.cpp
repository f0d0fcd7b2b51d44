// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/effects_editor.h"

#include "app/common/enabling.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/fold_group.h"
#include "app/editors/controls/length_box.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/controls/value_page.h"
#include "app/editors/effect_rules.h"
#include "pictures/picture_reader.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

// Far more than looks well, far less than memory holds.
constexpr NumberKind Thickness{0, 4000, 0, QLatin1String(" px")};
constexpr NumberKind Blur{0, 1000, 0, QLatin1String(" px")};

using Edit = std::function<void(PhotoEffects&)>;

class EffectsEditor : public ValuePage<std::optional<PhotoEffects>> {
    Q_DECLARE_TR_FUNCTIONS(zelto::EffectsEditor)

  public:
    explicit EffectsEditor(WatermarkController& controller);

    void load() override;
    // Borders and shadows are shares of the photo without them.
    void showFor(const SelectedPhoto& photo) override {
        showReferenceIn(*this, readPictureSize(photo.path).value_or(QSize()));
    }

  protected:
    std::optional<PhotoEffects> value() const override { return controller().GetEffect(); }
    void put(const std::optional<PhotoEffects>& effects) override {
        controller().AddEffects(effects, visitStep());
    }

  private:
    void edit(const Edit& edit);
    QWidget* makeBorder();
    QLayout* makeThicknesses(QWidget* box);
    QWidget* makeShadow();
    QLayout* makeSides(QWidget* box);
    // Usable only while the photo has a shadow.
    void addShadowRow(QFormLayout& form, const QString& label, QWidget* control);

    RecordBinder<PhotoEffects> binder_;
    PhotoEffects last_;  // what switching the effects on again brings back
    QCheckBox* isOn_;
    QWidget* border_ = nullptr;
    QWidget* shadow_ = nullptr;
};

EffectsEditor::EffectsEditor(WatermarkController& controller)
    : ValuePage(QStringLiteral("EffectsEditor"), tr("Border and Shadow"), controller),
      binder_([this](const Edit& change) { edit(change); }),
      isOn_(named("IsOn", new QCheckBox(tr("Put a border and a shadow around the photos"), this))) {
    auto* border = new FoldGroup(QStringLiteral("Border"), tr("Border"), FoldGroup::AtFirst::Open, this);
    border->setContent(border_ = makeBorder());
    auto* shadow = new FoldGroup(QStringLiteral("Shadow"), tr("Shadow"), FoldGroup::AtFirst::Open, this);
    shadow->setContent(shadow_ = makeShadow());
    connect(isOn_, &QCheckBox::clicked, this,
            [this](bool on) { put(on ? std::optional(last_) : std::nullopt); });
    auto* head = new QHBoxLayout;
    head->setContentsMargins(10, 0, 8, 6);
    head->addWidget(isOn_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(head);
    column->addWidget(border);
    column->addWidget(shadow);
    column->addStretch();
    setFocusProxy(isOn_);
}

void EffectsEditor::edit(const Edit& edit) {
    PhotoEffects changed = value().value_or(PhotoEffects());
    edit(changed);
    put(changed);
}

QWidget* EffectsEditor::makeBorder() {
    auto* box = new QWidget(this);
    auto* same = named("SameBorder", new QCheckBox(tr("Same width on all sides"), box));
    auto* unit = named("BorderUnit", new LengthUnit(tr("Unit of the border"), box));
    QLayout* thicknesses = makeThicknesses(box);
    auto* over = named("ApplyWatermarkOnBorder", new QCheckBox(tr("Watermarks may cover the border"), box));
    binder_.bind(same, &PhotoEffects::SameBorder, setSameBorder);
    binder_.bind(over, &PhotoEffects::ApplyWatermarkOnBorder);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    bindUnit(binder_, unit, length_field::Thicknesses);
    column->addWidget(same);
    column->addWidget(unit);
    column->addLayout(thicknesses);
    column->addWidget(over);
    return box;
}

// The places around the photo where the controls of its sides stand.
struct Place {
    int row;
    int column;
};
constexpr Place AtTop{0, 1};
constexpr Place AtLeft{1, 0};
constexpr Place AtRight{1, 2};
constexpr Place AtBottom{2, 1};

// With the colour in the middle. Controls are made in the order the Tab key goes through them.
QLayout* EffectsEditor::makeThicknesses(QWidget* box) {
    struct SideRow {
        const char* name;
        QString label;
        length_field::EffectLength thickness;
        Place place;
    };
    const SideRow sides[] = {
        {"TopThickness", tr("Top"), length_field::TopThickness, AtTop},
        {"LeftThickness", tr("Left"), length_field::LeftThickness, AtLeft},
        {"RightThickness", tr("Right"), length_field::RightThickness, AtRight},
        {"BottomThickness", tr("Bottom"), length_field::BottomThickness, AtBottom},
    };
    auto* grid = new QGridLayout;
    for (const SideRow& side : sides) {
        if (side.thickness.Pixels == &PhotoEffects::RightThickness) {
            auto* color = named("BorderColor", new ColorWell(tr("Border colour"), box));
            binder_.bind(color, &PhotoEffects::BorderColor);
            grid->addWidget(color, 1, 1, Qt::AlignCenter);
        }
        auto* field = named(side.name, new LengthBox(Thickness, side.label, box));
        field->setToolTip(side.label);
        grid->addWidget(field, side.place.row, side.place.column);
        bindLength(binder_, field, side.thickness,
                   [thickness = side.thickness](PhotoEffects& effects, const PhotoLength& length) {
                       setThickness(effects, thickness, length.pixels, length.share);
                   });
        // Where all widths are the same the top tells it.
        if (side.thickness.Pixels == &PhotoEffects::TopThickness) continue;
        binder_.follow([field](const PhotoEffects& effects) {
            enableOr(*field, !effects.SameBorder, tr("All sides are as thick as the top"));
        });
    }
    return grid;
}

void EffectsEditor::addShadowRow(QFormLayout& form, const QString& label, QWidget* control) {
    addRow(form, label, control);
    binder_.follow([control](const PhotoEffects& effects) { control->setEnabled(effects.EnableShadow); });
}

QWidget* EffectsEditor::makeShadow() {
    auto* box = new QWidget(this);
    auto* hasShadow = named("EnableShadow", new QCheckBox(tr("Cast a shadow"), box));
    binder_.bind(hasShadow, &PhotoEffects::EnableShadow);
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(hasShadow);
    column->addLayout(makeSides(box));

    auto* unit = named("ShadowUnit", new LengthUnit(tr("Unit of the shadow"), box));
    bindUnit(binder_, unit, length_field::ShadowLengths);
    auto* blur = named("BlurRadius", new LengthBox(Blur, tr("Blur"), box));
    auto* distance = named("Distance", new LengthBox(Blur, tr("Distance"), box));
    auto* color = named("ShadowColor", new ColorWell(tr("Shadow colour"), box));
    bindLength(binder_, blur, length_field::BlurRadius);
    bindLength(binder_, distance, length_field::Distance);
    binder_.bind(color, &PhotoEffects::ShadowColor);
    auto* form = new QFormLayout;
    addShadowRow(*form, tr("Lengths:"), unit);
    addShadowRow(*form, tr("Blur:"), blur);
    addShadowRow(*form, tr("Distance:"), distance);
    addShadowRow(*form, tr("Colour:"), color);
    column->addLayout(form);

    auto* unseen =
        new QLabel(tr("The preview leaves the shadow out while watermarks may cover the border; the "
                      "written photos have it."),
                   box);
    unseen->setWordWrap(true);
    column->addWidget(unseen);
    binder_.follow([unseen](const PhotoEffects& effects) {
        unseen->setVisible(effects.EnableShadow && effects.ApplyWatermarkOnBorder);
    });
    return box;
}

QLayout* EffectsEditor::makeSides(QWidget* box) {
    struct SideRow {
        const char* name;
        QString label;
        bool ShadowSides::*isChosen;
        Place place;
        QCheckBox* box;
    };
    std::vector<SideRow> sides = {
        {"ShadowTop", tr("Top"), &ShadowSides::top, AtTop, nullptr},
        {"ShadowLeft", tr("Left"), &ShadowSides::left, AtLeft, nullptr},
        {"ShadowRight", tr("Right"), &ShadowSides::right, AtRight, nullptr},
        {"ShadowBottom", tr("Bottom"), &ShadowSides::bottom, AtBottom, nullptr},
    };
    auto* grid = new QGridLayout;
    for (SideRow& side : sides) {
        side.box = named(side.name, new QCheckBox(side.label, box));
        grid->addWidget(side.box, side.place.row, side.place.column);
    }
    grid->setColumnStretch(3, 1);
    const auto chosenSides = [sides] {
        ShadowSides chosen;
        for (const SideRow& side : sides) chosen.*side.isChosen = side.box->isChecked();
        return chosen;
    };
    for (const SideRow& side : sides) {
        binder_.onChosen(side.box, [chosenSides](PhotoEffects& effects, bool /*on*/) {
            setShadowSides(effects, chosenSides());
        });
    }
    binder_.follow([sides, chosenSides](const PhotoEffects& effects) {
        // Several choices of sides mean one direction; what the user has chosen stays as it is.
        const ShadowSides chosen = chosenSides();
        const bool isShown =
            shadowDirection(chosen) == effects.Direction && (chosen.any() || !effects.EnableShadow);
        const ShadowSides shown = isShown ? chosen : shadowSides(effects.Direction);
        for (const SideRow& side : sides) {
            side.box->setChecked(shown.*side.isChosen);
            side.box->setEnabled(effects.EnableShadow);
        }
    });
    return grid;
}

void EffectsEditor::load() {
    const std::optional<PhotoEffects> effects = value();
    if (effects) last_ = *effects;
    isOn_->setChecked(effects.has_value());
    border_->setEnabled(effects.has_value());
    shadow_->setEnabled(effects.has_value());
    binder_.load(last_);
}

}  // namespace

Editor effectsEditor() {
    return {[](WatermarkController& controller) { return new EffectsEditor(controller); },
            [](const EditorCall& call) {
                if (call.controller.GetEffect()) return;
                const QSizeF photo = readPictureSize(call.photo.path).value_or(QSize());
                call.controller.AddEffects(startingEffects(photo), visitStep());
            }};
}

}  // namespace zelto
