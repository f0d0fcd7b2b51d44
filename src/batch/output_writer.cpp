// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_writer.h"

#include "batch/lossless_photo.h"
#include "batch/output_name.h"
#include "batch/output_size.h"
#include "pictures/picture_names.h"
#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"
#include "pictures/resample.h"
#include "platform/path_parts.h"
#include "platform/whole_file.h"
#include "platform/words.h"
#include "render/composition.h"
#include "render/effect_diagnostics.h"
#include "render/photo_effects.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <limits>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(outputLog, "zelto.output", QtWarningMsg)

constexpr qint64 BytesPerPixel = 4;

constexpr QSize LargestGlance(960, 720);

// Whole pixels are picked first: smoothing all of a large photo would be felt.
QImage glanceOf(const QImage& picture) {
    const QSize size = picture.size().scaled(picture.size().boundedTo(LargestGlance), Qt::KeepAspectRatio);
    return picture.scaled(picture.size().boundedTo(size * 2), Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(size.expandedTo({1, 1}), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

std::optional<PictureFormat> formatOf(const QString& output) {
    return pictureFormatForExtension(pathExtension(lastPathComponent(output)));
}

bool isWrittenAsAnotherKind(const PhotoTask& task, const OutputOptions& options) {
    const QString kind = pathExtension(lastPathComponent(task.source)).toLower();
    return options.OutputFormat == SameAsSourceFormat && writtenExtension(kind) != kind;
}

PhotoWarning anotherKindWarning(const PhotoTask& task) {
    return {-1, QStringLiteral("format"),
            Words::tr("Files of the kind “%1” are not written here: the output is a JPEG.")
                .arg(pathExtension(lastPathComponent(task.source)).toLower())};
}

// The metadata, or none with a warning.
template <class Metadata>
Metadata givenOrWarned(PreparedPhoto& photo, Result<Metadata> metadata) {
    if (metadata) return *std::move(metadata);
    photo.warnings.push_back(
        {-1, QStringLiteral("metadata"),
         Words::tr("The photo was written without its metadata: %1").arg(metadata.error().message)});
    return {};
}

}  // namespace

struct OutputWriter::CombinedPdf {
    explicit CombinedPdf(WholeFile startedFile) : file(std::move(startedFile)), document(file.device()) {}

    WholeFile file;
    PdfDocument document;
};

OutputWriter::OutputWriter(Settings settings)
    : settings_(std::move(settings)),
      exiftool_(settings_.metadataJobs),
      metadata_(exiftool_, settings_.metadataTimeout) {}

OutputWriter::~OutputWriter() = default;

qint64 OutputWriter::memoryNeeded(const PhotoTask& task) {
    const Result<PictureNeeds> photo = readPictureNeeds(task.source);
    if (!photo) return 0;
    // The photo and, at its worst moment, a second picture made from it; a frame makes two larger ones.
    const std::optional<PhotoEffects>& effects = settings_.stack->Effects;
    const qint64 made =
        pixelCount(photo->size) +
        (effects ? 2 * pixelCount(sizeWithEffects(photo->size, *effects)) : pixelCount(photo->size));
    const QSize written = outputSize(photo->size, settings_.options);
    const qint64 resized =
        settings_.options.ResizeImage ? std::min(pixelCount(written), MaximumPicturePixels) : 0;
    qint64 memory = std::max(photo->memory, (made + resized) * BytesPerPixel);
    if (const std::optional<PictureFormat> format = formatOf(task.output)) {
        const QSize encoded = settings_.options.ResizeImage ? written
                              : effects                     ? sizeWithEffects(photo->size, *effects)
                                                            : photo->size;
        if (pixelCount(encoded) <= MaximumPicturePixels)
            memory = std::max(memory, pixelCount(encoded) * BytesPerPixel + memoryToEncode(*format, encoded));
    }
    return memory;
}

Result<PreparedPhoto> OutputWriter::prepare(const PhotoTask& task) {
    const std::optional<PictureFormat> format = formatOf(task.output);
    // Starting takes a while, which passes while the first photo is worked on.
    const MetadataWay metadata = format ? metadataWay(*format) : MetadataWay::None;
    if (metadata != MetadataWay::None) std::call_once(exiftoolIsExpected_, [this] { exiftool_.warmUp(); });
    // What an encoder takes is the chosen format's doing, not the file's: then only the machine limits it.
    constexpr qint64 AnyFile = std::numeric_limits<qint64>::max();
    const bool encoderIsHungry = format && memoryToEncode(*format, {1, 1}) > 0;
    const qint64 fileBytes = encoderIsHungry ? AnyFile : QFileInfo(task.source).size();
    if (Result<void> allowed = checkMemory(task.memory, fileBytes); !allowed)
        return tl::unexpected(std::move(allowed.error()));
    std::optional<JpegWay> way;
    if (settings_.options.JpegLossless && format == PictureFormat::Jpeg) {
        Result<PreparedPhoto> lossless = prepareLossless(task);
        if (lossless) return lossless;
        way = JpegWay{false, std::move(lossless.error().message)};
    }
    Result<PhotoScene> scene = buildPhotoScene(requestFor(task));
    if (!scene && scene.error().code == ErrorCode::NotFound)
        return fail(ErrorCode::Damaged, DamagedPictureMessage, task.source);
    if (!scene) return tl::unexpected(std::move(scene.error()));

    const OutputOptions& options = settings_.options;
    if (!format) {
        return fail(ErrorCode::CannotWrite,
                    Words::tr("“%1” has no extension of a format that can be written.").arg(task.output),
                    task.output);
    }
    const QSize size = outputSize(scene->photoSize, options);
    if (size.isEmpty() || pixelCount(size) > MaximumPicturePixels) {
        return fail(
            ErrorCode::InvalidValue,
            Words::tr("A size of %1 × %2 pixels cannot be written.").arg(size.width()).arg(size.height()),
            task.source);
    }

    PreparedPhoto photo;
    photo.jpeg = std::move(way);
    photo.lastAutoNumber = scene->lastAutoNumber;
    photo.warnings = warningsOf(*scene);
    if (isWrittenAsAnotherKind(task, options)) photo.warnings.push_back(anotherKindWarning(task));
    if (settings_.strict && !photo.warnings.empty()) return photo;
    EncodeOptions encoding{static_cast<int>(std::clamp<std::int64_t>(options.JPEGQuality, 0, 100)),
                           scene->dpiX, scene->dpiY};
    const double dpi = scene->dpiX;
    QImage picture = MakeWatermarkImage(*std::move(scene), *settings_.stack);
    if (!picture.isNull() && isGlanceDue(task.row)) photo.glance = glanceOf(picture);
    if (options.ResizeImage) picture = resizedImage(picture, size);
    if (picture.isNull()) return tl::unexpected(notEnoughMemory(task.source));
    photo.size = picture.size();
    if (combinesIntoOnePdf(options)) {
        Result<PdfPage> page = encodePdfPage(picture);
        if (!page) return tl::unexpected(std::move(page.error()));
        photo.page = std::move(*page);
    } else {
        if (metadata == MetadataWay::AsBlocks) {
            encoding.metadata = givenOrWarned(
                photo, metadata_.blocksFor(
                           picture, {{}, task.source, options.ExifDataToInclude, dpi, settings_.copyright}));
        }
        Result<QByteArray> file = encodePicture(picture, *format, encoding);
        if (!file) return tl::unexpected(std::move(file.error()));
        photo.file = std::move(*file);
        if (metadata == MetadataWay::IntoFile)
            addMetadata(
                photo, [&] { return picture; }, dpi, task.source);
    }
    return photo;
}

PhotoRequest OutputWriter::requestFor(const PhotoTask& task) const {
    return {.path = task.source,
            .row = task.row,
            .listSize = task.listSize,
            .batchRunning = true,
            .final = true,
            .now = task.now,
            .locale = settings_.locale,
            .stack = settings_.stack,
            .logos = logos_};
}

Result<PreparedPhoto> OutputWriter::prepareLossless(const PhotoTask& task) {
    return makeLosslessPhoto(requestFor(task), settings_.options).map([&](LosslessPhoto lossless) {
        PreparedPhoto photo;
        photo.jpeg = JpegWay{true};
        photo.size = lossless.scene.photoSize;
        photo.lastAutoNumber = lossless.scene.lastAutoNumber;
        photo.warnings = warningsOf(lossless.scene);
        photo.file = std::move(lossless.file);
        // There is no picture of the whole photo but in the file.
        const auto reduced = [file = photo.file] {
            return decodeReduced(file, LargestGlance).value_or(Picture()).image;
        };
        if (isGlanceDue(task.row)) photo.glance = glanceOf(reduced());
        addMetadata(photo, reduced, lossless.scene.dpiX, task.source);
        return photo;
    });
}

void OutputWriter::addMetadata(PreparedPhoto& photo, const std::function<QImage()>& picture, double dpi,
                               const QString& source) {
    QByteArray complete = givenOrWarned(
        photo, metadata_.CopyExifDataTo(
                   photo.file, picture,
                   {{}, source, settings_.options.ExifDataToInclude, dpi, settings_.copyright}));
    if (!complete.isEmpty()) photo.file = std::move(complete);
}

// A photo earlier in the list than the last one with a glance will be written before that one: it gets one too.
bool OutputWriter::isGlanceDue(qint64 row) {
    using namespace std::chrono_literals;
    if (!settings_.showGlance) return false;
    const auto now = std::chrono::steady_clock::now();
    const std::lock_guard lock(glanceMutex_);
    if (now < nextGlance_ && row > glanceRow_) return false;
    nextGlance_ = now + 500ms;
    glanceRow_ = row;
    return true;
}

Result<void> OutputWriter::commit(const PhotoTask& task, PreparedPhoto photo) {
    if (!photo.glance.isNull()) settings_.showGlance(task.row, photo.glance);
    // Held open rather than remembered by name: its output may be about to take its place.
    if (settings_.stack->Effects) {
        if (Result<KeptFile> kept = KeptFile::keep(task.source)) effectPhoto_ = *std::move(kept);
    }
    return photo.page ? addPage(*photo.page) : writeFile(task, photo);
}

Result<void> OutputWriter::writeFile(const PhotoTask& task, const PreparedPhoto& photo) {
    const QString folder = withoutLastPathComponent(task.output);
    if (!startedFolders_.contains(folder)) {
        startedFolders_.insert(folder);
        // Only a kept structure makes folders; where one cannot be made, writing the file tells.
        if (settings_.options.KeepDirectoryStructure) QDir().mkpath(folder);
        removeAbandonedFiles(folder);
    }
    return replaceFile(task.output, photo.file);
}

Result<void> OutputWriter::addPage(const PdfPage& page) {
    if (!combinedPdf_) {
        Result<WholeFile> file = WholeFile::startIn(settings_.options.OutputPath);
        if (!file) return tl::unexpected(std::move(file.error()));
        combinedPdf_ = std::make_unique<CombinedPdf>(*std::move(file));
    }
    return combinedPdf_->document.addPage(page);
}

Result<QString> OutputWriter::finishCombinedPdf() {
    const std::unique_ptr<CombinedPdf> pdf = std::move(combinedPdf_);
    if (!pdf) return QString();
    const QString path = combinedPdfPath(settings_.options.OutputPath);
    return pdf->document.finish().and_then([&] { return pdf->file.commit(path); }).map([&] { return path; });
}

void OutputWriter::takeOver(PhotoProcessor& earlier) {
    if (auto* writer = dynamic_cast<OutputWriter*>(&earlier)) combinedPdf_ = std::move(writer->combinedPdf_);
}

void OutputWriter::settle() {
    if (const auto photo = std::exchange(effectPhoto_, std::nullopt)) {
        // Nobody waits for these pictures: where the home folder takes none, the outputs are as good. They are made from
        // the file once more, since keeping those of every photo that might be the last would cost each run the memory
        // of one.
        const Result<void> written = writeEffectDiagnosticsOf(photo->path(), *settings_.stack);
        if (!written) qCInfo(outputLog, "%s", qUtf8Printable(written.error().message));
    }
}

}  // namespace zelto
