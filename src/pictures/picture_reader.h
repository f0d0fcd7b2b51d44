// SPDX-License-Identifier: GPL-3.0-or-later
// Reading photos and logos. Whatever the file holds (CMYK, grey, palette, 16 bits, any ICC profile, any EXIF
// orientation), what comes out is one kind of picture: upright, sRGB, 8 bits a channel, Format_RGB32 where the file
// has no transparency and Format_ARGB32_Premultiplied where it has, origin top left as QImage has it. A file that
// ends early counts as damaged: no half picture is ever returned. All functions may be called on any thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace zelto {

struct Picture {
    QImage image;
    double dpiX = 72.0;  // of the upright picture; 72 where the file records none
    double dpiY = 72.0;
};

// The largest picture that is read, in pixels.
inline constexpr qint64 MaximumPicturePixels = qint64{1} << 30;

// What a user is told of a picture that cannot be read.
inline constexpr QLatin1String DamagedPictureMessage(
    "Image may be damaged or use a file format not supported by Zelto.");

// Error: ErrorCode::NotFound where there is no such file, ErrorCode::Damaged (with DamagedPictureMessage) otherwise.
Result<Picture> readPicture(const QString& path);

// The same for bytes already in memory, such as a logo kept inside a setting.
Result<Picture> decodePicture(const QByteArray& bytes);

// Upright pixel size from the file's header, without decoding its pixels. Errors as readPicture.
Result<QSize> readPictureSize(const QString& path);

}  // namespace zelto
