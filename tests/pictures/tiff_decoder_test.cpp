// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/tiff_decoder.h"

#include "pictures/picture_reader.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>
#include <tiffio.h>

#include <functional>

namespace zelto {
namespace {

constexpr int Width = 70;
constexpr int Height = 45;

struct Layout {
    std::uint16_t photometric = PHOTOMETRIC_SEPARATED;
    std::uint16_t samples = 4;
    std::uint16_t bits = 8;
    bool tiled = false;
    bool separatePlanes = false;
    std::uint16_t extraSample = 0xFFFF;  // the meaning of the last sample; 0xFFFF for none
    std::uint16_t compression = COMPRESSION_LZW;
};

using Sample = std::function<int(int x, int y, int sample)>;  // 0 to 255

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
    const int width = layout.tiled ? 32 : Width;
    const int height = layout.tiled ? 16 : 10;
    TIFFSetField(tiff, layout.tiled ? TIFFTAG_TILEWIDTH : TIFFTAG_ROWSPERSTRIP,
                 layout.tiled ? width : height);
    if (layout.tiled) TIFFSetField(tiff, TIFFTAG_TILELENGTH, height);
    std::uint32_t index = 0;
    const int planes = layout.separatePlanes ? layout.samples : 1;
    for (int plane = 0; plane < planes; ++plane) {
        for (int top = 0; top < Height; top += height) {
            for (int left = 0; left < Width; left += width, ++index) {
                QByteArray chunk;  // a strip or tile of one plane or of all samples
                for (int y = top; y < (layout.tiled ? top + height : std::min(top + height, Height)); ++y) {
                    for (int x = left; x < left + width; ++x) {
                        for (int s = plane; s < (layout.separatePlanes ? plane + 1 : layout.samples); ++s)
                            chunk.append(layout.bits / 8,
                                         char(x < Width && y < Height ? sample(x, y, s) : 77));
                    }
                }
                const auto write = layout.tiled ? TIFFWriteEncodedTile : TIFFWriteEncodedStrip;
                EXPECT_EQ(write(tiff, index, chunk.data(), chunk.size()), chunk.size());
            }
        }
    }
    TIFFClose(tiff);
    return file.readAll();
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

void expectPicture(const Layout& layout, const Sample& sample, const QImage& expected) {
    const Result<Picture> picture = decodePicture(tiffBytes(layout, sample));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->image.format(), expected.format());
    // One level where sixteen bits or a premultiplied colour had to be rounded.
    EXPECT_LE(largestDifference(picture->image, expected), expected.hasAlphaChannel() ? 1 : 0)
        << layout.bits << " bits, tiles " << layout.tiled << ", planes " << layout.separatePlanes;
}

TEST(TiffDecoder, CmykWithoutAProfileIsMixedFromIdealInks) {
    const Sample inks = [](int x, int y, int s) { return s == 3 ? y : x * (s + 1); };
    const QImage expected = pictureOf({Width, Height}, QImage::Format_RGB32, [](int x, int y) {
        const int light = 255 - y;
        return qRgb((255 - x) * light / 255, (255 - 2 * x) * light / 255, (255 - 3 * x) * light / 255);
    });
    for (const Layout& layout : everyArrangement({})) expectPicture(layout, inks, expected);
    expectPicture({.samples = 5, .extraSample = EXTRASAMPLE_UNSPECIFIED}, inks, expected);
}

TEST(TiffDecoder, GreyKeepsItsAlphaOfEitherKind) {
    const Sample straight = [](int x, int y, int s) { return s == 0 ? x * 3 : y * 5; };
    const Sample premultiplied = [](int x, int y, int s) {
        return s == 0 ? (x * 3 * y * 5 + 127) / 255 : y * 5;
    };
    const QImage expected = pictureOf({Width, Height}, QImage::Format_ARGB32_Premultiplied, [](int x, int y) {
        return qPremultiply(qRgba(3 * x, 3 * x, 3 * x, 5 * y));
    });
    for (const std::uint16_t kind : {EXTRASAMPLE_UNASSALPHA, EXTRASAMPLE_ASSOCALPHA}) {
        for (const Layout& layout :
             everyArrangement({.photometric = PHOTOMETRIC_MINISBLACK, .samples = 2, .extraSample = kind}))
            expectPicture(layout, kind == EXTRASAMPLE_ASSOCALPHA ? premultiplied : straight, expected);
    }
}

TEST(TiffDecoder, DataThatCannotBeUnpackedIsDamaged) {
    const Sample noise = [](int x, int y, int s) { return (x * 37 + y * 101 + s * 11) & 0xFF; };
    for (const Layout& layout : {Layout{}, Layout{.photometric = PHOTOMETRIC_MINISBLACK,
                                           .samples = 2,
                                           .extraSample = EXTRASAMPLE_UNASSALPHA}}) {
        QByteArray bytes = tiffBytes(layout, noise);
        ASSERT_TRUE(decodePicture(bytes));
        bytes.replace(400, 300, QByteArray(300, '\xFF'));
        EXPECT_FALSE(decodePicture(bytes)) << layout.samples;
    }
}

}  // namespace
}  // namespace zelto
