// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/setting_text.h"

#include "cli/printable.h"
#include "platform/path_parts.h"
#include "platform/words.h"
#include "records/length_field.h"
#include "render/font_size.h"
#include "render/photo_filters.h"
#include "render/qt_color.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace zelto {
namespace {

// Lines of a name and what it is, the latter in one column.
class Facts {
  public:
    void add(const QString& name, const QString& value) {
        if (!value.isEmpty()) rows_.append({name, value});
    }
    QString text(const QString& indent) const {
        qsizetype width = 0;
        for (const auto& [name, value] : rows_) width = std::max(width, name.size());
        QString lines;
        for (const auto& [name, value] : rows_)
            lines += indent + name.leftJustified(width + 2) + printable(value) + QLatin1Char('\n');
        return lines;
    }

  private:
    QList<std::pair<QString, QString>> rows_;
};

// At most two decimals, and none that are zero.
QString plain(double number) {
    return QString::number(std::round(number * 100.0) / 100.0);
}

QString percent(double share) {
    return Words::tr("%1 %").arg(plain(share * 100.0));
}

QString pixels(double length) {
    return Words::tr("%1 pixels").arg(plain(length));
}

template <class Record>
QString length(const Record& record, const LengthField<Record>& field) {
    const std::optional<float>& share = record.*field.Share;
    return share ? Words::tr("%1 % of the shorter side").arg(plain(static_cast<double>(*share) * 100.0))
                 : pixels(static_cast<double>(record.*field.Pixels));
}

QString colorText(const std::optional<Color>& color) {
    if (!color) return Words::tr("none");
    const QColor shown = toQColor(*color);
    return shown.alpha() == 255 ? shown.name()
                                : Words::tr("%1, %2 opaque").arg(shown.name(), percent(shown.alphaF()));
}

QString listed(const QStringList& parts) {
    return parts.join(QStringLiteral(", "));
}

QString sideText(const QString& side) {
    if (side == photo_side::Height) return Words::tr("of the photo's height");
    if (side == photo_side::LongerSide) return Words::tr("of the photo's longer side");
    return Words::tr("of the photo's width");
}

QString placeText(const Watermark& record) {
    static constexpr std::array<const char*, 9> cells = {
        QT_TRANSLATE_NOOP("Words", "top left"),    QT_TRANSLATE_NOOP("Words", "top"),
        QT_TRANSLATE_NOOP("Words", "top right"),   QT_TRANSLATE_NOOP("Words", "left"),
        QT_TRANSLATE_NOOP("Words", "center"),      QT_TRANSLATE_NOOP("Words", "right"),
        QT_TRANSLATE_NOOP("Words", "bottom left"), QT_TRANSLATE_NOOP("Words", "bottom"),
        QT_TRANSLATE_NOOP("Words", "bottom right")};
    if (record.Position == CustomPosition) {
        return Words::tr("%1 from the left, %2 from the top")
            .arg(pixels(static_cast<double>(record.CustomPositionLeft)),
                 pixels(static_cast<double>(record.CustomPositionTop)));
    }
    if (record.Position < 1 || record.Position > static_cast<std::int32_t>(cells.size()))
        return Words::tr("unknown");
    return Words::tr(cells[static_cast<std::size_t>(record.Position - 1)]);
}

QString marginsText(const Watermark& record) {
    static constexpr std::array<const char*, 4> sides = {
        QT_TRANSLATE_NOOP("Words", "left %1"), QT_TRANSLATE_NOOP("Words", "top %1"),
        QT_TRANSLATE_NOOP("Words", "right %1"), QT_TRANSLATE_NOOP("Words", "bottom %1")};
    QStringList parts;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        const auto& field = length_field::Paddings[i];
        if (record.*field.Pixels != 0 || record.*field.Share)
            parts.append(Words::tr(sides[i]).arg(length(record, field)));
    }
    return listed(parts);
}

QString tilesText(const Watermark& record) {
    QStringList parts;
    if (record.HorizontalTiling)
        parts.append(Words::tr("across, gaps of %1").arg(length(record, length_field::HorizontalSpacing)));
    if (record.VerticalTiling)
        parts.append(Words::tr("down, gaps of %1").arg(length(record, length_field::VerticalSpacing)));
    return listed(parts);
}

QString fontText(const Watermark& record) {
    QStringList parts = {record.FontFamily};
    if (record.FontBold) parts.append(Words::tr("bold"));
    if (record.FontItalic) parts.append(Words::tr("italic"));
    if (record.FontUnderline) parts.append(Words::tr("underlined"));
    if (record.FontStrikethrough) parts.append(Words::tr("struck through"));
    return listed(parts);
}

void addText(Facts& facts, const Watermark& record) {
    const double size = fontSizeOf(record);
    facts.add(Words::tr("Font"), fontText(record));
    facts.add(Words::tr("Size"),
              record.IsRelative ? percent(size / 100.0) + QLatin1Char(' ') + sideText(record.FontRelativeSize)
                                : pixels(size));
    facts.add(Words::tr("Color"), colorText(record.TextColor));
    if (record.Shadow) facts.add(Words::tr("Shadow"), colorText(record.ShadowColor));
    if (record.TextEffect != text_effect::None) {
        facts.add(Words::tr("Effect"),
                  record.UseTransparentColor ? Words::tr("embossed, faces left out") : Words::tr("embossed"));
    }
}

QString logoSize(const Watermark& record) {
    if (!record.Resize) return Words::tr("its own");
    const auto width = static_cast<double>(record.ResizeWidth);
    if (record.ResizeFormat == logo_resize::Absolute)
        return Words::tr("%1 by %2").arg(pixels(width), pixels(static_cast<double>(record.ResizeHeight)));
    return percent(width) + QLatin1Char(' ') + sideText(record.ImageProportionalResize);
}

void addLogo(Facts& facts, const Watermark& record) {
    facts.add(Words::tr("File"), record.ImagePath);
    facts.add(Words::tr("Kept in the setting"), record.ImageData.isEmpty()
                                                    ? Words::tr("no")
                                                    : Words::tr("%1 bytes").arg(record.ImageData.size()));
    facts.add(Words::tr("Size"), logoSize(record));
    if (record.IsTransparent) facts.add(Words::tr("Left out"), colorText(record.TransparentColor));
    if (record.CreateBW) facts.add(Words::tr("Effect"), Words::tr("grayscale"));
}

QString side(bool isShare, float share, float fixed, const QString& of) {
    return isShare ? percent(static_cast<double>(share)) + QLatin1Char(' ') + of
                   : pixels(static_cast<double>(fixed));
}

void addShape(Facts& facts, const Watermark& record) {
    facts.add(Words::tr("Width"), side(record.ResizeWidthByPercent, record.ResizeWidth, record.Width,
                                       sideText(photo_side::Width)));
    facts.add(Words::tr("Height"), side(record.ResizeHeightByPercent, record.ResizeHeight, record.Height,
                                        sideText(photo_side::Height)));
    if (record.ShapeType == shape_type::Polygon) facts.add(Words::tr("Sides"), QString::number(record.Sides));
    facts.add(
        Words::tr("Color"),
        record.SolidBackground
            ? colorText(record.SolidColor)
            : Words::tr("from %1 to %2").arg(colorText(record.FirstColor), colorText(record.SecondColor)));
}

void addQrCode(Facts& facts, const Watermark& record) {
    facts.add(Words::tr("Size"), side(record.ResizeFormat == qr_resize::Relative, record.ResizeWidth,
                                      record.ResizeWidth, sideText(photo_side::Width)));
    facts.add(Words::tr("Background"), colorText(record.ShadowColor));
}

QString shapeName(std::int32_t shape) {
    static constexpr std::array<const char*, 4> names = {
        QT_TRANSLATE_NOOP("Words", "Rectangle"), QT_TRANSLATE_NOOP("Words", "Ellipse"),
        QT_TRANSLATE_NOOP("Words", "Polygon"), QT_TRANSLATE_NOOP("Words", "Line")};
    return shape >= 1 && shape <= 4 ? Words::tr(names[static_cast<std::size_t>(shape - 1)])
                                    : Words::tr("Shape");
}

QString title(const Watermark& record) {
    const QString text = QString(record.Text).replace(QLatin1Char('\n'), QStringLiteral(" / "));
    switch (record.Type) {
        case watermark_type::Image:
            return Words::tr("Logo “%1”").arg(lastPathComponent(record.ImagePath));
        case watermark_type::Text:
            return Words::tr("Text “%1”").arg(text);
        case watermark_type::Shape:
            return shapeName(record.ShapeType);
        case watermark_type::QrCode:
            return Words::tr("QR code “%1”").arg(text);
        default:
            return Words::tr("unknown kind %1, which draws nothing").arg(record.Type);
    }
}

QString layerText(const Watermark& record, std::size_t number) {
    Facts facts;
    facts.add(Words::tr("Own name"), record.LabelName);
    if (record.Type == watermark_type::Text) addText(facts, record);
    if (record.Type == watermark_type::Image) addLogo(facts, record);
    if (record.Type == watermark_type::Shape) addShape(facts, record);
    if (record.Type == watermark_type::QrCode) addQrCode(facts, record);
    // A code is always opaque, so that it can be read.
    if (record.Type != watermark_type::QrCode)
        facts.add(Words::tr("Opacity"), percent(static_cast<double>(record.Transparency)));
    facts.add(Words::tr("Place"), placeText(record));
    facts.add(Words::tr("Margins"), marginsText(record));
    if (record.Rotation != 0) facts.add(Words::tr("Turned"), Words::tr("%1° clockwise").arg(record.Rotation));
    facts.add(Words::tr("Tiled"), tilesText(record));
    const QString heading = QStringLiteral("%1. %2").arg(number).arg(printable(title(record)));
    return QLatin1Char('\n') + (record.IsEnabled ? heading : Words::tr("%1 (switched off)").arg(heading)) +
           QLatin1Char('\n') + facts.text(QStringLiteral("   "));
}

QString borderText(const PhotoEffects& effects) {
    QStringList widths;
    for (const auto& field : length_field::Thicknesses) widths.append(length(effects, field));
    const bool isEven =
        std::all_of(widths.begin(), widths.end(), [&](const QString& width) { return width == widths[0]; });
    const QString color = colorText(effects.BorderColor);
    const QString text = isEven ? Words::tr("%1 on all sides, %2").arg(widths[0], color)
                                : Words::tr("top %1, left %2, right %3, bottom %4, %5")
                                      .arg(widths[0], widths[1], widths[2], widths[3], color);
    return effects.ApplyWatermarkOnBorder ? Words::tr("%1; watermarks may cover it").arg(text) : text;
}

void addEffects(Facts& facts, const PhotoEffects& effects) {
    facts.add(Words::tr("Border"), borderText(effects));
    if (!effects.EnableShadow) return;
    facts.add(Words::tr("Shadow"),
              Words::tr("blur %1, distance %2, direction %3°, %4")
                  .arg(length(effects, length_field::BlurRadius), length(effects, length_field::Distance),
                       QString::number(effects.Direction), colorText(effects.ShadowColor)));
}

}  // namespace

QString settingText(const WatermarkStack& stack, const QString& name) {
    Facts facts;
    if (stack.SelectedFilter != 0) facts.add(Words::tr("Filter"), GetFilterName(stack.SelectedFilter));
    if (stack.Effects) addEffects(facts, *stack.Effects);
    if (stack.Metadata)
        facts.add(Words::tr("Copyright"), Words::tr("your copyright data go into the outputs"));
    QString text = Words::tr("Setting “%1”").arg(printable(name)) + QLatin1Char('\n') + facts.text({});
    for (std::size_t i = 0; i < stack.Watermarks.size(); ++i) text += layerText(stack.Watermarks[i], i + 1);
    return text;
}

}  // namespace zelto
