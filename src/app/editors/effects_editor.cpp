// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/effects_editor.h"

#include "app/editors/controls/editor_dialog.h"
#include "app/editors/controls/record_binder.h"
#include "app/editors/effect_rules.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace zelto {
namespace {

// Far more than looks well, far less than memory holds.
constexpr NumberKind Thickness{0, 4000, 0, QLatin1String(" px")};
constexpr NumberKind Blur{0, 1000, 0, QLatin1String(" px")};

using Edit = std::function<void(PhotoEffects&)>;

class EffectsSession : public EditorSession {
  public:
    using EditorSession::EditorSession;

    const std::optional<PhotoEffects>& effects() const { return controller().GetEffect(); }
    void edit(const Edit& edit) {
        PhotoEffects changed = effects().value_or(PhotoEffects());
        edit(changed);
        put(changed);
    }
    void put(const std::optional<PhotoEffects>& effects) { controller().AddEffects(effects, step()); }
};

class EffectsEditor : public EditorDialog {
    Q_DECLARE_TR_FUNCTIONS(zelto::EffectsEditor)

  public:
    EffectsEditor(const EditorCall& call, EffectsSession& session);

  protected:
    void load() override;

  private:
    QWidget* makeBorder();
    QWidget* makeShadow();
    NumberField* makeThickness(const char* name, const QString& label, std::int64_t PhotoEffects::*side);
    ShadowSides chosenSides() const;

    EffectsSession& session_;
    RecordBinder<PhotoEffects> binder_;
    PhotoEffects last_;  // what switching the effects on again brings back
    QCheckBox* isOn_;
    QWidget* border_ = nullptr;
    QWidget* shadow_ = nullptr;
    QCheckBox* same_ = nullptr;
    NumberField* top_ = nullptr;
    NumberField* left_ = nullptr;
    NumberField* right_ = nullptr;
    NumberField* bottom_ = nullptr;
    QCheckBox* hasShadow_ = nullptr;
    QCheckBox* shadowTop_ = nullptr;
    QCheckBox* shadowLeft_ = nullptr;
    QCheckBox* shadowRight_ = nullptr;
    QCheckBox* shadowBottom_ = nullptr;
    NumberField* blur_ = nullptr;
    NumberField* distance_ = nullptr;
    ColorWell* shadowColor_ = nullptr;
    QLabel* unseen_ = nullptr;
};

EffectsEditor::EffectsEditor(const EditorCall& call, EffectsSession& session)
    : EditorDialog(call, session, QStringLiteral("EffectsEditor"), tr("Border and Shadow")),
      session_(session),
      binder_([&session](const Edit& edit) { session.edit(edit); }),
      isOn_(new QCheckBox(tr("&Put a border and a shadow around the photos"), this)) {
    border_ = makeBorder();
    shadow_ = makeShadow();
    isOn_->setObjectName(QStringLiteral("IsOn"));
    connect(isOn_, &QCheckBox::clicked, this, [this](bool on) {
        const std::optional<PhotoEffects> effects = on ? std::optional(last_) : std::nullopt;
        session_.put(effects);
    });
    auto* content = new QWidget(this);
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    for (QWidget* part : std::initializer_list<QWidget*>{isOn_, border_, shadow_}) column->addWidget(part);
    column->addStretch();
    setContent(content);
}

NumberField* EffectsEditor::makeThickness(const char* name, const QString& label,
                                          std::int64_t PhotoEffects::*side) {
    auto* field = new NumberField(Thickness, this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(label);
    field->setToolTip(label);
    connect(field, &NumberField::valueChanged, this, [this, side](double pixels) {
        session_.edit([=](PhotoEffects& effects) { setThickness(effects, side, std::llround(pixels)); });
    });
    return field;
}

QWidget* EffectsEditor::makeBorder() {
    auto* box = new QGroupBox(tr("Border"), this);
    same_ = new QCheckBox(tr("&Same width on all sides"), box);
    same_->setObjectName(QStringLiteral("SameBorder"));
    top_ = makeThickness("TopThickness", tr("Top"), &PhotoEffects::TopThickness);
    left_ = makeThickness("LeftThickness", tr("Left"), &PhotoEffects::LeftThickness);
    right_ = makeThickness("RightThickness", tr("Right"), &PhotoEffects::RightThickness);
    bottom_ = makeThickness("BottomThickness", tr("Bottom"), &PhotoEffects::BottomThickness);
    auto* color = new ColorWell(tr("Border colour"), box);
    color->setObjectName(QStringLiteral("BorderColor"));
    auto* over = new QCheckBox(tr("&Watermarks may cover the border"), box);
    over->setObjectName(QStringLiteral("ApplyWatermarkOnBorder"));
    connect(same_, &QCheckBox::clicked, this,
            [this](bool on) { session_.edit([on](PhotoEffects& effects) { setSameBorder(effects, on); }); });
    binder_.bind(color, &PhotoEffects::BorderColor);
    binder_.bind(over, &PhotoEffects::ApplyWatermarkOnBorder);

    // The fields stand around the photo as the sides do.
    auto* sides = new QGridLayout;
    sides->addWidget(top_, 0, 1);
    sides->addWidget(left_, 1, 0);
    sides->addWidget(color, 1, 1, Qt::AlignCenter);
    sides->addWidget(right_, 1, 2);
    sides->addWidget(bottom_, 2, 1);
    auto* column = new QVBoxLayout(box);
    column->addWidget(same_);
    column->addLayout(sides);
    column->addWidget(over);
    return box;
}

QWidget* EffectsEditor::makeShadow() {
    auto* box = new QGroupBox(tr("Shadow"), this);
    hasShadow_ = new QCheckBox(tr("S&hadow"), box);
    hasShadow_->setObjectName(QStringLiteral("EnableShadow"));
    binder_.bind(hasShadow_, &PhotoEffects::EnableShadow);
    const auto addSide = [this, box](const char* name, const QString& label) {
        auto* side = new QCheckBox(label, box);
        side->setObjectName(QLatin1String(name));
        connect(side, &QCheckBox::clicked, this, [this] {
            session_.edit([sides = chosenSides()](PhotoEffects& effects) { setShadowSides(effects, sides); });
        });
        return side;
    };
    shadowTop_ = addSide("ShadowTop", tr("Top"));
    shadowLeft_ = addSide("ShadowLeft", tr("Left"));
    shadowRight_ = addSide("ShadowRight", tr("Right"));
    shadowBottom_ = addSide("ShadowBottom", tr("Bottom"));
    blur_ = new NumberField(Blur, box);
    blur_->setObjectName(QStringLiteral("BlurRadius"));
    distance_ = new NumberField(Blur, box);
    distance_->setObjectName(QStringLiteral("Distance"));
    shadowColor_ = new ColorWell(tr("Shadow colour"), box);
    shadowColor_->setObjectName(QStringLiteral("ShadowColor"));
    binder_.bind(blur_, &PhotoEffects::BlurRadius);
    binder_.bind(distance_, &PhotoEffects::Distance);
    binder_.bind(shadowColor_, &PhotoEffects::ShadowColor);
    unseen_ = new QLabel(tr("The preview leaves the shadow out while watermarks may cover the border; the "
                            "written photos have it."),
                         box);
    unseen_->setWordWrap(true);

    auto* sides = new QGridLayout;
    sides->addWidget(shadowTop_, 0, 1);
    sides->addWidget(shadowLeft_, 1, 0);
    sides->addWidget(shadowRight_, 1, 2);
    sides->addWidget(shadowBottom_, 2, 1);
    sides->setColumnStretch(3, 1);
    auto* form = new QFormLayout;
    addRow(*form, tr("B&lur:"), blur_);
    addRow(*form, tr("&Distance:"), distance_);
    addRow(*form, tr("Col&our:"), shadowColor_);
    auto* column = new QVBoxLayout(box);
    column->addWidget(hasShadow_);
    column->addLayout(sides);
    column->addLayout(form);
    column->addWidget(unseen_);
    return box;
}

ShadowSides EffectsEditor::chosenSides() const {
    return {.top = shadowTop_->isChecked(),
            .left = shadowLeft_->isChecked(),
            .right = shadowRight_->isChecked(),
            .bottom = shadowBottom_->isChecked()};
}

void EffectsEditor::load() {
    const bool isOn = session_.effects().has_value();
    if (isOn) last_ = *session_.effects();
    isOn_->setChecked(isOn);
    border_->setEnabled(isOn);
    shadow_->setEnabled(isOn);
    binder_.load(last_);
    same_->setChecked(last_.SameBorder);
    top_->load(static_cast<double>(last_.TopThickness));
    left_->load(static_cast<double>(last_.LeftThickness));
    right_->load(static_cast<double>(last_.RightThickness));
    bottom_->load(static_cast<double>(last_.BottomThickness));
    for (NumberField* side : {left_, right_, bottom_}) side->setEnabled(!last_.SameBorder);

    // Several choices of sides mean one direction; what the user has chosen stays as it is.
    const ShadowSides chosen = chosenSides();
    const bool isShown = shadowDirection(chosen) == last_.Direction && (chosen.any() || !last_.EnableShadow);
    const ShadowSides sides = isShown ? chosen : shadowSides(last_.Direction);
    shadowTop_->setChecked(sides.top);
    shadowLeft_->setChecked(sides.left);
    shadowRight_->setChecked(sides.right);
    shadowBottom_->setChecked(sides.bottom);
    for (QWidget* control : std::initializer_list<QWidget*>{shadowTop_, shadowLeft_, shadowRight_,
                                                            shadowBottom_, blur_, distance_, shadowColor_}) {
        control->setEnabled(last_.EnableShadow);
    }
    unseen_->setVisible(last_.EnableShadow && last_.ApplyWatermarkOnBorder);
}

}  // namespace

void editEffects(const EditorCall& call) {
    EffectsSession session(call);
    if (!session.effects()) session.put(PhotoEffects());
    EffectsEditor(call, session).run();
}

}  // namespace zelto
