// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_transfer.h"

#include "metadata/embedded_pictures.h"
#include "metadata/output_parts.h"
#include "metadata/recorded_resolution.h"
#include "metadata/webp_chunks.h"
#include "pictures/jpeg_decoder.h"
#include "pictures/picture_kind.h"
#include "platform/kept_file.h"
#include "platform/whole_file.h"
#include "platform/words.h"
#include "records/output_options.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace zelto {
namespace {

using Clock = std::chrono::steady_clock;

// Behind "-tagsfromfile" a "%" starts a placeholder, and none can be escaped; no argument can hold a line break.
bool isUnsafeSource(const QString& path) {
    return std::any_of(path.begin(), path.end(), [](QChar c) { return c == u'%' || c.unicode() < 0x20; });
}

// exiftool counts a file as updated, too, where it could not read the photo that the metadata were to come from.
bool missesSource(const QString& answer) {
    return answer.contains(QLatin1String("Error opening file")) ||
           (answer.contains(QLatin1String("format error")) &&
            answer.contains(QLatin1String("No writable tags set")));
}

// What exiftool said, as much of it as fits a message and nothing that would work on a terminal.
QString excerpt(const QString& answer) {
    constexpr qsizetype Longest = 300;
    QString text = answer.simplified().left(Longest);
    text.removeIf([](QChar c) { return !c.isPrint(); });
    return text;
}

// A stand-in on the disk while exiftool works on it.
class StandInFile {
  public:
    StandInFile(QString path, ExiftoolPool& pool, Clock::time_point deadline)
        : path_(std::move(path)), pool_(pool), deadline_(deadline) {}
    ~StandInFile() { QFile::remove(path_); }
    StandInFile(const StandInFile&) = delete;
    StandInFile& operator=(const StandInFile&) = delete;

    Result<void> begin(const QByteArray& bytes) const {
        QFile file(path_);
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(file, bytes)) return {};
        return fail(ErrorCode::CannotWrite, file.errorString(), path_);
    }

    // What the file holds after one command.
    Result<QByteArray> after(const QStringList& arguments) const {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline_ - Clock::now());
        const Result<QString> answer = pool_.run(arguments, left);
        if (!answer) return tl::unexpected(answer.error());
        // A file that already is as it should be is told "unchanged".
        if (missesSource(*answer) || (!answer->contains(QLatin1String("1 image files updated")) &&
                                      !answer->contains(QLatin1String("1 image files unchanged")))) {
            return fail(ErrorCode::ProgramFailed,
                        Words::tr("exiftool did not write the metadata: %1").arg(excerpt(*answer)));
        }
        return readWholeFile(path_);
    }

  private:
    const QString path_;
    ExiftoolPool& pool_;
    const Clock::time_point deadline_;
};

QByteArray metadataOf(const QByteArray& file) {
    QByteArray metadata;
    for (const auto& [from, end] : metadataRanges(file)) metadata.append(file.data() + from, end - from);
    return metadata;
}

// In XMP positions have no tag of their own: whatever might be one is worth a command that deletes those that are.
bool mayHoldPosition(const QByteArray& file, const QByteArray& metadata) {
    constexpr const char* Words[] = {"GPS", "Gps", "gps", "itude", "oordinate"};
    return holdsPosition(file) || std::any_of(std::begin(Words), std::end(Words),
                                              [&](const char* word) { return metadata.contains(word); });
}

MetadataFaults faultsOf(const QByteArray& filled, const MetadataRequest& request) {
    const QByteArray metadata = metadataOf(filled);
    return {.resolution = !recordsResolution(filled, request.resolution),
            .positions = request.exifDataToInclude == exif_data::ExcludeGeolocation &&
                         mayHoldPosition(filled, metadata),
            .pictures = hasTrailer(filled) || holdsPictureAsText(metadata),
            .isJpeg = pictureKindOf(filled) == PictureKind::Jpeg};
}

// What neither the list nor the second command may have left in the file.
Result<QByteArray> withoutSecrets(QByteArray filled, const MetadataRequest& request) {
    if (request.exifDataToInclude == exif_data::ExcludeGeolocation && holdsPosition(filled))
        return fail(ErrorCode::ProgramFailed, Words::tr("exiftool did not remove the photo's position."));
    if (holdsPictureAsText(metadataOf(filled)))
        return fail(ErrorCode::ProgramFailed,
                    Words::tr("exiftool did not remove a picture from the photo's metadata."));
    return filled;
}

QByteArray withOwnSmallPictures(QByteArray file, const std::function<QImage()>& picture) {
    replaceEmbeddedPictures(file, metadataRanges(file), picture);
    return file;
}

}  // namespace

MetadataWay metadataWay(PictureFormat format) {
    switch (format) {
        case PictureFormat::Jpeg:
        case PictureFormat::Tiff:
            return MetadataWay::IntoFile;
        case PictureFormat::Webp:
        case PictureFormat::Avif:
        case PictureFormat::Heic:
        case PictureFormat::Jxl:
            return MetadataWay::AsBlocks;
        default:
            return MetadataWay::None;
    }
}

Result<QString> MetadataTransfer::privatePath() {
    const std::lock_guard lock(mutex_);
    if (!folder_) {
        Result<PrivateFolder> made = PrivateFolder::make();
        if (!made) return tl::unexpected(made.error());
        folder_ = *std::move(made);
    }
    return folder_->filePath(QStringLiteral("output%1").arg(++lastNumber_));
}

Result<QByteArray> MetadataTransfer::filled(const QByteArray& standIn, const std::function<QImage()>& picture,
                                            MetadataRequest request) {
    // An absolute path: none starts like an option, and exiftool's working folder is not this program's.
    request.source = QFileInfo(request.source).absoluteFilePath();
    std::optional<KeptFile> safeSource;
    if (isUnsafeSource(request.source)) {
        Result<KeptFile> kept = KeptFile::keep(request.source);
        if (!kept) return tl::unexpected(kept.error());
        safeSource = *std::move(kept);
        request.source = safeSource->path();
    }
    Result<QString> path = privatePath();
    if (!path) return tl::unexpected(path.error());
    request.output = *path;
    const StandInFile file(*path, pool_, Clock::now() + timeout_);
    return file.begin(standIn)
        .and_then([&] { return file.after(metadataArguments(request)); })
        .and_then([&](QByteArray first) -> Result<QByteArray> {
            const QStringList mend = mendArguments(request, faultsOf(first, request));
            return mend.isEmpty() ? Result<QByteArray>(std::move(first)) : file.after(mend);
        })
        .and_then([&](QByteArray mended) { return withoutSecrets(std::move(mended), request); })
        .map([&](QByteArray mended) { return withOwnSmallPictures(std::move(mended), picture); });
}

Result<QByteArray> MetadataTransfer::CopyExifDataTo(const QByteArray& output, const QImage& picture,
                                                    MetadataRequest request) {
    return CopyExifDataTo(
        output, [&] { return picture; }, std::move(request));
}

Result<QByteArray> MetadataTransfer::CopyExifDataTo(const QByteArray& output,
                                                    const std::function<QImage()>& picture,
                                                    MetadataRequest request) {
    return filled(standIn(output), picture, std::move(request)).and_then([&](const QByteArray& file) {
        return withMetadataOf(file, output);
    });
}

Result<MetadataBlocks> MetadataTransfer::blocksFor(const QImage& picture, MetadataRequest request) {
    return filled(
               smallestWebp(), [&] { return picture; }, std::move(request))
        .and_then([](const QByteArray& file) -> Result<MetadataBlocks> {
            if (!webpChunks(file))
                return fail(ErrorCode::ProgramFailed,
                            Words::tr("exiftool left a file that is not the one it was given."));
            return MetadataBlocks{exifOfWebp(file).toByteArray(), xmpOfWebp(file).toByteArray()};
        });
}

}  // namespace zelto
