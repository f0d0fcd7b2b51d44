// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/plugin_decoder.h"

#include "platform/color_profile.h"

#include <QColorSpace>
#include <QImageReader>

namespace zelto {

std::optional<Picture> decodeWithPlugins(QIODevice& device) {
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    Picture picture;
    if (!reader.read(&picture.image)) return std::nullopt;
    const QByteArray profile = picture.image.colorSpace().iccProfile();
    picture.image = convertedToSrgb(std::move(picture.image), profile);
    if (picture.image.hasAlphaChannel()) picture.image.convertTo(QImage::Format_ARGB32_Premultiplied);
    picture.image.setColorSpace({});
    return picture;
}

std::optional<QSize> sizeByPlugins(QIODevice& device) {
    QImageReader reader(&device);
    const QSize size = reader.size();
    if (size.isEmpty()) return std::nullopt;
    return reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
}

}  // namespace zelto
