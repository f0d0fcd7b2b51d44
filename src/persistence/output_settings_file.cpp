// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/output_settings_file.h"

#include "persistence/xml_document.h"
#include "pictures/picture_writer.h"
#include "platform/file_reference.h"
#include "platform/whole_file.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr auto RootName = "OutputSettings"_L1;

// More pixels or per cent than any picture can have; products with it must not overflow.
constexpr qint64 MaximumSize = 1'000'000'000;

QString number(qint64 value) {
    return QString::number(value);
}

// The text of a size field; an empty field is 0.
QString sizeField(qint64 value) {
    return value == 0 ? QString() : number(value);
}

qint64 size(const QString& text) {
    return std::clamp<qint64>(toInteger(text, 0), 0, MaximumSize);
}

qint64 percentage(const QString& text) {
    const qint64 value = toInteger(text, 0);
    return value < 0 ? 100 : std::min(value, MaximumSize);
}

// Sets `field` only to a value from 0 to `last`.
void choose(std::int64_t& field, const QString& text, qint64 last) {
    const qint64 value = toInteger(text, -1);
    if (value >= 0 && value <= last) field = value;
}

void readOutputFormat(OutputSettings& s, const QString& text) {
    if (text == SameAsSourceFormat || pictureFormatForExtension(text)) s.options.OutputFormat = text;
}

void readFolderReference(OutputSettings& s, const QString& text) {
    const QByteArray reference = QByteArray::fromBase64(text.toLatin1());
    if (reference.isEmpty()) return;
    s.options.OutputFolderData = reference;
    if (const auto path = resolveFileReference(reference)) s.options.OutputPath = *path;
}

struct Field {
    QLatin1String name;
    QString (*write)(const OutputSettings&);
    void (*read)(OutputSettings&, const QString&);  // null for what is never read back
};

using S = OutputSettings;
using T = QString;

template <bool OutputOptions::*Switch>
constexpr Field switchField(QLatin1String name) {
    return {name, [](const S& s) { return number(int{s.options.*Switch}); },
            [](S& s, const T& text) { s.options.*Switch = toBool(text, s.options.*Switch); }};
}

// In the order of the elements. A reference that leads somewhere comes after the path it overrides.
constexpr std::array<Field, 18> Fields = {{
    {"SavePath"_L1, [](const S& s) { return s.options.OutputPath; },
     [](S& s, const T& text) { s.options.OutputPath = text; }},
    {"OutputFolderData"_L1, [](const S& s) { return T::fromLatin1(s.options.OutputFolderData.toBase64()); },
     readFolderReference},
    {"OutputFormat"_L1, [](const S& s) { return s.options.OutputFormat; }, readOutputFormat},
    {"JpegQuality"_L1, [](const S& s) { return number(s.options.JPEGQuality); },
     [](S& s, const T& text) { s.options.JPEGQuality = std::min<qint64>(size(text), 100); }},
    switchField<&OutputOptions::Rename>("Rename"_L1),
    {"RenameFormat"_L1, [](const S& s) { return s.options.RenameFormat; },
     [](S& s, const T& text) { s.options.RenameFormat = text; }},
    switchField<&OutputOptions::ResizeImage>("Resize"_L1),
    switchField<&OutputOptions::AspectRatio>("PreserveAspect"_L1),
    {"ResizeMode"_L1, [](const S& s) { return number(s.options.ResizeType); },
     [](S& s, const T& text) { choose(s.options.ResizeType, text, resize_type::LongerSide); }},
    {"PercentageW"_L1, [](const S& s) { return number(s.percentageWidth); },
     [](S& s, const T& text) { s.percentageWidth = percentage(text); }},
    {"PercentageH"_L1, [](const S& s) { return number(s.percentageHeight); },
     [](S& s, const T& text) { s.percentageHeight = percentage(text); }},
    {"AbsoluteW"_L1, [](const S& s) { return sizeField(s.absoluteWidth); },
     [](S& s, const T& text) { s.absoluteWidth = size(text); }},
    {"AbsoluteH"_L1, [](const S& s) { return sizeField(s.absoluteHeight); }, nullptr},
    {"LongestSide"_L1, [](const S& s) { return sizeField(s.options.LongestsideSize); },
     [](S& s, const T& text) { s.options.LongestsideSize = size(text); }},
    {"ExifDataToInclude"_L1, [](const S& s) { return number(s.options.ExifDataToInclude); },
     [](S& s, const T& text) { choose(s.options.ExifDataToInclude, text, exif_data::ExcludeAll); }},
    switchField<&OutputOptions::DontEnlargeSmallImage>("DontEnlarge"_L1),
    switchField<&OutputOptions::CombineToSinglePDF>("CombineToSinglePDF"_L1),
    switchField<&OutputOptions::KeepDirectoryStructure>("MaintainDirectoryStructure"_L1),
}};

// The size fields that the options' width and height belong to; null for a way of resizing that has none.
struct SizeFields {
    std::int64_t OutputSettings::*width = nullptr;
    std::int64_t OutputSettings::*height = nullptr;
};

SizeFields chosenFields(const OutputSettings& settings) {
    switch (settings.options.ResizeType) {
        case resize_type::Percentage:
            return {&S::percentageWidth, &S::percentageHeight};
        case resize_type::Pixels:
            return {&S::absoluteWidth, &S::absoluteHeight};
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

Result<void> saveOutputSettings(const OutputSettings& settings, const QString& path) {
    OutputSettings written = settings;
    setFieldsFromOptions(written);
    return writeWholeFile(path, writeXml(RootName, [&written](QXmlStreamWriter& writer) {
                              for (const Field& field : Fields) {
                                  writeXmlElement(writer, field.name, field.write(written));
                              }
                          }));
}

Result<OutputSettings> loadOutputSettings(const QString& path, OutputSettings initial) {
    const Result<XmlElement> root = readXmlFile(path).and_then(
        [&path](const QByteArray& document) { return readXml(document, RootName, path); });
    if (!root) {
        if (root.error().code == ErrorCode::NotFound) return initial;
        return tl::unexpected(root.error());
    }
    setFieldsFromOptions(initial);
    for (const XmlElement& element : root->children) {
        const auto* const field = std::find_if(Fields.begin(), Fields.end(),
                                               [&element](const Field& f) { return element.name == f.name; });
        if (field != Fields.end() && field->read != nullptr) field->read(initial, element.text);
    }
    setOptionsFromFields(initial);
    return initial;
}

}  // namespace zelto
