// SPDX-License-Identifier: GPL-3.0-or-later
// PNG files into upright sRGB pictures, rows straight into the picture's own memory. Texts and other chunks that change
// no pixel are stepped over unread.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

// `device` is open for reading and stands at the file's start. Nothing for a damaged file.
std::optional<PictureNeeds> pngNeeds(QIODevice& device);
std::optional<Picture> decodePng(QIODevice& device);

}  // namespace zelto
