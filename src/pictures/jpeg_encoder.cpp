// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/libjpeg.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

namespace zelto {
namespace {

constexpr int WholeChromaQuality = 90;
constexpr int RowsAtOnce = 16;  // one row of blocks with halved chroma
constexpr J_COLOR_SPACE QRgbOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? JCS_EXT_BGRX : JCS_EXT_XRGB;

// A destination that lets libjpeg write straight into a QByteArray.
struct ByteArrayDestination {
    jpeg_destination_mgr manager{};
    QByteArray* bytes = nullptr;
};

void growBy(j_compress_ptr codec, qsizetype used, qsizetype room) {
    auto* const destination = reinterpret_cast<ByteArrayDestination*>(codec->dest);
    bool failed = false;
    try {
        destination->bytes->resize(used + room);
    } catch (const std::bad_alloc&) {
        failed = true;  // no exception may pass through a C library
    }
    if (failed) ERREXIT1(codec, JERR_OUT_OF_MEMORY, 0);
    destination->manager.next_output_byte = reinterpret_cast<JOCTET*>(destination->bytes->data()) + used;
    destination->manager.free_in_buffer = static_cast<std::size_t>(room);
}

void startOutput(j_compress_ptr codec) {
    growBy(codec, 0, std::max<qsizetype>(65536, qsizetype{codec->image_width} * codec->image_height / 8));
}

boolean growOutput(j_compress_ptr codec) {
    const qsizetype used = reinterpret_cast<ByteArrayDestination*>(codec->dest)->bytes->size();
    growBy(codec, used, used / 2);
    return TRUE;
}

void endOutput(j_compress_ptr codec) {
    auto* const destination = reinterpret_cast<ByteArrayDestination*>(codec->dest);
    destination->bytes->chop(static_cast<qsizetype>(destination->manager.free_in_buffer));
}

UINT16 jfifDensity(double dpi) {
    return static_cast<UINT16>(std::lround(std::clamp(dpi, 1.0, 65535.0)));
}

void setUp(jpeg_compress_struct& codec, const QImage& picture, const EncodeOptions& options) {
    codec.image_width = static_cast<JDIMENSION>(picture.width());
    codec.image_height = static_cast<JDIMENSION>(picture.height());
    codec.input_components = 4;
    codec.in_color_space = QRgbOrder;
    jpeg_set_defaults(&codec);
    jpeg_set_quality(&codec, options.jpegQuality, TRUE);
    if (options.jpegQuality >= WholeChromaQuality) {
        codec.comp_info[0].h_samp_factor = 1;
        codec.comp_info[0].v_samp_factor = 1;
    }
    codec.density_unit = 1;  // dots per inch
    codec.X_density = jfifDensity(options.dpiX);
    codec.Y_density = jfifDensity(options.dpiY);
}

using RowConversion = void (*)(const QRgb* row, int width, QRgb* out);

// What is compressed, and how. `convert` makes rows with transparency opaque, in `scratch`; opaque rows need
// none.
struct Job {
    const QImage& picture;
    const EncodeOptions& options;
    RowConversion convert = nullptr;
    std::vector<QRgb> scratch;
};

// Holds nothing that needs a destructor: an error leaves it by longjmp.
bool compress(jpeg_compress_struct& codec, JpegErrors& errors, jpeg_destination_mgr* destination, Job& job) {
    if (setjmp(errors.escape) != 0) return false;  // NOLINT(cert-err52-cpp): libjpeg has no other way out
    jpeg_create_compress(&codec);
    codec.dest = destination;
    setUp(codec, job.picture, job.options);
    jpeg_start_compress(&codec, TRUE);
    const int width = job.picture.width();
    JSAMPROW rows[RowsAtOnce];
    while (codec.next_scanline < codec.image_height) {
        const int top = static_cast<int>(codec.next_scanline);
        const int count = std::min(RowsAtOnce, job.picture.height() - top);
        for (int i = 0; i < count; ++i) {
            const QRgb* row = pixelRow(job.picture, top + i);
            if (job.convert != nullptr) {
                QRgb* const opaque = job.scratch.data() + static_cast<std::ptrdiff_t>(i) * width;
                job.convert(row, width, opaque);
                row = opaque;
            }
            // libjpeg only reads the rows; its interface has no const.
            rows[i] = const_cast<JSAMPROW>(reinterpret_cast<const JSAMPLE*>(row));  // NOLINT
        }
        jpeg_write_scanlines(&codec, rows, static_cast<JDIMENSION>(count));
    }
    jpeg_finish_compress(&codec);
    return true;
}

Result<QByteArray> encode(const QImage& picture, const EncodeOptions& options,
                          RowConversion forTransparency) {
    QByteArray bytes;
    ByteArrayDestination destination;
    destination.bytes = &bytes;
    destination.manager.init_destination = startOutput;
    destination.manager.empty_output_buffer = growOutput;
    destination.manager.term_destination = endOutput;

    Job job{picture, options, nullptr, {}};
    if (picture.hasAlphaChannel()) {
        job.convert = forTransparency;
        job.scratch.resize(static_cast<std::size_t>(picture.width()) * RowsAtOnce);
    }
    JpegErrors errors;
    jpeg_compress_struct codec{};
    codec.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = escapeWithJpegMessage;
    const bool done = compress(codec, errors, &destination.manager, job);
    jpeg_destroy_compress(&codec);
    if (!done) {
        return fail(ErrorCode::CannotWrite,
                    QStringLiteral("The JPEG encoder failed: %1").arg(QLatin1String(errors.message.data())));
    }
    return bytes;
}

}  // namespace

Result<QByteArray> encodeJpeg(const QImage& picture, const EncodeOptions& options) {
    return encode(picture, options, rowOnWhite);
}

Result<QByteArray> encodeJpegColours(const QImage& picture, int quality) {
    return encode(picture, {.jpegQuality = quality}, rowOpaque);
}

}  // namespace zelto
