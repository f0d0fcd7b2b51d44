// SPDX-License-Identifier: GPL-3.0-or-later
// JPEG XL files into upright sRGB pictures, turned as their own headers say; more than 8 bits are rounded. Of an
// animation the first picture is read. No picture is returned for a file that ends early.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

std::optional<PictureNeeds> jxlNeeds(QIODevice& device);
std::optional<Picture> decodeJxl(QIODevice& device);

}  // namespace zelto
