// SPDX-License-Identifier: GPL-3.0-or-later
// Every format but JPEG, by Qt's image format plugins. Any thread.
#pragma once

#include "pictures/picture_reader.h"

#include <QIODevice>
#include <QSize>

#include <optional>

namespace zelto {

// The first picture in `device`, which is open for reading, can seek and stands at its start. Nothing for a
// file that is damaged, ends early, is larger than MaximumPicturePixels, or is of no known format.
std::optional<Picture> decodeWithPlugins(QIODevice& device);

// Its upright pixel size, from the headers alone where the format allows.
std::optional<QSize> sizeByPlugins(QIODevice& device);

}  // namespace zelto
