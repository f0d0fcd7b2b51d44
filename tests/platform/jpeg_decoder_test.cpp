// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_reader.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(JpegDecoder, PixelsAreThoseThatWereStored) {
    const QImage scene = drawnScene({333, 207});
    struct Row {
        const char* name;
        TestJpeg options;
        int tolerance;  // lossy coding at quality 100: rounding twice, and halved chroma on sharp edges
    };
    TestJpeg fine{.quality = 100};
    TestJpeg progressive{.quality = 100, .progressive = true};
    TestJpeg grey{.quality = 100, .grey = true};
    for (const Row& row : {Row{"4:4:4", fine, 4}, Row{"progressive", progressive, 4}, Row{"grey", grey, 3}}) {
        const Result<Picture> picture = decodePicture(jpegBytes(scene, row.options));
        ASSERT_TRUE(picture) << row.name;
        EXPECT_EQ(picture->image.format(), QImage::Format_RGB32) << row.name;
        EXPECT_EQ(picture->image.pixel(5, 5) >> 24, 255U) << row.name;
        const QImage expected = row.options.grey ? scene.convertToFormat(QImage::Format_Grayscale8) : scene;
        EXPECT_LE(largestDifference(picture->image, expected.convertToFormat(QImage::Format_RGB32)),
                  row.tolerance)
            << row.name;
    }
}

TEST(JpegDecoder, OdditiesThatCostNoPixelAreForgiven) {
    const QByteArray plain = jpegBytes(drawnScene({80, 60}));
    const QImage expected = decodePicture(plain)->image;
    const qsizetype tables = plain.indexOf(QByteArrayLiteral("\xFF\xDB"));
    QByteArray strayBytes = plain;
    strayBytes.insert(tables, QByteArray(7, '\0'));
    QByteArray unknownSegment = plain;
    unknownSegment.insert(tables, QByteArray("\xFF\xE5\x00\x06zelt", 8));
    for (const QByteArray& bytes :
         {strayBytes, unknownSegment, plain + QByteArray(5000, 'z'), plain + plain}) {
        const Result<Picture> picture = decodePicture(bytes);
        ASSERT_TRUE(picture);
        EXPECT_EQ(largestDifference(picture->image, expected), 0);
    }
}

TEST(JpegDecoder, LostRestartIntervalsAreDamage) {
    QByteArray bytes = jpegBytes(drawnScene({160, 120}));
    const qsizetype middle = bytes.size() / 2;
    bytes.replace(middle, 2, QByteArrayLiteral("\xFF\xD3"));
    EXPECT_FALSE(decodePicture(bytes));
}

TEST(JpegDecoder, CmykIsReadHoweverItIsStored) {
    struct Patch {
        uchar inks[4];
        QRgb color;
    };
    constexpr Patch Patches[] = {
        {{0, 0, 0, 0}, qRgb(255, 255, 255)},     {{255, 0, 0, 0}, qRgb(0, 255, 255)},
        {{0, 255, 0, 0}, qRgb(255, 0, 255)},     {{0, 0, 255, 0}, qRgb(255, 255, 0)},
        {{0, 0, 0, 255}, qRgb(0, 0, 0)},         {{51, 102, 153, 0}, qRgb(204, 153, 102)},
        {{51, 102, 153, 128}, qRgb(102, 76, 51)}};
    constexpr int Side = 16;
    QByteArray pixels;
    for (int y = 0; y < Side; ++y) {
        for (const Patch& patch : Patches) {
            for (int x = 0; x < Side; ++x) pixels.append(reinterpret_cast<const char*>(patch.inks), 4);
        }
    }
    const QSize size(Side * int(std::size(Patches)), Side);
    struct Row {
        bool adobe;
        bool ycck;
    };
    for (const Row& row : {Row{false, false}, Row{true, false}, Row{true, true}}) {
        const Result<Picture> picture = decodePicture(cmykJpegBytes(pixels, size, row.adobe, row.ycck));
        ASSERT_TRUE(picture);
        for (int i = 0; i < int(std::size(Patches)); ++i) {
            const QRgb color = picture->image.pixel(i * Side + Side / 2, Side / 2);
            QImage got(1, 1, QImage::Format_RGB32);
            QImage expected = got.copy();
            got.setPixel(0, 0, color);
            expected.setPixel(0, 0, Patches[i].color);
            EXPECT_LE(largestDifference(got, expected), 4) << "patch " << i << (row.ycck ? " YCCK" : " CMYK");
            EXPECT_EQ(qAlpha(color), 255);
        }
    }
}

TEST(JpegDecoder, ResolutionIsTakenFromJfifThenExif) {
    struct Row {
        const char* name;
        TestJpeg options;
        double dpiX;
        double dpiY;
    };
    for (const Row& row : {
             Row{"none", {}, 72.0, 72.0},
             Row{"jfif", {.jfifDensity = 300}, 300.0, 300.0},
             Row{"jfif in centimetres", {.jfifDensity = 118, .jfifUnit = 2}, 299.72, 299.72},
             Row{"jfif of two sorts", {.jfifDensity = 200, .jfifDensityY = 100}, 200.0, 100.0},
             Row{"turned", {.orientation = 6, .jfifDensity = 200, .jfifDensityY = 100}, 100.0, 200.0},
             Row{"exif", {.exifDpi = 240}, 240.0, 240.0},
             Row{"both", {.exifDpi = 240, .jfifDensity = 96}, 96.0, 96.0},
             Row{"jfif gives only proportions",
                 {.exifDpi = 240, .jfifDensity = 1, .jfifUnit = 0},
                 240.0,
                 240.0},
             Row{"one dot per inch", {.jfifDensity = 1}, 72.0, 72.0},
         }) {
        const Result<Picture> picture = decodePicture(jpegBytes(drawnScene({32, 24}), row.options));
        ASSERT_TRUE(picture) << row.name;
        EXPECT_NEAR(picture->dpiX, row.dpiX, 1e-9) << row.name;
        EXPECT_NEAR(picture->dpiY, row.dpiY, 1e-9) << row.name;
    }
}

}  // namespace
}  // namespace zelto
