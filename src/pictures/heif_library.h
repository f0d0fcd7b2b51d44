// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of libheif's objects.
#pragma once

#include <libheif/heif.h>

#include <memory>
#include <new>

namespace zelto {

template <auto Release>
struct HeifRelease {
    template <class Object>
    void operator()(Object* object) const {
        Release(object);
    }
};

using HeifContext = std::unique_ptr<heif_context, HeifRelease<heif_context_free>>;
using HeifHandle = std::unique_ptr<heif_image_handle, HeifRelease<heif_image_handle_release>>;
using HeifImage = std::unique_ptr<heif_image, HeifRelease<heif_image_release>>;
using HeifNclx = std::unique_ptr<heif_color_profile_nclx, HeifRelease<heif_nclx_color_profile_free>>;
using HeifDecodingOptions = std::unique_ptr<heif_decoding_options, HeifRelease<heif_decoding_options_free>>;
using HeifEncoder = std::unique_ptr<heif_encoder, HeifRelease<heif_encoder_release>>;
using HeifEncodingOptions = std::unique_ptr<heif_encoding_options, HeifRelease<heif_encoding_options_free>>;

// What libheif has made; throws std::bad_alloc where it has made nothing.
template <class Owner>
Owner heifOwner(typename Owner::pointer made) {
    if (made == nullptr) throw std::bad_alloc();
    return Owner(made);
}

// Loads the codecs that libheif does not hold itself, once.
inline void startHeif() {
    static const heif_error started = heif_init(nullptr);
    static_cast<void>(started);
}

}  // namespace zelto
