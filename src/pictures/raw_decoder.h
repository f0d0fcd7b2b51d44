// SPDX-License-Identifier: GPL-3.0-or-later
// The preview that a camera has put into its raw file, as a picture: the largest one, turned as the camera was held. The
// raw data themselves are never developed. Nothing for a file without a preview.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

std::optional<PictureNeeds> rawPreviewNeeds(QIODevice& device);
std::optional<Picture> decodeRawPreview(QIODevice& device);

}  // namespace zelto
