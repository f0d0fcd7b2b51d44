// SPDX-License-Identifier: GPL-3.0-or-later
// Encoding finished pictures. Input is what readPicture gives: sRGB, RGB32 or premultiplied ARGB32. JPEG and BMP
// have no transparency: such a picture stands on white there. No profile is embedded. Any thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QImage>
#include <QStringView>

#include <optional>

namespace zelto {

enum class PictureFormat { Jpeg, Png, Tiff, Bmp, Gif, Pdf };

// The format of a file extension (without its dot, any letter case), where it is one of those written.
std::optional<PictureFormat> pictureFormatForExtension(QStringView extension);

struct EncodeOptions {
    int jpegQuality = 90;  // 0 to 100; chroma is kept whole from 90 on and halved on both axes below
    double dpiX = 72.0;    // recorded in formats that can hold a resolution
    double dpiY = 72.0;
};

// The bytes of a complete file. A PDF is one page of the picture's size, one point per pixel. Error:
// ErrorCode::InvalidValue for a picture without pixels or too large for the format, ErrorCode::CannotWrite when the
// encoder fails, ErrorCode::OutOfMemory.
Result<QByteArray> encodePicture(const QImage& picture, PictureFormat format, const EncodeOptions& options);

}  // namespace zelto
