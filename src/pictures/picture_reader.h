// SPDX-License-Identifier: GPL-3.0-or-later
// Reading photos and logos. Whatever a file holds (CMYK, grey, palette, 16 bits, any ICC profile, any EXIF orientation),
// what comes out is one kind of picture: upright, sRGB, 8 bits per channel, Format_RGB32 where the file has no
// transparency and Format_ARGB32_Premultiplied where it has, rows from the top.
//
//     const Result<Picture> photo = readPicture(path);
//     if (!photo) return tl::unexpected(photo.error());  // says in the user's words what is wrong
//     paint(photo->image);
//
// What all of src/pictures shares:
// - Files come from strangers. Only regular files are opened, only JPEG, PNG, TIFF, GIF, BMP, WebP, HEIC, AVIF and
//   JPEG XL are read, and the previews in cameras' raw files, told by their bytes and never by their names. A file's
//   headers say what reading will cost before anything is decoded (picture_needs.h); too much is refused. A file that
//   ends early counts as damaged: no half picture is returned.
// - Memory that runs out is an error (ErrorCode::OutOfMemory), never a picture without some part. Inside the folder it
//   travels as std::bad_alloc, and readers and writers of pictures turn it into the error; no exception passes through
//   a library written in C.
// - No library prints anything by itself.
// - Every function may be called on any thread, any number at a time. The pictures passed in are values.
// - Sizes are in pixels, resolutions in dots per inch. Unless it says otherwise, a QImage has one of the two formats
//   above.
#pragma once

#include "platform/result.h"
#include "platform/words.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace zelto {

struct PictureNeeds;

struct Picture {
    QImage image;
    double dpiX = 72.0;  // of the upright picture; 72 where the file records none
    double dpiY = 72.0;
    bool isRawPreview = false;  // the preview in a camera's raw file, not what its data could be made into
};

// The largest picture that is read, in pixels.
inline constexpr qint64 MaximumPicturePixels = qint64{1} << 30;

// What a user is told of a picture that is broken or of no known kind.
inline constexpr MarkedText DamagedPictureMessage(
    QT_TRANSLATE_NOOP("Words", "Image may be damaged or use a file format not supported by Zelto."));

// Errors of all functions below: ErrorCode::NotFound where there is no such file; ErrorCode::Damaged with the message
// above, or with one of its own for drawings and for pictures that need more memory than they may;
// ErrorCode::OutOfMemory.
Result<Picture> readPicture(const QString& path);

// The same for bytes already in memory, such as a logo kept inside a setting.
Result<Picture> decodePicture(const QByteArray& bytes);

// A JPEG file in memory for looking at in small: at whole, half, a quarter or an eighth of its size, whichever is the
// smallest that still covers the photo fitted into `bound`.
Result<Picture> decodeReduced(const QByteArray& jpeg, QSize bound);

// A picture for looking at in small: fitted into `bound` with its proportions kept, never enlarged. Large JPEG files
// are read at a fraction of their size, which is several times quicker.
Result<Picture> readThumbnail(const QString& path, QSize bound);

// From the file's headers, without decoding its pixels: the upright size, and all that reading will need.
Result<QSize> readPictureSize(const QString& path);
Result<PictureNeeds> readPictureNeeds(const QString& path);

}  // namespace zelto
