// SPDX-License-Identifier: GPL-3.0-or-later
// In the place of jxl_decoder.cpp, jxl_encoder.cpp and jxl_threads.cpp where the build is without libjxl.
#include "pictures/jxl_decoder.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "platform/words.h"

namespace zelto {

const char* jxlLibrary() {
    return nullptr;
}

std::optional<PictureNeeds> jxlNeeds(QIODevice&) {
    return std::nullopt;
}

std::optional<Picture> decodeJxl(QIODevice&) {
    return std::nullopt;
}

Result<QByteArray> encodeJxl(const QImage&, const EncodeOptions&) {
    return fail(ErrorCode::CannotWrite, Words::tr("This Zelto was built without a JPEG XL encoder."));
}

}  // namespace zelto
