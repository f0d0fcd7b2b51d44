// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files into upright sRGB pictures, straight into the picture's own memory. No picture is returned for a
// file that ends early or whose pixel data is corrupt; oddities that cost no pixel (stray bytes between
// segments, unknown revision numbers) are forgiven, since cameras write them. Any thread.
#pragma once

#include "pictures/picture_reader.h"

#include <QByteArrayView>

#include <optional>

namespace zelto {

// Whether a file that begins with these bytes (two are enough) is a JPEG file.
bool isJpeg(QByteArrayView bytes);

// `device` is open for reading and stands at the file's start.
std::optional<Picture> decodeJpeg(QIODevice& device);

// Upright pixel size; reads no further than the headers.
std::optional<QSize> jpegSize(QIODevice& device);

}  // namespace zelto
