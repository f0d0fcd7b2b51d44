// SPDX-License-Identifier: GPL-3.0-or-later
#include "targets.h"

#include "batch/output_name.h"
#include "macros/macro_expander.h"
#include "macros/macro_list.h"
#include "metadata/embedded_pictures.h"
#include "metadata/exiftool_process.h"
#include "metadata/image_properties.h"
#include "metadata/output_parts.h"
#include "metadata/recorded_resolution.h"
#include "persistence/copyright_file.h"
#include "persistence/output_settings_file.h"
#include "persistence/setting_file.h"
#include "pictures/color_profile.h"
#include "pictures/exif_facts.h"
#include "pictures/jpeg_rewriter.h"
#include "pictures/picture_kind.h"
#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QRegion>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace zelto {
namespace {

void promise(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "not kept: %s\n", what);
    std::abort();
}

// The input as a file, for readers that take a path.
QString fileOf(QByteArrayView input) {
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("input"));
    QFile file(path);
    promise(file.open(QIODevice::WriteOnly) && file.write(input.data(), input.size()) == input.size(),
            "the temporary folder takes a file");
    return path;
}

QString textOf(QByteArrayView input) {
    return QString::fromUtf8(input);
}

template <PictureKind Kind>
void readPictureOf(QByteArrayView input) {
    if (pictureKindOf(input) != Kind) return;
    const Result<Picture> picture = decodePicture(input.toByteArray());
    if (!picture) {
        promise(picture.error().code == ErrorCode::Damaged, "a bad picture is damaged and nothing else");
        return;
    }
    const QImage::Format format = picture->image.format();
    promise(format == QImage::Format_RGB32 || format == QImage::Format_ARGB32_Premultiplied,
            "one of two formats");
    promise(picture->dpiX >= 1.0 && picture->dpiY >= 1.0, "a resolution makes sense");
    promise(pixelCount(picture->image.size()) * 4 <= memoryAllowed(input.size()), "memory is bounded");
    const Result<QSize> size = readPictureSize(fileOf(input));
    // LibRaw goes by memory that it has not set where values are missing, so it may refuse what it took before.
    promise(size == picture->image.size() || (picture->isRawPreview && !size), "its headers tell its size");
}

// In small too, as the list of photos shows it.
void readJpeg(QByteArrayView input) {
    readPictureOf<PictureKind::Jpeg>(input);
    if (pictureKindOf(input) != PictureKind::Jpeg) return;
    constexpr QSize Bound(90, 60);
    const Result<Picture> small = decodeReduced(input.toByteArray(), Bound);
    if (!small) return;
    const QSize size = small->image.size();
    const bool covers = size.width() >= Bound.width() || size.height() >= Bound.height();
    promise(covers || decodePicture(input.toByteArray()).value_or(Picture()).image.size() == size,
            "it covers what is wanted, or is whole");
}

// Whether two pictures are the same but for some areas, and the units around them that the marks there may reach.
bool isSameBut(const std::vector<QRect>& areas, const QImage& one, const QImage& other) {
    constexpr int Reach = 2 * 4 * 8;  // pixels: two of the largest units
    QRegion kept(one.rect());
    for (const QRect& area : areas) kept -= area.adjusted(-Reach, -Reach, Reach, Reach);
    return std::all_of(kept.begin(), kept.end(),
                       [&](const QRect& part) { return one.copy(part) == other.copy(part); });
}

// Drawn on in a corner, across a middle and at an edge: what comes out is that JPEG, untouched elsewhere.
void rewriteJpeg(QByteArrayView input) {
    if (pictureKindOf(input) != PictureKind::Jpeg) return;
    auto file = std::make_unique<QBuffer>();
    file->setData(input.toByteArray());
    file->open(QIODevice::ReadOnly);
    const Result<std::unique_ptr<JpegRewriter>> jpeg = JpegRewriter::open(std::move(file));
    if (!jpeg) return;
    const QSize size = (*jpeg)->size();
    const std::vector<QRect> areas = {{0, 0, 9, 5},
                                      {size.width() / 2, size.height() / 2, 40, 700},
                                      {-3, size.height() - 2, size.width() + 6, 1}};
    const Result<QByteArray> written = (*jpeg)->rewrite(areas, [&](QImage& part, QPoint corner) {
        QPainter painter(&part);
        for (const QRect& area : areas) painter.fillRect(area.translated(-corner), QColor(200, 30, 90, 180));
    });
    if (!written) return;
    const Result<Picture> picture = decodePicture(*written);
    promise(picture && picture->image.size() == size, "what is written is the photo");
    constexpr std::int64_t MostCompared = 1 << 22;  // pixels
    if (pixelCount(size) > MostCompared) return;
    const Result<Picture> before = decodePicture(input.toByteArray());
    promise(!before || isSameBut(areas, before->image, picture->image),
            "what is not drawn on stays as it is");
}

// Raw files that are TIFF files within are told by more than their beginning. Once more with a tail: in a small file a
// read that is too long for its buffer ends before it does harm.
void readRaw(QByteArrayView input) {
    constexpr qsizetype Tail = 1 << 16;
    const QByteArray longer = input.toByteArray() + QByteArray(Tail, '\0');
    for (const QByteArrayView bytes : {input, QByteArrayView(longer)}) {
        const PictureKind kind = pictureKindOf(bytes);
        if (kind == PictureKind::Raw) readPictureOf<PictureKind::Raw>(bytes);
        if (kind == PictureKind::Tiff) readPictureOf<PictureKind::Tiff>(bytes);
    }
}

// Every kind of pixel by the profile.
void readProfile(QByteArrayView input) {
    const QByteArray profile = input.toByteArray();
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBX64,
                                        QImage::Format_Grayscale8, QImage::Format_Grayscale16}) {
        QImage picture(16, 16, format);
        picture.fill(Qt::darkCyan);
        promise(convertedToSrgb(picture, profile).size() == picture.size(), "a profile takes no pixel");
    }
    for (const InkScale inks : {InkScale::FullIs0, InkScale::FullIs255}) {
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(0x20406080);
        convertCmykToSrgb(picture, inks, profile);
        promise((picture.pixel(3, 3) >> 24) == 0xFF, "CMYK becomes opaque");
    }
}

// A photo's metadata, as an EXIF block and as a whole file, listed and told by each of its macros.
void readMetadata(QByteArrayView input) {
    const ExifFacts facts = readExifFacts(input);
    promise(facts.orientation >= 1 && facts.orientation <= 8, "an orientation is one of eight");
    MacroContext context;
    context.photoPath = fileOf(input);
    context.locale = QLocale::c();
    context.properties = std::make_shared<const LazyImageProperties>(context.photoPath);
    QString text;
    for (const Macro& macro : metadataMacros(context.properties->get())) text += macro.MacroName;
    ParseMacros(text, context);
}

void expandMacros(QByteArrayView input) {
    MacroContext context;
    context.photoPath = QStringLiteral("/photos/a.jpg");
    context.now = QDateTime(QDate(2024, 2, 29), QTime(12, 30), Qt::UTC);
    context.locale = QLocale::c();
    context.listSize = 7;
    ParseMacros(textOf(input), context);
}

void readSetting(QByteArrayView input) {
    const Result<WatermarkStack> stack = readSettingDocument(input.toByteArray(), QStringLiteral("input"));
    if (!stack) return;
    const Result<WatermarkStack> again =
        readSettingDocument(writeSettingDocument(*stack), QStringLiteral("written"));
    promise(again && again->Watermarks.size() == stack->Watermarks.size(),
            "what was read can be written and read");
}

void readCopyright(QByteArrayView input) {
    CopyRightMetaData metadata;
    if (!LoadMetadata(metadata, fileOf(input))) return;
    const QString path = fileOf({});
    promise(SaveCopyRightMetadata(metadata, path) && LoadMetadata(metadata, path),
            "what was read can be written");
}

void readOptions(QByteArrayView input) {
    if (const auto settings = loadOutputSettings(fileOf(input), {}))
        outputExtension(QStringLiteral("/a.jpg"), settings->options);
}

void fillRenamePattern(QByteArrayView input) {
    OutputOptions options;
    options.OutputFormat = SameAsSourceFormat;
    options.Rename = true;
    options.RenameFormat = textOf(input);
    options.OutputPath = QStringLiteral("/out");
    const OutputPlace place{QStringLiteral("/photos/a.jpg"), 3, QDate(2024, 2, 29)};
    const QString name = outputName(place, options) + outputExtension(place.sourcePath, options);
    promise(!name.contains(u'/') && name != QLatin1String("..") && name != QLatin1String("."),
            "a name is no path");
}

// Arguments, one a line of the input, of which none may end the command or start another.
void writeExiftoolCommand(QByteArrayView input) {
    QStringList arguments;
    for (const QByteArray& line : input.toByteArray().split('\1')) arguments.append(textOf(line));
    const Result<QByteArray> command = exiftoolCommand(arguments, 5);
    if (!command) return;
    promise(command->endsWith("-execute5\n"), "a command is executed");
    const QByteArray body = command->chopped(10);
    promise(body.isEmpty() || body.endsWith('\n'), "each argument has a line");
    const qsizetype given = arguments.filter(QRegularExpression(QStringLiteral("^-execute"))).size();
    const QList<QByteArray> lines = body.split('\n');
    const auto isCommand = [](const QByteArray& line) { return line.startsWith("-execute"); };
    promise(std::ranges::count_if(lines, isCommand) <= given, "no value becomes an argument");
}

// A file that exiftool has left in the place of a stand-in. What is taken of it leaves the picture as it was.
void takeExiftoolsAnswer(QByteArrayView input) {
    static const QImage picture = [] {
        QImage drawn(24, 16, QImage::Format_RGB32);
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = 0; x < drawn.width(); ++x) drawn.setPixel(x, y, qRgb(x * 10, y * 15, 128));
        }
        return drawn;
    }();
    static const QByteArray outputs[] = {encodePicture(picture, PictureFormat::Jpeg, {}).value(),
                                         encodePicture(picture, PictureFormat::Tiff, {}).value()};
    const QByteArray filled = input.toByteArray();
    recordsResolution(filled, 72.0);
    holdsPosition(filled);
    hasTrailer(filled);
    holdsPictureAsText(filled);
    const QByteArray& output = outputs[filled.startsWith("\xFF\xD8") ? 0 : 1];
    Result<QByteArray> complete = withMetadataOf(filled, output);
    if (!complete) return;
    const qsizetype size = complete->size();
    replaceEmbeddedPictures(*complete, metadataRanges(*complete), [] { return picture; });
    promise(complete->size() == size, "small pictures move nothing");
    const Result<Picture> left = decodePicture(*complete);
    promise(left.has_value(), "a complete output can be read");
    promise(left->image.size() == picture.size() || left->image.size() == picture.size().transposed(),
            "it has its size");
}

constexpr FuzzTarget Targets[] = {
    {"jpeg", readJpeg},
    {"png", readPictureOf<PictureKind::Png>},
    {"tiff", readPictureOf<PictureKind::Tiff>},
    {"gif", readPictureOf<PictureKind::Gif>},
    {"bmp", readPictureOf<PictureKind::Bmp>},
    {"webp", readPictureOf<PictureKind::Webp>},
    {"jpeg-lossless", rewriteJpeg},
    {"heif", readPictureOf<PictureKind::Heif>},
    {"jxl", readPictureOf<PictureKind::Jxl>},
    {"raw", readRaw},
    {"profile", readProfile},
    {"metadata", readMetadata},
    {"macros", expandMacros},
    {"setting", readSetting},
    {"copyright", readCopyright},
    {"options", readOptions},
    {"rename", fillRenamePattern},
    {"exiftool", writeExiftoolCommand},
    {"answer", takeExiftoolsAnswer},
};

}  // namespace

std::span<const FuzzTarget> fuzzTargets() {
    return Targets;
}

}  // namespace zelto
