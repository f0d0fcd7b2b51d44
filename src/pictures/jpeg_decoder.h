// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG files into upright sRGB pictures, straight into the picture's own memory. No picture is returned for a
// file that ends early or whose pixel data is corrupt; oddities that cost no pixel (stray bytes between
// segments, unknown revision numbers) are forgiven, since cameras write them.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>
#include <QSize>

#include <optional>

namespace zelto {

// `device` is open for reading and stands at the file's start. Nothing for a damaged file. With `bound`, the picture is
// decoded at a half, a quarter or an eighth of its size where it still covers the bound then, which is quicker.
std::optional<PictureNeeds> jpegNeeds(QIODevice& device);
std::optional<Picture> decodeJpeg(QIODevice& device, QSize bound = {});

}  // namespace zelto
