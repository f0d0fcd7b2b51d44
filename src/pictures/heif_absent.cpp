// SPDX-License-Identifier: GPL-3.0-or-later
// In the place of heif_decoder.cpp and heif_encoder.cpp where the build is without libheif.
#include "pictures/heif_decoder.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "platform/words.h"

namespace zelto {

const char* heifLibrary() {
    return nullptr;
}

std::optional<PictureNeeds> heifNeeds(QIODevice&) {
    return std::nullopt;
}

std::optional<Picture> decodeHeif(QIODevice&) {
    return std::nullopt;
}

bool canEncodeAvif() {
    return false;
}

bool canEncodeHeic() {
    return false;
}

Result<QByteArray> encodeAvif(const QImage&, const EncodeOptions&) {
    return fail(ErrorCode::CannotWrite, Words::tr("This Zelto was built without an AVIF encoder."));
}

Result<QByteArray> encodeHeic(const QImage&, const EncodeOptions&) {
    return fail(ErrorCode::CannotWrite, Words::tr("This Zelto was built without a HEIC encoder."));
}

}  // namespace zelto
