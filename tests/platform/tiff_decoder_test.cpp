// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/tiff_decoder.h"

#include "platform/picture_reader.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <tiffio.h>

#include <functional>

namespace zelto {
namespace {

constexpr std::uint32_t Width = 70;
constexpr std::uint32_t Height = 45;

struct Layout {
    std::uint16_t photometric = PHOTOMETRIC_SEPARATED;
    std::uint16_t samples = 4;
    std::uint16_t bits = 8;
    bool tiled = false;
    bool separatePlanes = false;
    std::uint16_t extraSample = 0xFFFF;  // the meaning of the last sample; 0xFFFF for none
    std::uint16_t compression = COMPRESSION_LZW;
};

using Sample = std::function<int(std::uint32_t x, std::uint32_t y, int sample)>;  // 0 to 255

// A chunk (strip of ten rows, or tile) of one plane or of all samples.
QByteArray chunkAt(const Layout& layout, std::uint32_t x0, std::uint32_t y0, std::uint32_t width,
                   std::uint32_t height, int plane, const Sample& sample) {
    QByteArray bytes;
    for (std::uint32_t y = y0; y < y0 + height; ++y) {
        for (std::uint32_t x = x0; x < x0 + width; ++x) {
            for (int s = plane < 0 ? 0 : plane; s < (plane < 0 ? layout.samples : plane + 1); ++s) {
                bytes.append(layout.bits / 8, char(x < Width && y < Height ? sample(x, y, s) : 77));
            }
        }
    }
    return bytes;
}

QByteArray tiffBytes(const Layout& layout, const Sample& sample) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    TIFF* tiff = TIFFOpen(qPrintable(file.fileName()), "w");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, Width);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, Height);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, layout.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, layout.samples);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, layout.photometric);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, layout.compression);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG,
                 layout.separatePlanes ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (layout.extraSample != 0xFFFF) TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &layout.extraSample);
    const std::uint32_t chunkWidth = layout.tiled ? 32 : Width;
    const std::uint32_t chunkHeight = layout.tiled ? 16 : 10;
    if (layout.tiled) {
        TIFFSetField(tiff, TIFFTAG_TILEWIDTH, chunkWidth);
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, chunkHeight);
    } else {
        TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, chunkHeight);
    }
    std::uint32_t index = 0;
    for (int plane = layout.separatePlanes ? 0 : -1; plane < (layout.separatePlanes ? layout.samples : 0);
         ++plane) {
        for (std::uint32_t y = 0; y < Height; y += chunkHeight) {
            for (std::uint32_t x = 0; x < Width; x += chunkWidth, ++index) {
                const std::uint32_t rows = layout.tiled ? chunkHeight : std::min(chunkHeight, Height - y);
                QByteArray chunk = chunkAt(layout, x, y, chunkWidth, rows, plane, sample);
                const auto write = layout.tiled ? TIFFWriteEncodedTile : TIFFWriteEncodedStrip;
                EXPECT_EQ(write(tiff, index, chunk.data(), chunk.size()), chunk.size());
            }
        }
    }
    TIFFClose(tiff);
    return file.readAll();
}

QImage expectedPicture(QImage::Format format, const std::function<QRgb(int x, int y)>& color) {
    QImage picture(Width, Height, format);
    for (int y = 0; y < int(Height); ++y) {
        for (int x = 0; x < int(Width); ++x) picture.setPixel(x, y, color(x, y));
    }
    return picture;
}

std::vector<Layout> everyArrangement(Layout layout) {
    std::vector<Layout> layouts;
    for (const std::uint16_t bits : {8, 16}) {
        for (const bool tiled : {false, true}) {
            for (const bool separate : {false, true}) {
                layout.bits = bits;
                layout.tiled = tiled;
                layout.separatePlanes = separate;
                layouts.push_back(layout);
            }
        }
    }
    return layouts;
}

std::string nameOf(const Layout& layout) {
    return std::to_string(layout.bits) + " bits" + (layout.tiled ? ", tiles" : ", strips") +
           (layout.separatePlanes ? ", planes" : "");
}

TEST(TiffDecoder, CmykWithoutAProfileIsMixedFromIdealInks) {
    const Sample inks = [](std::uint32_t x, std::uint32_t y, int s) {
        return s == 3 ? int(y) : int(x) * (s + 1);
    };
    const QImage expected = expectedPicture(QImage::Format_RGB32, [](int x, int y) {
        const int light = 255 - y;
        return qRgb((255 - x) * light / 255, (255 - 2 * x) * light / 255, (255 - 3 * x) * light / 255);
    });
    std::vector<Layout> layouts = everyArrangement({});
    layouts.push_back({.samples = 5, .extraSample = EXTRASAMPLE_UNSPECIFIED});
    for (const Layout& layout : layouts) {
        const Result<Picture> picture = decodePicture(tiffBytes(layout, inks));
        ASSERT_TRUE(picture) << nameOf(layout);
        EXPECT_EQ(picture->image.format(), QImage::Format_RGB32);
        EXPECT_EQ(largestDifference(picture->image, expected), 0) << nameOf(layout);
    }
}

TEST(TiffDecoder, GreyKeepsItsAlphaOfEitherKind) {
    const Sample straight = [](std::uint32_t x, std::uint32_t y, int s) {
        return s == 0 ? int(x) * 3 : int(y) * 5;
    };
    const Sample premultiplied = [&](std::uint32_t x, std::uint32_t y, int s) {
        return s == 0 ? (int(x) * 3 * int(y) * 5 + 127) / 255 : int(y) * 5;
    };
    const QImage expected = expectedPicture(QImage::Format_ARGB32, [](int x, int y) {
                                return qRgba(3 * x, 3 * x, 3 * x, 5 * y);
                            }).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (const std::uint16_t kind : {EXTRASAMPLE_UNASSALPHA, EXTRASAMPLE_ASSOCALPHA}) {
        for (const Layout& layout :
             everyArrangement({.photometric = PHOTOMETRIC_MINISBLACK, .samples = 2, .extraSample = kind})) {
            const Result<Picture> picture =
                decodePicture(tiffBytes(layout, kind == EXTRASAMPLE_ASSOCALPHA ? premultiplied : straight));
            ASSERT_TRUE(picture) << nameOf(layout);
            EXPECT_LE(largestDifference(picture->image, expected), 1) << nameOf(layout) << ", kind " << kind;
        }
    }
}

TEST(TiffDecoder, DataThatCannotBeUnpackedIsDamaged) {
    const Sample noise = [](std::uint32_t x, std::uint32_t y, int s) {
        return int(x * 37 + y * 101 + unsigned(s) * 11) & 0xFF;
    };
    for (const std::uint16_t samples : {std::uint16_t{4}, std::uint16_t{2}}) {
        const bool isCmyk = samples == 4;
        QByteArray bytes =
            tiffBytes({.photometric = std::uint16_t(isCmyk ? PHOTOMETRIC_SEPARATED : PHOTOMETRIC_MINISBLACK),
                       .samples = samples,
                       .extraSample = std::uint16_t(isCmyk ? 0xFFFF : EXTRASAMPLE_UNASSALPHA)},
                      noise);
        ASSERT_TRUE(decodePicture(bytes));
        bytes.replace(400, 300, QByteArray(300, '\xFF'));
        EXPECT_FALSE(decodePicture(bytes)) << samples;
    }
}

}  // namespace
}  // namespace zelto
