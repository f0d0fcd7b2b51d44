// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_reader.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

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
    const std::pair<QByteArray, QRgb> patches[] = {
        {"00000000", qRgb(255, 255, 255)}, {"ff000000", qRgb(0, 255, 255)}, {"00ff0000", qRgb(255, 0, 255)},
        {"0000ff00", qRgb(255, 255, 0)},   {"000000ff", qRgb(0, 0, 0)},     {"33669980", qRgb(102, 76, 51)}};
    constexpr int Side = 16;
    QByteArray row;
    for (const auto& [inks, color] : patches) row += QByteArray::fromHex(inks).repeated(Side);
    const QSize size(int(row.size()) / 4, Side);
    for (const auto& [adobe, ycck] : {std::pair{false, false}, {true, false}, {true, true}}) {
        const Result<Picture> picture = decodePicture(cmykJpegBytes(row.repeated(Side), size, adobe, ycck));
        ASSERT_TRUE(picture);
        int x = Side / 2;
        for (const auto& [inks, color] : patches) {
            EXPECT_LE(largestDifference(picture->image.pixel(x, Side / 2), color), 4) << inks.data() << ycck;
            x += Side;
        }
    }
}

TEST(JpegDecoder, ResolutionIsTakenFromJfifThenExif) {
    struct Row {
        const char* name;
        TestJpeg options;
        double dpiX, dpiY;
    };
    for (const Row& row : {
             Row{"none", {}, 72.0, 72.0},
             Row{"jfif", {.jfifDensity = 300}, 300.0, 300.0},
             Row{"jfif in centimetres", {.jfifDensity = 118, .jfifUnit = 2}, 299.72, 299.72},
             Row{"jfif of two sorts", {.jfifDensity = 200, .jfifDensityY = 100}, 200.0, 100.0},
             Row{"turned", {.orientation = 6, .jfifDensity = 200, .jfifDensityY = 100}, 100.0, 200.0},
             Row{"exif", {.exifDpi = 240}, 240.0, 240.0},
             Row{"both", {.exifDpi = 240, .jfifDensity = 96}, 96.0, 96.0},
             Row{"only proportions", {.exifDpi = 240, .jfifDensity = 1, .jfifUnit = 0}, 240.0, 240.0},
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
