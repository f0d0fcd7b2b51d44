// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/setting_file.h"

#include "persistence/xml_fields.h"
#include "platform/whole_file.h"
#include "platform/words.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;
using zelto::fromText;
using zelto::toText;

// --- Forms of a value that its type alone does not tell.

// A text whose "#" is stored as "&hash;". So a text that holds "&hash;" itself reads back with "#" there.
template <class Text>
struct HashText {
    Text& text;
};
template <class Text>
HashText(Text&) -> HashText<Text>;

// The photo side a size follows, as a number. Number 1 stands for every text but two: reading takes it for
// "Width", or leaves the field as it was constructed.
enum class SideOne { IsWidth, LeavesConstructed };
template <class Text>
struct Side {
    Text& side;
    SideOne one;
};
template <class Text>
Side(Text&, SideOne) -> Side<Text>;

// A fraction from 0 to 1.
template <class Number>
struct Fraction {
    Number& number;
};
template <class Number>
Fraction(Number&) -> Fraction<Number>;

// A switch stored the other way round.
template <class Bool>
struct Negated {
    Bool& value;
};
template <class Bool>
Negated(Bool&) -> Negated<Bool>;

template <class Text>
QString toText(const HashText<Text>& value) {
    return QString(value.text).replace(u'#', "&hash;"_L1);
}
void fromText(const QString& text, HashText<QString> value) {
    // Older files hold running numbers whose closing brackets were escaped twice.
    static const QRegularExpression escapedNumber(u"<<AUTO:(#*\\d*\\+*\\d*)&gt;&gt;"_s);
    value.text = QString(text).replace("&hash;"_L1, "#"_L1).replace(escapedNumber, u"<<AUTO:\\1>>"_s);
}

constexpr std::array<QLatin1String, 3> SideNames = {"Width"_L1, "Height"_L1, "Longer Side"_L1};

template <class Text>
QString toText(const Side<Text>& value) {
    const auto* const found = std::find(SideNames.begin(), SideNames.end(), value.side);
    return QString::number(found == SideNames.end() ? 1 : found - SideNames.begin() + 1);
}
void fromText(const QString& text, Side<QString> value) {
    const qint64 number = toInteger(text, 0);
    if (number < 1 || number > qint64(SideNames.size())) return;
    if (number == 1 && value.one == SideOne::LeavesConstructed) return;
    value.side = SideNames.at(static_cast<std::size_t>(number - 1));
}

template <class Number>
QString toText(const Fraction<Number>& value) {
    return toText(value.number);
}
void fromText(const QString& text, Fraction<float> value) {
    fromText(text, value.number);
    value.number = std::clamp(value.number, 0.0F, 1.0F);
}

void fromText(const QString& text, Negated<bool> value) {
    value.value = !toBool(text, !value.value);
}

// --- The fields, in the order of their elements. `W` and `E` are const for the writer.

// A text holds two of these: its own font's first, then the one every watermark has.
constexpr auto ProportionalResize = "ProportionalResize"_L1;

template <class Io, class W>
void textFields(Io& io, W& w) {
    io.field("Text"_L1, HashText{w.Text});
    io.group("Font"_L1, [&] {
        io.field("Name"_L1, w.FontFamily);
        io.field("Bold"_L1, w.FontBold);
        io.field("Italic"_L1, w.FontItalic);
        io.field("Underline"_L1, w.FontUnderline);
        io.field("Strike"_L1, w.FontStrikethrough);
        io.field("Size"_L1, w.FontSize);
        io.addition("SizeFraction"_L1, w.FontSizeFraction);
        io.field("IsRelative"_L1, w.IsRelative);
    });
    io.field("Shadow"_L1, w.Shadow);
    io.field("ShadowColor"_L1, w.ShadowColor);
    io.field("Color"_L1, w.TextColor);
    io.older("TextAlign"_L1, w.Alignment);
    io.field("Alignment"_L1, w.Alignment);
    io.field("TextEffect"_L1, w.TextEffect);
    io.older("UseTransParentColor"_L1, w.UseTransparentColor);
    io.field("UseTransparentColor"_L1, w.UseTransparentColor);
    io.field(ProportionalResize, Side{w.FontRelativeSize, SideOne::IsWidth});
}

template <class Io, class W>
void shapeFields(Io& io, W& w) {
    io.field("ShapeType"_L1, w.ShapeType);
    io.field("Sides"_L1, w.Sides);
    io.field("ResizeHeight"_L1, w.ResizeHeight);
    io.field("ResizeWidth"_L1, w.ResizeWidth);
    io.field("Width"_L1, w.Width);
    io.field("Height"_L1, w.Height);
    io.field("SolidColor"_L1, w.SolidColor);
    io.field("FirstColor"_L1, w.FirstColor);
    io.field("SecondColor"_L1, w.SecondColor);
    io.older("IsGradient"_L1, Negated{w.SolidBackground});
    io.field("SolidBackground"_L1, w.SolidBackground);
    io.field("ResizeWidthByPercent"_L1, w.ResizeWidthByPercent);
    io.field("ResizeHeightByPercent"_L1, w.ResizeHeightByPercent);
    io.older("GradientType"_L1, w.GradeintType);
    io.field("GradeintType"_L1, w.GradeintType);
}

template <class Io, class W>
void qrCodeFields(Io& io, W& w) {
    io.field("Text"_L1, w.Text);
    io.field("ResizeWidth"_L1, w.ResizeWidth);
    io.field("ResizeFormat"_L1, w.ResizeFormat);
    io.field("ShadowColor"_L1, w.ShadowColor);
}

template <class Io, class W>
void imageFields(Io& io, W& w) {
    io.field("LogoPath"_L1, w.ImagePath);
    io.field("ImageData"_L1, w.ImageData);
    io.older("ResizeImage"_L1, w.Resize);
    io.field("Resize"_L1, w.Resize);
    io.field("ResizebyWidth"_L1, w.ResizebyWidth);
    io.field("PreserverAspectRatio"_L1, w.PreserverAspectRatio);
    io.field("ResizeFormat"_L1, w.ResizeFormat);
    io.field("ResizeHeight"_L1, w.ResizeHeight);
    io.field("ResizeWidth"_L1, w.ResizeWidth);
    io.field("Width"_L1, w.Width);
    io.field("Height"_L1, w.Height);
    io.older("UseTransParentColor"_L1, w.IsTransparent);
    io.field("IsTransparent"_L1, w.IsTransparent);
    io.field("CreateBW"_L1, w.CreateBW);
    io.field("TransparentColor"_L1, w.TransparentColor);
}

template <class Io, class W>
void watermarkFields(Io& io, W& w) {
    switch (w.Type) {
        case watermark_type::Text:
            textFields(io, w);
            break;
        case watermark_type::Shape:
            shapeFields(io, w);
            break;
        case watermark_type::QrCode:
            qrCodeFields(io, w);
            break;
        default:
            imageFields(io, w);
            break;
    }
    io.field("IsEnabled"_L1, w.IsEnabled);
    io.field("Transparency"_L1, Fraction{w.Transparency});
    io.field("Rotation"_L1, w.Rotation);
    io.field("Position"_L1, w.Position);
    io.field("PaddingTop"_L1, w.PaddingTop);
    io.field("PaddingRight"_L1, w.PaddingRight);
    io.field("PaddingBottom"_L1, w.PaddingBottom);
    io.field("PaddingLeft"_L1, w.PaddingLeft);
    io.addition("PaddingTopShare"_L1, w.PaddingTopShare);
    io.addition("PaddingRightShare"_L1, w.PaddingRightShare);
    io.addition("PaddingBottomShare"_L1, w.PaddingBottomShare);
    io.addition("PaddingLeftShare"_L1, w.PaddingLeftShare);
    io.field("CustomPositionLeft"_L1, w.CustomPositionLeft);
    io.field("CustomPositionTop"_L1, w.CustomPositionTop);
    io.field("HTiling"_L1, w.HorizontalTiling);
    io.field("VTiling"_L1, w.VerticalTiling);
    io.field("HorizontalSpacing"_L1, w.HorizontalSpacing);
    io.field("VerticalSpacing"_L1, w.VerticalSpacing);
    io.addition("HorizontalSpacingShare"_L1, w.HorizontalSpacingShare);
    io.addition("VerticalSpacingShare"_L1, w.VerticalSpacingShare);
    io.field(ProportionalResize, Side{w.ImageProportionalResize, SideOne::LeavesConstructed});
    io.addition("LabelName"_L1, w.LabelName);
}

template <class Io, class E>
void effectsFields(Io& io, E& e) {
    io.group("Border"_L1, [&] {
        io.field("BorderColor"_L1, e.BorderColor);
        io.field("TopBorderThickness"_L1, e.TopThickness);
        io.field("LeftBorderThickness"_L1, e.LeftThickness);
        io.field("BottomBorderThickness"_L1, e.BottomThickness);
        io.field("RightBorderThickness"_L1, e.RightThickness);
        io.addition("TopBorderThicknessShare"_L1, e.TopThicknessShare);
        io.addition("LeftBorderThicknessShare"_L1, e.LeftThicknessShare);
        io.addition("BottomBorderThicknessShare"_L1, e.BottomThicknessShare);
        io.addition("RightBorderThicknessShare"_L1, e.RightThicknessShare);
        io.field("ApplyWatermarkOnBorder"_L1, e.ApplyWatermarkOnBorder);
    });
    io.group("Shadow"_L1, [&] {
        io.field("ShadowColor"_L1, e.ShadowColor);
        io.field("ShadowDirection"_L1, e.Direction);
        io.field("ShadowSpread"_L1, e.BlurRadius);
        io.field("ShadowSize"_L1, e.Distance);
        io.addition("ShadowSpreadShare"_L1, e.BlurRadiusShare);
        io.addition("ShadowSizeShare"_L1, e.DistanceShare);
        io.field("EnableShadow"_L1, e.EnableShadow);
    });
}

constexpr auto SettingRoot = "WatermarkList"_L1;
constexpr auto WatermarkName = "Watermark"_L1;
constexpr auto EffectsName = "Effects"_L1;
constexpr auto SelectedFilterName = "SelectedFilter"_L1;
constexpr auto MetadataName = "Metadata"_L1;
constexpr auto SwitchedOffName = "SwitchedOff"_L1;  // an addition; what is in it is applied by no reader

void writeWatermark(QXmlStreamWriter& writer, const Watermark& w) {
    const bool hasOwnFields = w.Type >= watermark_type::Text && w.Type <= watermark_type::QrCode;
    writer.writeStartElement(WatermarkName);
    writer.writeAttribute("Type"_L1, QString::number(hasOwnFields ? w.Type : watermark_type::Image));
    FieldWriter fields(writer);
    watermarkFields(fields, w);
    writer.writeEndElement();
}

// The watermark of an element; nothing when its type is not a number.
std::optional<Watermark> readWatermark(const XmlElement& element) {
    bool isNumber = false;
    const int type = element.type.trimmed().toInt(&isNumber);
    if (!isNumber) return std::nullopt;
    Watermark w(type);
    FieldReader fields(element);
    watermarkFields(fields, w);
    return w;
}

}  // namespace

QByteArray writeSettingDocument(const WatermarkStack& stack) {
    return writeXml(SettingRoot, [&stack](QXmlStreamWriter& writer) {
        for (const Watermark& w : stack.Watermarks) writeWatermark(writer, w);
        FieldWriter fields(writer);
        if (stack.Effects) {
            fields.group(EffectsName, [&] { effectsFields(fields, *stack.Effects); });
        }
        fields.field(SelectedFilterName, stack.SelectedFilter);
        if (stack.Metadata) fields.field(MetadataName, stack.Metadata);
        if (stack.Off == SwitchedOff()) return;
        fields.group(SwitchedOffName, [&] {
            if (stack.Off.Effects)
                fields.group(EffectsName, [&] { effectsFields(fields, *stack.Off.Effects); });
            fields.field(SelectedFilterName, stack.Off.SelectedFilter);
        });
    });
}

Result<WatermarkStack> readSettingDocument(const QByteArray& document, const QString& name) {
    const Result<XmlElement> root = readXml(document, SettingRoot, name);
    if (!root) return tl::unexpected(root.error());
    WatermarkStack stack;
    for (const XmlElement& element : root->children) {
        if (element.name == WatermarkName) {
            std::optional<Watermark> w = readWatermark(element);
            if (!w)
                return failAtLine(name, element.line,
                                  Words::tr("a watermark's type is missing or no number"));
            stack.Watermarks.push_back(*std::move(w));
        } else if (element.name == EffectsName) {
            FieldReader fields(element);
            effectsFields(fields, stack.Effects.emplace());
        } else if (element.name == SelectedFilterName) {
            fromText(element.text, stack.SelectedFilter);
        } else if (element.name == MetadataName) {
            stack.Metadata = toBool(element.text, true);
        } else if (element.name == SwitchedOffName) {
            FieldReader fields(element);
            fields.group(EffectsName, [&] { effectsFields(fields, stack.Off.Effects.emplace()); });
            fields.field(SelectedFilterName, stack.Off.SelectedFilter);
        }
    }
    return stack;
}

bool hasAnythingToSave(const WatermarkStack& stack) {
    return !stack.Watermarks.empty() || effectsOf(stack);
}

Result<void> SaveWatermarkSettings(const WatermarkStack& stack, const QString& path) {
    return hasAnythingToSave(stack) ? writeSettingFile(stack, path) : Result<void>();
}

Result<void> writeSettingFile(const WatermarkStack& stack, const QString& path) {
    const QByteArray document = writeSettingDocument(stack);
    if (document.size() > MaximumXmlSize) {
        return fail(ErrorCode::CannotWrite,
                    Words::tr("“%1” was not written: the logos are too large for a setting file.").arg(path),
                    path);
    }
    return writeWholeFile(path, document);
}

Result<WatermarkStack> LoadWatermarkSetting(const QString& path) {
    return readXmlFile(path).and_then(
        [&path](const QByteArray& document) { return readSettingDocument(document, path); });
}

}  // namespace zelto
