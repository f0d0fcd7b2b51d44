// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files into upright sRGB pictures, straight into the picture's own memory. No picture is returned for a
// file that ends early or whose pixel data is corrupt; oddities that cost no pixel (stray bytes between
// segments, unknown revision numbers) are forgiven, since cameras write them. Any thread.
#pragma once

#include "platform/picture_reader.h"

#include <QByteArrayView>

#include <optional>

namespace zelto {

// Whether the bytes begin like a JPEG file.
bool isJpeg(QByteArrayView bytes);

std::optional<Picture> decodeJpeg(QByteArrayView bytes);

// Upright pixel size, from the headers alone.
std::optional<QSize> jpegSize(QByteArrayView bytes);

}  // namespace zelto
