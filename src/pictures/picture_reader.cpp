// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_reader.h"

#include "pictures/jpeg_decoder.h"
#include "pictures/plugin_decoder.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

namespace zelto {
namespace {

tl::unexpected<Error> damaged(const QString& path = {}) {
    return fail(ErrorCode::Damaged, QString(DamagedPictureMessage), path);
}

// Opens the regular file at `path`; nothing else is read, since a pipe or a device may never end.
Result<void> open(QFile& file) {
    const QFileInfo info(file.fileName());
    if (!info.exists()) {
        return fail(ErrorCode::NotFound, QStringLiteral("There is no file \"%1\".").arg(file.fileName()),
                    file.fileName());
    }
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) return damaged(file.fileName());
    return {};
}

std::optional<Picture> decode(QIODevice& device) {
    return isJpeg(device.peek(2)) ? decodeJpeg(device) : decodeWithPlugins(device);
}

}  // namespace

Result<Picture> readPicture(const QString& path) {
    QFile file(path);
    if (const Result<void> opened = open(file); !opened) return tl::unexpected(opened.error());
    std::optional<Picture> picture = decode(file);
    if (!picture) return damaged(path);
    return std::move(*picture);
}

Result<Picture> decodePicture(const QByteArray& bytes) {
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    std::optional<Picture> picture = decode(buffer);
    if (!picture) return damaged();
    return std::move(*picture);
}

Result<QSize> readPictureSize(const QString& path) {
    QFile file(path);
    if (const Result<void> opened = open(file); !opened) return tl::unexpected(opened.error());
    const std::optional<QSize> size = isJpeg(file.peek(2)) ? jpegSize(file) : sizeByPlugins(file);
    if (!size) return damaged(path);
    return *size;
}

}  // namespace zelto
