// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/text_style_group.h"

#include "app/common/enabling.h"
#include "app/common/icons.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/controls/photo_side_box.h"
#include "app/editors/controls/value_page.h"
#include "app/editors/text/font_family_list.h"
#include "render/font_size.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace zelto {
namespace {

constexpr NumberKind Pixels{1, 10'000, 0, QLatin1String(" px")};
constexpr int UsualSizes[] = {12, 18, 24, 36, 48, 72, 96, 144, 200, 300, 400};

struct StyleRow {
    const char* letter;
    const char* name;
    const char* tip;
    bool Watermark::*field;
    void (QFont::*show)(bool);
};
constexpr StyleRow Styles[] = {
    {"B", "FontBold", QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Bold"), &Watermark::FontBold,
     &QFont::setBold},
    {"I", "FontItalic", QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Italic"), &Watermark::FontItalic,
     &QFont::setItalic},
    {"U", "FontUnderline", QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Underlined"),
     &Watermark::FontUnderline, &QFont::setUnderline},
    {"S", "FontStrikethrough", QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Struck through"),
     &Watermark::FontStrikethrough, &QFont::setStrikeOut},
};

struct AlignmentRow {
    QLatin1String icon;
    const char* tip;
    std::uint64_t code;
};
constexpr AlignmentRow Alignments[] = {
    {QLatin1String("align-left"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Align left"),
     text_alignment::Left},
    {QLatin1String("align-center"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Centre"),
     text_alignment::Centre},
    {QLatin1String("align-right"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Align right"),
     text_alignment::Right},
};

QHBoxLayout* rowOf(QWidget* widget) {
    auto* row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

QToolButton* makeToggle(const QString& name, const QString& tip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    return button;
}

}  // namespace

// Controls are made in the order the eye and the Tab key go through them.
TextStyleGroup::TextStyleGroup(RecordBinder<Watermark>& binder, QWidget* parent)
    : QWidget(parent), binder_(binder) {
    auto* family = new FontFamilyList(this);
    binder_.bind(family, &Watermark::FontFamily);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addRow(*form, tr("Font:"), family);
    addRow(*form, tr("Size:"), makeSize());
    addRow(*form, tr("Style:"), makeStyles());
    addRow(*form, tr("Colour:"), makeColors());
    addRow(*form, tr("Effect:"), makeEffect());
}

// One number, which is per cent of a side of the photo or pixels; the kind of size changes what it means, not the
// number.
QWidget* TextStyleGroup::makeSize() {
    auto* widget = new QWidget(this);
    auto* kind = named("FontSizeType", new QComboBox(widget));
    kind->setAccessibleName(tr("Kind of size"));
    kind->addItem(tr("Proportional"), true);
    kind->addItem(tr("Fixed"), false);
    auto* size = named("FontSize", new NumberField(Pixels, widget));
    size->setAccessibleName(tr("Size"));
    auto* side = named("FontRelativeSize", makePhotoSideBox(widget));
    auto* usual = named("UsualSizes", new QComboBox(widget));
    usual->setAccessibleName(tr("Usual sizes"));
    usual->setPlaceholderText(tr("Custom"));
    for (const int pixels : UsualSizes) usual->addItem(QString::number(pixels), pixels);
    widget->setFocusProxy(kind);
    auto* rows = new QGridLayout(widget);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(kind, 0, 0);
    rows->addWidget(size, 0, 1);
    rows->addWidget(side, 1, 0, 1, 2);
    rows->addWidget(usual, 1, 0, 1, 2);

    binder_.bind(kind, &Watermark::IsRelative, [](Watermark& record, const QVariant& isRelative) {
        record.IsRelative = isRelative.toBool();
        if (!record.IsRelative) record.FontSizeFraction.reset();
    });
    binder_.follow([size](const Watermark& record) {
        size->setKind(record.IsRelative ? number_kind::PercentOfSide : Pixels);
    });
    binder_.bind(size, fontSizeOf, setFontSize);
    binder_.bind(usual, &Watermark::FontSize);
    binder_.bind(
        side,
        [side](const Watermark& record) {
            // Any other word means the height.
            const bool isKnown = side->findData(record.FontRelativeSize) >= 0;
            return isKnown ? record.FontRelativeSize : QString(photo_side::Height);
        },
        [](Watermark& record, const QVariant& title) { record.FontRelativeSize = title.toString(); });
    binder_.follow([=](const Watermark& record) {
        side->setVisible(record.IsRelative);
        usual->setVisible(!record.IsRelative);
    });
    return widget;
}

QWidget* TextStyleGroup::makeStyles() {
    auto* widget = new QWidget(this);
    QHBoxLayout* row = rowOf(widget);
    row->setSpacing(2);
    for (const StyleRow& style : Styles) {
        QToolButton* button = makeToggle(QLatin1String(style.name), tr(style.tip), widget);
        button->setText(QLatin1String(style.letter));
        QFont font = button->font();
        (font.*style.show)(true);
        button->setFont(font);
        const int side = 2 * fontMetrics().height();
        button->setMinimumWidth(side);
        row->addWidget(button);
        binder_.bind(button, style.field);
    }
    row->addSpacing(12);
    auto* alignments = new QButtonGroup(widget);
    for (const AlignmentRow& alignment : Alignments) {
        QToolButton* button = makeToggle(alignment.icon, tr(alignment.tip), widget);
        button->setAutoExclusive(true);  // told as one choice of three
        button->setIcon(lineIcon(alignment.icon));
        alignments->addButton(button, static_cast<int>(alignment.code));
        row->addWidget(button);
    }
    binder_.bind(alignments, &Watermark::Alignment);
    row->addStretch();
    return widget;
}

QWidget* TextStyleGroup::makeColors() {
    auto* widget = new QWidget(this);
    auto* color = named("TextColor", new ColorWell(tr("Text Colour"), widget));
    auto* shadow = named("Shadow", new QCheckBox(tr("Shadow"), widget));
    auto* shadowColor = named("ShadowColor", new ColorWell(tr("Shadow Colour"), widget));
    widget->setFocusProxy(color);
    QHBoxLayout* row = rowOf(widget);
    row->addWidget(color);
    row->addSpacing(12);
    row->addWidget(shadow);
    row->addWidget(shadowColor);
    row->addStretch();

    // Colours that a record lacks are black.
    const auto bindColor = [this](ColorWell* well, std::optional<Color> Watermark::*field) {
        binder_.bind(
            well,
            [field](const Watermark& record) {
                return std::optional((record.*field).value_or(Color::black()));
            },
            [field](Watermark& record, const Color& chosen) { record.*field = chosen; });
    };
    bindColor(color, &Watermark::TextColor);
    bindColor(shadowColor, &Watermark::ShadowColor);
    binder_.bind(shadow, &Watermark::Shadow, [shadowColor](Watermark& record, bool on) {
        record.Shadow = on;
        if (on) record.ShadowColor = shadowColor->color();
    });
    binder_.follow([=](const Watermark& record) {
        const bool isEmbossed = record.TextEffect != text_effect::None;
        enableOr(*shadow, !isEmbossed, tr("Embossed letters cast no shadow"));
        shadowColor->setEnabled(!isEmbossed && record.Shadow);
    });
    return widget;
}

QWidget* TextStyleGroup::makeEffect() {
    auto* widget = new QWidget(this);
    auto* effect = named("TextEffect", new QComboBox(widget));
    effect->setAccessibleName(tr("Effect"));
    effect->addItem(tr("None"), text_effect::None);
    effect->addItem(tr("Emboss"), text_effect::Emboss);
    auto* transparent = named("IsTextTransparent", new QCheckBox(tr("Transparent letters"), widget));
    transparent->setToolTip(tr("Only the light and dark edges of embossed letters are drawn"));
    widget->setFocusProxy(effect);
    QHBoxLayout* row = rowOf(widget);
    row->addWidget(effect);
    row->addSpacing(12);
    row->addWidget(transparent);
    row->addStretch();
    binder_.bind(
        effect,
        [](const Watermark& record) {
            return record.TextEffect == text_effect::None ? text_effect::None : text_effect::Emboss;
        },
        [](Watermark& record, const QVariant& code) { record.TextEffect = code.toInt(); });
    binder_.bind(transparent, &Watermark::UseTransparentColor);
    binder_.follow([transparent](const Watermark& record) {
        transparent->setEnabled(record.TextEffect != text_effect::None);
    });
    return widget;
}

}  // namespace zelto
