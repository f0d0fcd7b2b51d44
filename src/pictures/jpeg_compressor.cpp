// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_compressor.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace zelto {
namespace {

UINT16 jfifDensity(double dpi) {
    return static_cast<UINT16>(std::lround(std::clamp(dpi, 1.0, 65535.0)));
}

}  // namespace

JpegCompressor::JpegCompressor() {
    destination_.base.init_destination = startOutput;
    destination_.base.empty_output_buffer = growOutput;
    destination_.base.term_destination = endOutput;
    codec_.err = jpeg_std_error(&errors_.manager);
    errors_.manager.error_exit = escapeWithJpegMessage;
    errors_.manager.output_message = [](j_common_ptr) {};
    guarded([this](jpeg_compress_struct& codec) {
        jpeg_create_compress(&codec);
        codec.dest = &destination_.base;
    });
}

void JpegCompressor::growBy(j_compress_ptr codec, qsizetype used, qsizetype room) {
    auto* const destination = reinterpret_cast<Destination*>(codec->dest);
    bool failed = false;
    try {
        destination->bytes.resize(used + room);
    } catch (const std::bad_alloc&) {
        failed = true;  // no exception may pass through a C library
    }
    if (failed) ERREXIT1(codec, JERR_OUT_OF_MEMORY, 0);
    destination->base.next_output_byte = reinterpret_cast<JOCTET*>(destination->bytes.data()) + used;
    destination->base.free_in_buffer = static_cast<std::size_t>(room);
}

void JpegCompressor::startOutput(j_compress_ptr codec) {
    growBy(codec, 0, std::max<qsizetype>(65536, qsizetype{codec->image_width} * codec->image_height / 8));
}

boolean JpegCompressor::growOutput(j_compress_ptr codec) {
    const qsizetype used = reinterpret_cast<Destination*>(codec->dest)->bytes.size();
    growBy(codec, used, used / 2);
    return TRUE;
}

void JpegCompressor::endOutput(j_compress_ptr codec) {
    auto* const destination = reinterpret_cast<Destination*>(codec->dest);
    destination->bytes.chop(static_cast<qsizetype>(destination->base.free_in_buffer));
}

void setJfifDensity(jpeg_compress_struct& codec, double dpiX, double dpiY) {
    codec.density_unit = 1;  // dots per inch
    codec.X_density = jfifDensity(dpiX);
    codec.Y_density = jfifDensity(dpiY);
}

}  // namespace zelto
