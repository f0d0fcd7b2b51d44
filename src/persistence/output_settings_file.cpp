// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/output_settings_file.h"

#include "persistence/xml_fields.h"
#include "pictures/picture_writer.h"
#include "platform/file_reference.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr auto OutputRoot = "OutputSettings"_L1;

// More pixels or per cent than any picture can have; products with it must not overflow.
constexpr qint64 MaximumSize = 1'000'000'000;

// --- Forms of a value that its type alone does not tell. Not every compiler guesses their parameters without a guide.

// From 0 to 100.
template <class Number>
struct Quality {
    Number& value;
};
template <class Number>
Quality(Number&) -> Quality<Number>;

// A size in pixels; an empty field is 0.
template <class Number>
struct Size {
    Number& value;
};
template <class Number>
Size(Number&) -> Size<Number>;

// Negative ones count as 100.
template <class Number>
struct Percentage {
    Number& value;
};
template <class Number>
Percentage(Number&) -> Percentage<Number>;

// A number from 0 to `last`; any other is passed over.
template <class Number>
struct Choice {
    Number& value;
    qint64 last;
};
template <class Number>
Choice(Number&, qint64) -> Choice<Number>;

// A format that can be written, in any letter case; any other is passed over.
template <class Text>
struct FormatName {
    Text& value;
};
template <class Text>
FormatName(Text&) -> FormatName<Text>;

// A reference to the output folder, whose path takes the place of the stored one while it leads somewhere.
template <class Options>
struct FolderReference {
    Options& options;
};
template <class Options>
FolderReference(Options&) -> FolderReference<Options>;

qint64 limitedSize(const QString& text) {
    return std::clamp<qint64>(toInteger(text, 0), 0, MaximumSize);
}

template <class Number>
QString toText(const Quality<Number>& quality) {
    return QString::number(quality.value);
}
void fromText(const QString& text, Quality<std::int64_t> quality) {
    quality.value = std::min<qint64>(limitedSize(text), 100);
}

template <class Number>
QString toText(const Size<Number>& size) {
    return size.value == 0 ? QString() : QString::number(size.value);
}
void fromText(const QString& text, Size<std::int64_t> size) {
    size.value = limitedSize(text);
}

template <class Number>
QString toText(const Percentage<Number>& percentage) {
    return QString::number(percentage.value);
}
void fromText(const QString& text, Percentage<std::int64_t> percentage) {
    const qint64 value = toInteger(text, 0);
    percentage.value = value < 0 ? 100 : std::min(value, MaximumSize);
}

template <class Number>
QString toText(const Choice<Number>& choice) {
    return QString::number(choice.value);
}
void fromText(const QString& text, Choice<std::int64_t> choice) {
    const qint64 value = toInteger(text, -1);
    if (value >= 0 && value <= choice.last) choice.value = value;
}

template <class Text>
QString toText(const FormatName<Text>& format) {
    return format.value;
}
void fromText(const QString& text, FormatName<QString> format) {
    if (text == SameAsSourceFormat) format.value = text;
    if (pictureFormatForExtension(text)) format.value = text.toLower();
}

template <class Options>
QString toText(const FolderReference<Options>& folder) {
    return QString::fromLatin1(folder.options.OutputFolderData.toBase64());
}
void fromText(const QString& text, FolderReference<OutputOptions> folder) {
    const QByteArray reference = QByteArray::fromBase64(text.toLatin1());
    if (reference.isEmpty()) return;
    folder.options.OutputFolderData = reference;
    if (const auto path = resolveFileReference(reference)) folder.options.OutputPath = *path;
}

template <class Io, class S>
void settingsFields(Io& io, S& s) {
    auto& options = s.options;
    io.field("SavePath"_L1, options.OutputPath);
    io.field("OutputFolderData"_L1, FolderReference{options});
    io.field("OutputFormat"_L1, FormatName{options.OutputFormat});
    io.field("JpegQuality"_L1, Quality{options.JPEGQuality});
    io.field("Rename"_L1, options.Rename);
    io.field("RenameFormat"_L1, options.RenameFormat);
    io.field("Resize"_L1, options.ResizeImage);
    io.field("PreserveAspect"_L1, options.AspectRatio);
    io.field("ResizeMode"_L1, Choice{options.ResizeType, resize_type::LongerSide});
    io.field("PercentageW"_L1, Percentage{s.percentageWidth});
    io.field("PercentageH"_L1, Percentage{s.percentageHeight});
    io.field("AbsoluteW"_L1, Size{s.absoluteWidth});
    io.unread("AbsoluteH"_L1, Size{s.absoluteHeight});
    io.field("LongestSide"_L1, Size{options.LongestsideSize});
    io.field("ExifDataToInclude"_L1, Choice{options.ExifDataToInclude, exif_data::ExcludeAll});
    io.field("DontEnlarge"_L1, options.DontEnlargeSmallImage);
    io.field("CombineToSinglePDF"_L1, options.CombineToSinglePDF);
    io.field("MaintainDirectoryStructure"_L1, options.KeepDirectoryStructure);
    io.addition("JpegLossless"_L1, options.JpegLossless);
}

// The size fields that the options' width and height belong to; null for a way of resizing that has none.
struct SizeFields {
    std::int64_t OutputSettings::*width = nullptr;
    std::int64_t OutputSettings::*height = nullptr;
};

SizeFields chosenFields(const OutputSettings& settings) {
    switch (settings.options.ResizeType) {
        case resize_type::Percentage:
            return {&OutputSettings::percentageWidth, &OutputSettings::percentageHeight};
        case resize_type::Pixels:
            return {&OutputSettings::absoluteWidth, &OutputSettings::absoluteHeight};
        default:
            return {};
    }
}

void setFieldsFromOptions(OutputSettings& settings) {
    const auto [width, height] = chosenFields(settings);
    if (width == nullptr) return;
    settings.*width = settings.options.ResizeWidth;
    settings.*height = settings.options.ResizeHeight;
}

void setOptionsFromFields(OutputSettings& settings) {
    const auto [width, height] = chosenFields(settings);
    if (width == nullptr) return;
    settings.options.ResizeWidth = settings.*width;
    settings.options.ResizeHeight = settings.*height;
}

}  // namespace

OutputSettings startingOutputSettings() {
    OutputSettings settings;
    OutputOptions& options = settings.options;
    options.OutputFormat = SameAsSourceFormat;
    options.JPEGQuality = 90;
    options.RenameFormat = QStringLiteral("[O]");
    options.ResizeWidth = settings.percentageWidth;
    options.ResizeHeight = settings.percentageHeight;
    options.AspectRatio = true;
    options.DontEnlargeSmallImage = true;
    return settings;
}

QByteArray writeOutputSettingsDocument(const OutputSettings& settings) {
    OutputSettings written = settings;
    setFieldsFromOptions(written);
    return writeXml(OutputRoot, [&written](QXmlStreamWriter& writer) {
        FieldWriter fields(writer);
        settingsFields(fields, std::as_const(written));
    });
}

Result<void> saveOutputSettings(const OutputSettings& settings, const QString& path) {
    return writeWholeFile(path, writeOutputSettingsDocument(settings));
}

Result<OutputSettings> loadOutputSettings(const QString& path, OutputSettings initial) {
    const Result<XmlElement> root = readXmlFile(path).and_then(
        [&path](const QByteArray& document) { return readXml(document, OutputRoot, path); });
    if (!root) {
        if (root.error().code == ErrorCode::NotFound) return initial;
        return tl::unexpected(root.error());
    }
    setFieldsFromOptions(initial);
    FieldReader fields(*root);
    settingsFields(fields, initial);
    setOptionsFromFields(initial);
    return initial;
}

}  // namespace zelto
