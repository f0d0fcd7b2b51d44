// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_reader.h"

#include "support/test_pictures.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

// Four flat quarters, so that lossy coding leaves their middles alone: red, green over blue, white.
QImage quarters(QSize size) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool right = x >= size.width() / 2;
            const bool lower = y >= size.height() / 2;
            picture.setPixel(x, y,
                             lower ? (right ? 0xFFFFFFFF : 0xFF0000FF) : (right ? 0xFF00FF00 : 0xFFFF0000));
        }
    }
    return picture;
}

// The letters of the four quarters in reading order.
std::string cornersOf(const QImage& picture) {
    std::string corners;
    for (const int y : {1, 3}) {
        for (const int x : {1, 3}) {
            const QColor color = picture.pixelColor(picture.width() * x / 4, picture.height() * y / 4);
            const int bits =
                (color.red() > 200 ? 1 : 0) + (color.green() > 200 ? 2 : 0) + (color.blue() > 200 ? 4 : 0);
            corners += ".RG.B..W"[bits];
        }
    }
    return corners;
}

TEST(PictureReader, TurnsEveryJpegOrientationUpright) {
    const QSize stored(96, 160);
    struct Row {
        int orientation;
        const char* corners;
        bool swapsAxes;
    };
    for (const Row& row :
         {Row{0, "RGBW", false}, Row{1, "RGBW", false}, Row{2, "GRWB", false}, Row{3, "WBGR", false},
          Row{4, "BWRG", false}, Row{5, "RBGW", true}, Row{6, "BRWG", true}, Row{7, "WGBR", true},
          Row{8, "GWRB", true}, Row{9, "RGBW", false}}) {
        TestJpeg options;
        options.orientation = row.orientation;
        const Result<Picture> picture = decodePicture(jpegBytes(quarters(stored), options));
        ASSERT_TRUE(picture) << row.orientation;
        EXPECT_EQ(picture->image.size(), row.swapsAxes ? stored.transposed() : stored) << row.orientation;
        EXPECT_EQ(cornersOf(picture->image), row.corners) << row.orientation;
        EXPECT_EQ(picture->image.format(), QImage::Format_RGB32);
    }
}

}  // namespace
}  // namespace zelto
