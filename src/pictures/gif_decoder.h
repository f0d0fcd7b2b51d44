// SPDX-License-Identifier: GPL-3.0-or-later
// The first picture of a GIF file, as it stands on the file's canvas: before the background colour, or before nothing
// where a colour of the picture is clear. A file that ends before its last picture does counts as damaged.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

// `device` is open for reading and stands at the file's start. Nothing for a damaged file.
std::optional<PictureNeeds> gifNeeds(QIODevice& device);
std::optional<Picture> decodeGif(QIODevice& device);

}  // namespace zelto
