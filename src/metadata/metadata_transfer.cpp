// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_transfer.h"

#include "metadata/recorded_resolution.h"
#include "platform/kept_file.h"
#include "platform/whole_file.h"
#include "records/output_options.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <optional>

namespace zelto {
namespace {

constexpr QLatin1String TemporarySuffix("_exiftool_tmp");
constexpr qsizetype LongestFileName = 255;

bool hasControlCharacter(const QString& path) {
    return std::any_of(path.begin(), path.end(), [](QChar c) { return c.unicode() < 0x20; });
}

// Behind "-tagsfromfile" a "%" starts a placeholder, and none can be escaped.
bool isUnsafeSource(const QString& path) {
    return path.contains(u'%') || hasControlCharacter(path);
}

bool isUnsafeOutput(const QString& path) {
    const qsizetype temporaryName =
        QFile::encodeName(QFileInfo(path).fileName()).size() + TemporarySuffix.size();
    return hasControlCharacter(path) || temporaryName > LongestFileName;
}

// One left behind by a program that was killed would keep exiftool from this file for good.
void removeTemporary(const QString& output) {
    QFile::remove(output + TemporarySuffix);
}

// What exiftool said, as much of it as fits a message and nothing that would work on a terminal.
QString excerpt(const QString& answer) {
    constexpr qsizetype Longest = 300;
    QString text = answer.simplified().left(Longest);
    text.removeIf([](QChar c) { return !c.isPrint(); });
    return text;
}

Result<void> runCommand(const QStringList& arguments, const QString& output, ExiftoolPool& pool,
                        std::chrono::milliseconds timeout) {
    removeTemporary(output);
    const Result<QString> answer = pool.run(arguments, timeout);
    // A file that already is as it should be is told "unchanged".
    if (answer && (answer->contains(QLatin1String("1 image files updated")) ||
                   answer->contains(QLatin1String("1 image files unchanged")))) {
        return {};
    }
    removeTemporary(output);
    if (!answer) return tl::unexpected(answer.error());
    return fail(ErrorCode::ProgramFailed,
                QStringLiteral("exiftool did not write \"%1\": %2").arg(output, excerpt(*answer)), output);
}

MetadataFaults faultsOf(const MetadataRequest& request) {
    return {!recordsResolution(request.output, request.resolution), isJpegFile(request.output)};
}

// Both commands, on files whose names exiftool can be told.
Result<void> transfer(const MetadataRequest& request, ExiftoolPool& pool, std::chrono::milliseconds timeout) {
    const Result<KeptFile> asWritten = KeptFile::keep(request.output);
    if (!asWritten) return tl::unexpected(asWritten.error());
    const Result<void> copied = runCommand(metadataArguments(request), request.output, pool, timeout);
    if (!copied) return copied;
    const QStringList mend = mendArguments(request, faultsOf(request));
    if (mend.isEmpty()) return {};
    const Result<void> mended = runCommand(mend, request.output, pool, timeout);
    if (mended) return {};
    const Result<void> restored = writeWholeFile(request.output, asWritten->read());
    return restored ? mended : restored;
}

// The positions that are to be left out are in the file until the second command has run. No file of its final name
// may hold them, not even where this program is killed in between.
bool passesThroughPositions(const MetadataRequest& request) {
    return request.exifDataToInclude == exif_data::ExcludeGeolocation;
}

// The same by way of a copy of the output elsewhere, under a name of plain characters.
Result<void> transferByCopy(MetadataRequest request, ExiftoolPool& pool, std::chrono::milliseconds timeout) {
    const Result<KeptFile> asWritten = KeptFile::keep(request.output);
    if (!asWritten) return tl::unexpected(asWritten.error());
    const QTemporaryDir folder;
    const QString output = std::exchange(request.output, folder.filePath(QStringLiteral("output")));
    return writeWholeFile(request.output, asWritten->read())
        .and_then([&] { return transfer(request, pool, timeout); })
        .and_then([&] { return KeptFile::keep(request.output); })
        .and_then([&](const KeptFile& done) { return writeWholeFile(output, done.read()); });
}

}  // namespace

bool takesMetadata(PictureFormat format) {
    return format == PictureFormat::Jpeg || format == PictureFormat::Tiff;
}

Result<void> CopyExifDataTo(const MetadataRequest& request, ExiftoolPool& pool,
                            std::chrono::milliseconds timeout) {
    MetadataRequest told = request;
    // Absolute paths: none starts like an option, and exiftool's working folder is not this program's.
    told.source = QFileInfo(request.source).absoluteFilePath();
    const QFileInfo output(request.output);
    // exiftool would put its file in the place of a link, not of what the link leads to.
    told.output = output.isSymLink() ? output.canonicalFilePath() : output.absoluteFilePath();
    std::optional<KeptFile> safeSource;
    if (isUnsafeSource(told.source)) {
        Result<KeptFile> kept = KeptFile::keep(told.source);
        if (!kept) return tl::unexpected(kept.error());
        safeSource = *std::move(kept);
        told.source = safeSource->path();
    }
    const bool byCopy = isUnsafeOutput(told.output) || passesThroughPositions(told);
    return byCopy ? transferByCopy(told, pool, timeout) : transfer(told, pool, timeout);
}

}  // namespace zelto
