// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/effect_diagnostics.h"

#include "pictures/picture_reader.h"
#include "pictures/picture_writer.h"
#include "platform/whole_file.h"
#include "render/photo_effects.h"
#include "render/photo_filters.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

namespace zelto {
namespace {

// A PNG text chunk, by which the program knows its own pictures: length, type, "Software" and its text, checksum.
constexpr QByteArrayView OwnChunk("\0\0\0\x1AtEXtSoftware\0Zelto effect step\x64\xAD\xA5\x62", 38);
// Of the signature and the header chunk, which come first in every PNG.
constexpr qsizetype HeaderSize = 33;

bool isOwn(const QString& path) {
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
           file.read(HeaderSize + OwnChunk.size()).endsWith(OwnChunk);
}

Result<QByteArray> encoded(const QImage& picture) {
    return encodePicture(picture, PictureFormat::Png, {}).map([](QByteArray bytes) {
        return bytes.insert(HeaderSize, OwnChunk);
    });
}

Result<void> writeOwn(const QString& path, const QByteArray& bytes) {
    const Result<void> kept = isOwn(path) ? Result<void>() : keepUnderOtherName(path);
    return kept ? replaceFile(path, bytes, FileAccess::OwnerOnly) : kept;
}

}  // namespace

Result<void> writeEffectDiagnostics(const QImage& framed, const QImage& result, const QString& folder) {
    const QDir directory(folder);
    Result<QByteArray> bytes = encoded(framed);
    if (!bytes) return tl::unexpected(bytes.error());
    if (auto written = writeOwn(directory.filePath(QStringLiteral("file.png")), *bytes); !written)
        return written;
    if (result.cacheKey() != framed.cacheKey()) bytes = encoded(result);
    if (!bytes) return tl::unexpected(bytes.error());
    return writeOwn(directory.filePath(QStringLiteral("effect.png")), *bytes);
}

Result<void> writeEffectDiagnostics(const QImage& photo, const PhotoEffects& effect, bool final,
                                    const QString& folder) {
    const QImage framed = ImagewithBorderEffect(photo, effect);
    if (!final || !effect.EnableShadow) return writeEffectDiagnostics(framed, framed, folder);
    QRect image;
    QRect border;
    return writeEffectDiagnostics(framed, imagewithEffects(photo, effect, image, border, final), folder);
}

Result<void> writeEffectDiagnosticsOf(const QString& photo, const WatermarkStack& stack) {
    if (!stack.Effects) return {};
    return readPicture(photo).and_then([&](Picture read) {
        return writeEffectDiagnostics(ApplyFilter(stack.SelectedFilter, std::move(read.image)),
                                      *stack.Effects, true);
    });
}

}  // namespace zelto
