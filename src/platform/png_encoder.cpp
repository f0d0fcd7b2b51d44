// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_encoders.h"
#include "platform/picture_rows.h"

#include <png.h>

#include <array>
#include <cmath>
#include <new>
#include <vector>

namespace zelto {
namespace {

constexpr double InchesPerMetre = 1.0 / 0.0254;

struct Output {
    QByteArray bytes;
    std::array<char, 128> message{};
};

[[noreturn]] void escapeWithMessage(png_structp codec, png_const_charp message) {
    qstrncpy(static_cast<Output*>(png_get_error_ptr(codec))->message.data(), message, 128);
    png_longjmp(codec, 1);
}

void ignoreWarning(png_structp, png_const_charp) {}

void append(png_structp codec, png_bytep data, std::size_t size) {
    bool failed = false;
    try {
        static_cast<Output*>(png_get_io_ptr(codec))
            ->bytes.append(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    } catch (const std::bad_alloc&) {
        failed = true;  // no exception may pass through a C library
    }
    if (failed) png_error(codec, "out of memory");
}

void noFlush(png_structp) {}

// Holds nothing that needs a destructor: an error leaves it by longjmp.
bool compress(png_structp codec, png_infop info, const QImage& picture, const EncodeOptions& options,
              uchar* scratch) {
    if (setjmp(png_jmpbuf(codec)) != 0) return false;  // NOLINT(cert-err52-cpp): libpng has no other way out
    const bool alpha = picture.hasAlphaChannel();
    const int width = picture.width();
    png_set_user_limits(codec, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_compression_level(codec, 3);
    png_set_IHDR(codec, info, static_cast<png_uint_32>(width), static_cast<png_uint_32>(picture.height()), 8,
                 alpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(codec, info, static_cast<png_uint_32>(std::lround(options.dpiX * InchesPerMetre)),
                 static_cast<png_uint_32>(std::lround(options.dpiY * InchesPerMetre)), PNG_RESOLUTION_METER);
    png_write_info(codec, info);
    for (int y = 0; y < picture.height(); ++y) {
        (alpha ? rowAsStraightRgba : rowAsRgb)(pixelRow(picture, y), width, scratch);
        png_write_row(codec, scratch);
    }
    png_write_end(codec, info);
    return true;
}

}  // namespace

Result<QByteArray> encodePng(const QImage& picture, const EncodeOptions& options) {
    Output output;
    std::vector<uchar> scratch(static_cast<std::size_t>(picture.width()) * 4);
    png_structp codec =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, &output, escapeWithMessage, ignoreWarning);
    png_infop info = codec != nullptr ? png_create_info_struct(codec) : nullptr;
    bool done = false;
    if (info != nullptr) {
        png_set_write_fn(codec, &output, append, noFlush);
        done = compress(codec, info, picture, options, scratch.data());
    }
    png_destroy_write_struct(&codec, &info);
    if (!done) {
        return fail(ErrorCode::CannotWrite,
                    QStringLiteral("The PNG encoder failed: %1").arg(QLatin1String(output.message.data())));
    }
    return output.bytes;
}

}  // namespace zelto
