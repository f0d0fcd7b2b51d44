// SPDX-License-Identifier: GPL-3.0-or-later
// Encoding finished pictures. Input is what readPicture gives: sRGB, RGB32 or premultiplied ARGB32. JPEG and BMP
// have no transparency: such a picture stands on white there. No profile is embedded: AVIF, HEIC and JPEG XL say in
// numbers that they are sRGB, the others are taken for it. Any thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QImage>
#include <QStringView>

#include <optional>

namespace zelto {

enum class PictureFormat { Jpeg, Png, Tiff, Bmp, Gif, Pdf, Webp, Avif, Heic, Jxl };

// The format of a file extension (without its dot, any letter case), where it is one of those that can be written: on
// this machine, and in this build.
std::optional<PictureFormat> pictureFormatForExtension(QStringView extension);

// What is written into a file about its picture, where the format's own library does so (WebP, AVIF, HEIC, JPEG XL).
struct MetadataBlocks {
    QByteArray exif;  // from its TIFF header on
    QByteArray xmp;
};

// Whether EncodeOptions::quality has an effect on it.
bool hasQuality(PictureFormat format);

struct EncodeOptions {
    // 0 to 100, of lossy formats. JPEG, AVIF and HEIC keep chroma whole from 90 on and halve it on both axes below. At
    // 100 WebP and JPEG XL are lossless, AVIF where its encoder can.
    int quality = 90;
    double dpiX = 72.0;  // recorded in formats that can hold a resolution by themselves
    double dpiY = 72.0;
    MetadataBlocks metadata = {};
};

// What encoding a picture of `size` pixels takes beside the picture, in bytes: the library's own buffers.
qint64 memoryToEncode(PictureFormat format, QSize size);

// The bytes of a complete file. A PDF is one page of the picture's size, one point per pixel. Error:
// ErrorCode::InvalidValue for a picture without pixels or too large for the format, ErrorCode::CannotWrite when the
// encoder fails, ErrorCode::OutOfMemory.
Result<QByteArray> encodePicture(const QImage& picture, PictureFormat format, const EncodeOptions& options);

}  // namespace zelto
