// SPDX-License-Identifier: GPL-3.0-or-later
// In the place of raw_decoder.cpp where the build is without LibRaw.
#include "pictures/picture_libraries.h"
#include "pictures/raw_decoder.h"

namespace zelto {

const char* rawLibrary() {
    return nullptr;
}

std::optional<PictureNeeds> rawPreviewNeeds(QIODevice&) {
    return std::nullopt;
}

std::optional<Picture> decodeRawPreview(QIODevice&) {
    return std::nullopt;
}

}  // namespace zelto
