// SPDX-License-Identifier: GPL-3.0-or-later
// libjpeg's header with what it needs before it, and its errors turned into a jump out with a message. The
// function that calls setjmp may hold nothing that needs a destructor; the compressor or decompressor is
// destroyed outside it.
#pragma once

// clang-format off
#include <cstddef>
#include <cstdio>
#include <jpeglib.h>
#include <jerror.h>
// clang-format on

#include <QtGlobal>

#include <array>
#include <csetjmp>

namespace zelto {

// How libjpeg calls the memory of a QRgb: to read colours from, and to write opaque ones to.
inline constexpr J_COLOR_SPACE QRgbOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;
inline constexpr J_COLOR_SPACE OpaqueQRgbOrder =
    Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRA : JCS_EXT_ARGB;

struct JpegErrors {
    jpeg_error_mgr manager{};
    std::jmp_buf escape{};
    std::array<char, JMSG_LENGTH_MAX> message{};
};

[[noreturn]] inline void escapeWithJpegMessage(j_common_ptr codec) {
    auto* const errors = reinterpret_cast<JpegErrors*>(codec->err);
    errors->manager.format_message(codec, errors->message.data());
    std::longjmp(errors->escape, 1);
}

}  // namespace zelto
