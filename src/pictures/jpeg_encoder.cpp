// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_compressor.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"
#include "platform/words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zelto {
namespace {

constexpr int RowsAtOnce = 16;  // one row of blocks with halved chroma

void setUp(jpeg_compress_struct& codec, const QImage& picture, const EncodeOptions& options) {
    codec.image_width = static_cast<JDIMENSION>(picture.width());
    codec.image_height = static_cast<JDIMENSION>(picture.height());
    codec.input_components = 4;
    codec.in_color_space = QRgbOrder;
    jpeg_set_defaults(&codec);
    jpeg_set_quality(&codec, options.quality, TRUE);
    if (options.quality >= WholeChromaQuality) {
        codec.comp_info[0].h_samp_factor = 1;
        codec.comp_info[0].v_samp_factor = 1;
    }
    setJfifDensity(codec, options.dpiX, options.dpiY);
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

void compress(jpeg_compress_struct& codec, Job& job) {
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
}

Result<QByteArray> encode(const QImage& picture, const EncodeOptions& options,
                          RowConversion forTransparency) {
    Job job{picture, options, nullptr, {}};
    if (picture.hasAlphaChannel()) {
        job.convert = forTransparency;
        job.scratch.resize(static_cast<std::size_t>(picture.width()) * RowsAtOnce);
    }
    JpegCompressor compressor;
    if (compressor.guarded([&](jpeg_compress_struct& codec) { compress(codec, job); }))
        return compressor.takeFile();
    return fail(ErrorCode::CannotWrite, Words::tr("The JPEG encoder failed: %1").arg(compressor.message()));
}

}  // namespace

Result<QByteArray> encodeJpeg(const QImage& picture, const EncodeOptions& options) {
    return encode(picture, options, rowOnWhite);
}

Result<QByteArray> encodeJpegColours(const QImage& picture, int quality) {
    return encode(picture, {.quality = quality}, rowOpaque);
}

}  // namespace zelto
