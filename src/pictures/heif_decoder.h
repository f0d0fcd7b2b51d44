// SPDX-License-Identifier: GPL-3.0-or-later
// HEIC, HEIF and AVIF files into upright sRGB pictures: the primary picture of the file, turned, mirrored and cropped as
// its structure says (its Exif orientation only repeats that), converted from its ICC profile or else from the colours
// that it states in numbers; 10 and 12 bits are rounded to 8. No picture is returned for a file that ends early or whose
// pixels are corrupt.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

std::optional<PictureNeeds> heifNeeds(QIODevice& device);
std::optional<Picture> decodeHeif(QIODevice& device);

}  // namespace zelto
