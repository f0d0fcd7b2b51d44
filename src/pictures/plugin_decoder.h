// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of files that one of Qt's image format plugins decodes: TIFF (but for the layouts of tiff_decoder.h) and
// BMP.
#pragma once

#include "pictures/picture_kind.h"
#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"

#include <QIODevice>

#include <optional>

namespace zelto {

// `device` is open for reading, can seek, and holds a file of `kind`. Nothing for a damaged file.
std::optional<PictureNeeds> needsByPlugin(QIODevice& device, PictureKind kind);
std::optional<Picture> decodeByPlugin(QIODevice& device, PictureKind kind);

}  // namespace zelto
