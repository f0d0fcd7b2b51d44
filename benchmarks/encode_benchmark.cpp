// SPDX-License-Identifier: GPL-3.0-or-later
// Encoding a 24-megapixel photo in every format, and as JPEG beside libjpeg-turbo compressing the same pixels with the
// same settings from the form its own program has them in. The counter says how large the file becomes.
#include "pictures/libjpeg.h"
#include "pictures/picture_writer.h"
#include "support/test_pictures.h"

#include <benchmark/benchmark.h>

#include <cstdlib>

namespace {

using namespace zelto;

constexpr QSize PhotoSize(6000, 4000);

const QImage& photo(bool alpha) {
    static const QImage opaque = drawnScene(PhotoSize);
    static const QImage transparent = drawnSceneWithAlpha(PhotoSize);
    return alpha ? transparent : opaque;
}

void count(benchmark::State& state, std::size_t bytes) {
    state.counters["bytes"] = benchmark::Counter(static_cast<double>(bytes), benchmark::Counter::kDefaults,
                                                 benchmark::Counter::kIs1024);
}

void encode(benchmark::State& state, PictureFormat format, int quality, bool alpha) {
    const QImage& picture = photo(alpha);
    std::size_t bytes = 0;
    for (auto _ : state) {
        const Result<QByteArray> file = encodePicture(picture, format, {.quality = quality});
        if (!file) std::abort();
        bytes = static_cast<std::size_t>(file->size());
    }
    count(state, bytes);
}

void jpegByLibjpegAlone(benchmark::State& state, int quality) {
    QImage picture = photo(false).convertToFormat(QImage::Format_RGB888);
    unsigned long bytes = 0;
    for (auto _ : state) {
        jpeg_error_mgr errors{};
        jpeg_compress_struct codec{};
        codec.err = jpeg_std_error(&errors);
        jpeg_create_compress(&codec);
        unsigned char* file = nullptr;
        jpeg_mem_dest(&codec, &file, &bytes);
        codec.image_width = static_cast<JDIMENSION>(picture.width());
        codec.image_height = static_cast<JDIMENSION>(picture.height());
        codec.input_components = 3;
        codec.in_color_space = JCS_RGB;
        jpeg_set_defaults(&codec);
        jpeg_set_quality(&codec, quality, TRUE);
        if (quality >= 90) codec.comp_info[0].h_samp_factor = codec.comp_info[0].v_samp_factor = 1;
        jpeg_start_compress(&codec, TRUE);
        while (codec.next_scanline < codec.image_height) {
            JSAMPROW row = picture.scanLine(static_cast<int>(codec.next_scanline));
            jpeg_write_scanlines(&codec, &row, 1);
        }
        jpeg_finish_compress(&codec);
        jpeg_destroy_compress(&codec);
        std::free(file);
    }
    count(state, bytes);
}

#define ZELTO_ENCODE(name, ...) BENCHMARK_CAPTURE(encode, name, __VA_ARGS__)->Unit(benchmark::kMillisecond)
#define ZELTO_LIBJPEG(name, quality) \
    BENCHMARK_CAPTURE(jpegByLibjpegAlone, name, quality)->Unit(benchmark::kMillisecond)

ZELTO_LIBJPEG(quality 95, 95);
ZELTO_ENCODE(JPEG of quality 95, PictureFormat::Jpeg, 95, false);
ZELTO_LIBJPEG(quality 85, 85);
ZELTO_ENCODE(JPEG of quality 85, PictureFormat::Jpeg, 85, false);
ZELTO_ENCODE(JPEG of quality 95 with alpha, PictureFormat::Jpeg, 95, true);
ZELTO_ENCODE(PNG, PictureFormat::Png, 0, false);
ZELTO_ENCODE(PNG with alpha, PictureFormat::Png, 0, true);
ZELTO_ENCODE(TIFF, PictureFormat::Tiff, 0, false);
ZELTO_ENCODE(TIFF with alpha, PictureFormat::Tiff, 0, true);
ZELTO_ENCODE(BMP, PictureFormat::Bmp, 0, false);
ZELTO_ENCODE(GIF, PictureFormat::Gif, 0, false);
ZELTO_ENCODE(PDF, PictureFormat::Pdf, 0, false);
ZELTO_ENCODE(PDF with alpha, PictureFormat::Pdf, 0, true);

}  // namespace
