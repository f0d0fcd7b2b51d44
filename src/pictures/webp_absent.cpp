// SPDX-License-Identifier: GPL-3.0-or-later
// In the place of webp_decoder.cpp and webp_encoder.cpp where the build is without libwebp.
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "pictures/webp_decoder.h"
#include "platform/words.h"

namespace zelto {

const char* webpLibrary() {
    return nullptr;
}

std::optional<PictureNeeds> webpNeeds(QIODevice&) {
    return std::nullopt;
}

std::optional<Picture> decodeWebp(QIODevice&) {
    return std::nullopt;
}

Result<QByteArray> encodeWebp(const QImage&, const EncodeOptions&) {
    return fail(ErrorCode::CannotWrite, Words::tr("This Zelto was built without a WebP encoder."));
}

}  // namespace zelto
