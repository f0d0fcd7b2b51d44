// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/text/text_style_group.h"

#include "app/common/icons.h"
#include "app/editors/controls/editor_dialog.h"

#include <QFontInfo>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>

namespace zelto {
namespace {

constexpr NumberKind PercentOfSide{1, 1'000, 0, QLatin1String(" %")};
constexpr NumberKind Pixels{1, 10'000, 0, QLatin1String(" px")};
constexpr int StartPercent = 5;
constexpr int StartPixels = 72;
constexpr int UsualSizes[] = {12, 18, 24, 36, 48, 72, 96, 144, 200, 300, 400};
constexpr QLatin1String Sides[] = {QLatin1String("Width"), QLatin1String("Height"),
                                   QLatin1String("Longer Side")};

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
    {QLatin1String("align-left"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Align left"), 0},
    {QLatin1String("align-center"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Centre"), 2},
    {QLatin1String("align-right"), QT_TRANSLATE_NOOP("zelto::TextStyleGroup", "Align right"), 1},
};

constexpr std::int32_t Emboss = 3;

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

void startText(Watermark& record) {
    record.Text = QLatin1String("");
    record.FontFamily = QFontInfo(QFont()).family();
    record.IsRelative = true;
    record.FontSize = StartPercent;
    record.FontRelativeSize = Sides[0];
    record.TextColor = Color::white();
    record.ShadowColor = Color::black();
}

// Controls are made in the order the eye and the Tab key go through them.
TextStyleGroup::TextStyleGroup(QWidget* parent) : QWidget(parent), family_(new FontFamilyList(this)) {
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addRow(*form, tr("&Font:"), family_);
    addRow(*form, tr("Si&ze:"), makeSize());
    addRow(*form, tr("Style:"), makeStyles());
    addRow(*form, tr("&Colour:"), makeShadow());
    addRow(*form, tr("&Effect:"), makeEffect());
    connect(family_, &FontFamilyList::familyChosen, this, [this](const QString& family) {
        Q_EMIT edited([family](Watermark& record) { record.FontFamily = family; });
    });
}

QWidget* TextStyleGroup::makeSize() {
    auto* widget = new QWidget(this);
    sizeType_ = new QComboBox(widget);
    relativeSize_ = new NumberField(PercentOfSide, widget);
    relativeTo_ = new QComboBox(widget);
    fixedSize_ = new NumberField(Pixels, widget);
    usualSizes_ = new QComboBox(widget);
    widget->setFocusProxy(sizeType_);
    sizeType_->setObjectName(QStringLiteral("FontSizeType"));
    sizeType_->setAccessibleName(tr("Kind of size"));
    sizeType_->addItem(tr("Proportional"), true);
    sizeType_->addItem(tr("Fixed"), false);
    relativeSize_->setObjectName(QStringLiteral("RelativeFontSize"));
    relativeSize_->setAccessibleName(tr("Size in per cent"));
    relativeSize_->load(StartPercent);
    relativeTo_->setObjectName(QStringLiteral("FontRelativeSize"));
    relativeTo_->setAccessibleName(tr("Side of the photo the size follows"));
    for (const QLatin1String side : Sides) relativeTo_->addItem(side);
    fixedSize_->setObjectName(QStringLiteral("FontSize"));
    fixedSize_->setAccessibleName(tr("Size in pixels"));
    fixedSize_->load(StartPixels);
    usualSizes_->setObjectName(QStringLiteral("UsualSizes"));
    usualSizes_->setAccessibleName(tr("Usual sizes"));
    usualSizes_->setPlaceholderText(tr("Custom"));
    for (const int size : UsualSizes) usualSizes_->addItem(QString::number(size), size);

    QHBoxLayout* row = rowOf(widget);
    for (QWidget* part :
         std::initializer_list<QWidget*>{sizeType_, relativeSize_, relativeTo_, fixedSize_, usualSizes_}) {
        row->addWidget(part);
    }
    connect(sizeType_, &QComboBox::activated, this,
            [this](int chosen) { SetFontSizeType(sizeType_->itemData(chosen).toBool()); });
    for (const NumberField* field : {relativeSize_, fixedSize_}) {
        connect(field, &NumberField::valueChanged, this, [this](double size) {
            Q_EMIT edited([size](Watermark& record) { record.FontSize = std::llround(size); });
        });
    }
    connect(usualSizes_, &QComboBox::activated, this,
            [this](int chosen) { fixedSize_->setValue(usualSizes_->itemData(chosen).toInt()); });
    connect(relativeTo_, &QComboBox::activated, this, [this](int chosen) {
        Q_EMIT edited([side = QString(Sides[chosen])](Watermark& record) { record.FontRelativeSize = side; });
    });
    return widget;
}

QWidget* TextStyleGroup::makeStyles() {
    auto* widget = new QWidget(this);
    QHBoxLayout* row = rowOf(widget);
    row->setSpacing(2);
    styles_ = new QButtonGroup(widget);
    styles_->setExclusive(false);
    alignment_ = new QButtonGroup(widget);
    for (const StyleRow& style : Styles) {
        QToolButton* button = makeToggle(QLatin1String(style.name), tr(style.tip), widget);
        button->setText(QLatin1String(style.letter));
        QFont font = button->font();
        (font.*style.show)(true);
        button->setFont(font);
        const int side = 2 * fontMetrics().height();
        button->setMinimumWidth(side);
        styles_->addButton(button);
        row->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, field = style.field](bool on) {
            Q_EMIT edited([field, on](Watermark& record) { record.*field = on; });
        });
    }
    row->addSpacing(12);
    for (const AlignmentRow& alignment : Alignments) {
        QToolButton* button = makeToggle(alignment.icon, tr(alignment.tip), widget);
        button->setIcon(lineIcon(alignment.icon));
        alignment_->addButton(button, static_cast<int>(alignment.code));
        row->addWidget(button);
    }
    row->addStretch();
    connect(alignment_, &QButtonGroup::idClicked, this, [this](int code) {
        Q_EMIT edited([code](Watermark& record) { record.Alignment = static_cast<std::uint64_t>(code); });
    });
    return widget;
}

QWidget* TextStyleGroup::makeShadow() {
    auto* widget = new QWidget(this);
    color_ = new ColorWell(tr("Text Colour"), widget);
    shadow_ = new QCheckBox(tr("Sha&dow"), widget);
    shadowColor_ = new ColorWell(tr("Shadow Colour"), widget);
    widget->setFocusProxy(color_);
    color_->setObjectName(QStringLiteral("TextColor"));
    shadow_->setObjectName(QStringLiteral("Shadow"));
    shadowColor_->setObjectName(QStringLiteral("ShadowColor"));
    QHBoxLayout* row = rowOf(widget);
    row->addWidget(color_);
    row->addSpacing(12);
    row->addWidget(shadow_);
    row->addWidget(shadowColor_);
    row->addStretch();
    connect(color_, &ColorWell::colorChosen, this, [this](const Color& color) {
        Q_EMIT edited([color](Watermark& record) { record.TextColor = color; });
    });
    connect(shadow_, &QCheckBox::clicked, this, [this](bool on) {
        Q_EMIT edited([on, color = shadowColor_->color()](Watermark& record) {
            record.Shadow = on;
            if (on) record.ShadowColor = color;
        });
    });
    connect(shadowColor_, &ColorWell::colorChosen, this, [this](const Color& color) {
        Q_EMIT edited([color](Watermark& record) { record.ShadowColor = color; });
    });
    return widget;
}

QWidget* TextStyleGroup::makeEffect() {
    auto* widget = new QWidget(this);
    effect_ = new QComboBox(widget);
    transparentText_ = new QCheckBox(tr("Transparent &letters"), widget);
    widget->setFocusProxy(effect_);
    effect_->setObjectName(QStringLiteral("TextEffect"));
    effect_->addItem(tr("None"), 0);
    effect_->addItem(tr("Emboss"), Emboss);
    transparentText_->setObjectName(QStringLiteral("IsTextTransparent"));
    transparentText_->setToolTip(tr("Only the light and dark edges of embossed letters are drawn"));
    QHBoxLayout* row = rowOf(widget);
    row->addWidget(effect_);
    row->addSpacing(12);
    row->addWidget(transparentText_);
    row->addStretch();
    connect(effect_, &QComboBox::activated, this, [this](int chosen) {
        const std::int32_t effect = effect_->itemData(chosen).toInt();
        Q_EMIT edited([effect](Watermark& record) { record.TextEffect = effect; });
    });
    connect(transparentText_, &QCheckBox::clicked, this,
            [this](bool on) { Q_EMIT edited([on](Watermark& record) { record.UseTransparentColor = on; }); });
    return widget;
}

// Each kind of size has a field of its own, which keeps its number while the other one is used.
void TextStyleGroup::SetFontSizeType(bool isRelative) {
    const double size = (isRelative ? relativeSize_ : fixedSize_)->value();
    Q_EMIT edited([isRelative, size](Watermark& record) {
        if (record.IsRelative == isRelative) return;
        record.IsRelative = isRelative;
        record.FontSize = std::llround(size);
        if (isRelative && record.FontRelativeSize.isEmpty()) record.FontRelativeSize = Sides[0];
    });
}

void TextStyleGroup::loadSize(const Watermark& record) {
    sizeType_->setCurrentIndex(sizeType_->findData(record.IsRelative));
    (record.IsRelative ? relativeSize_ : fixedSize_)->load(static_cast<double>(record.FontSize));
    // Any other word means the height.
    const int side = relativeTo_->findText(record.FontRelativeSize);
    relativeTo_->setCurrentIndex(side < 0 ? 1 : side);
    usualSizes_->setCurrentIndex(usualSizes_->findData(QVariant(static_cast<int>(record.FontSize))));
    relativeSize_->setVisible(record.IsRelative);
    relativeTo_->setVisible(record.IsRelative);
    fixedSize_->setVisible(!record.IsRelative);
    usualSizes_->setVisible(!record.IsRelative);
}

void TextStyleGroup::load(const Watermark& record) {
    family_->load(record.FontFamily);
    loadSize(record);
    for (std::size_t i = 0; i < std::size(Styles); ++i) {
        styles_->buttons().at(static_cast<qsizetype>(i))->setChecked(record.*Styles[i].field);
    }
    if (QAbstractButton* button = alignment_->button(static_cast<int>(record.Alignment))) {
        button->setChecked(true);
    } else if (QAbstractButton* checked = alignment_->checkedButton()) {
        alignment_->setExclusive(false);
        checked->setChecked(false);
        alignment_->setExclusive(true);
    }
    color_->load(record.TextColor.value_or(Color::black()));
    shadow_->setChecked(record.Shadow);
    shadowColor_->load(record.ShadowColor.value_or(Color::black()));
    effect_->setCurrentIndex(record.TextEffect == 0 ? 0 : 1);
    transparentText_->setChecked(record.UseTransparentColor);

    const bool isEmbossed = record.TextEffect != 0;
    transparentText_->setEnabled(isEmbossed);
    shadow_->setEnabled(!isEmbossed);
    shadow_->setToolTip(isEmbossed ? tr("Embossed letters cast no shadow") : QString());
    shadowColor_->setEnabled(!isEmbossed && record.Shadow);
}

}  // namespace zelto
