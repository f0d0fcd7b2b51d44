// SPDX-License-Identifier: GPL-3.0-or-later
// WebP files into upright sRGB pictures, by their ICC profile and turned as their Exif block says. Of an animation the
// first picture is read. No picture is returned for a file that ends early.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

std::optional<PictureNeeds> webpNeeds(QIODevice& device);
std::optional<Picture> decodeWebp(QIODevice& device);

}  // namespace zelto
