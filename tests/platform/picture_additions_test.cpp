// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/picture_additions.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

QImage rowOf(std::initializer_list<QRgb> pixels,
             QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
    QImage row(static_cast<int>(pixels.size()), 1, format);
    int x = 0;
    for (const QRgb pixel : pixels) reinterpret_cast<QRgb*>(row.scanLine(0))[x++] = pixel;
    return row;
}

QRgb pixelAt(const QImage& picture, int x, int y) {
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x];
}

QList<QRgb> pixelsOf(const QImage& row) {
    QList<QRgb> pixels;
    for (int x = 0; x < row.width(); ++x) pixels.append(pixelAt(row, x, 0));
    return pixels;
}

TEST(ReplaceColor, RemovesExactlyTheColourAndNothingNearIt) {
    const QImage picture =
        rowOf({0xffffffffU, 0xfffffefeU, 0xfffefefeU, 0xff204060U, 0x80204060U, 0xff214060U});
    struct Row {
        float red, green, blue;
        QList<QRgb> expected;
    };
    const QList<QRgb> untouched = pixelsOf(picture);
    const Row rows[] = {
        {1.0F, 1.0F, 1.0F, {0U, 0xfffffefeU, 0xfffefefeU, 0xff204060U, 0x80204060U, 0xff214060U}},
        // The premultiplied bytes are compared, whatever the alpha beside them.
        {32 / 255.0F, 64 / 255.0F, 96 / 255.0F, {0xffffffffU, 0xfffffefeU, 0xfffefefeU, 0U, 0U, 0xff214060U}},
        {0.5F, 0.25F, 0.125F, untouched},
        {1.0F, 1.0F, 1.0000001F, untouched},
        {-1.0F, 1.0F, 1.0F, untouched},
        {NAN, 1.0F, 1.0F, untouched},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(pixelsOf(replaceColor(picture, row.red, row.green, row.blue, 0.5)), row.expected)
            << row.red << ' ' << row.green << ' ' << row.blue;
    }
    EXPECT_EQ(pixelsOf(picture), untouched) << "a copy of the caller's was changed";
}

TEST(ReplaceColor, FindsEveryByteThatAnEditorCanStore) {
    for (int value = 0; value < 256; ++value) {
        const QImage opaque = rowOf({qRgb(value, 255 - value, value), qRgb(value ^ 1, 255 - value, value)},
                                    QImage::Format_RGB32);
        const auto component = static_cast<float>(value / 255.0);
        const auto complement = static_cast<float>((255 - value) / 255.0);
        const QImage result = replaceColor(opaque, component, complement, component, 0.0);
        EXPECT_EQ(pixelAt(result, 0, 0), 0U) << value;
        EXPECT_EQ(pixelAt(result, 1, 0), pixelAt(opaque, 1, 0)) << value;
    }
}

TEST(ImageWithOpacity, ScalesPremultipliedPixels) {
    struct Row {
        double opacity;
        QRgb before, after;
    };
    const Row rows[] = {
        {1.0, 0xff8040ffU, 0xff8040ffU},   {1.5, 0x40302010U, 0x40302010U}, {0.5, 0xffff8001U, 0x80804001U},
        {0.5, 0x80402000U, 0x40201000U},   {0.0, 0xffffffffU, 0U},          {-2.0, 0xff102030U, 0U},
        {0.996, 0xffffffffU, 0xfefefefeU},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(pixelAt(imageWithOpacity(rowOf({row.before}), row.opacity), 0, 0), row.after)
            << row.opacity;
    }
    const QImage opaque = rowOf({0xffff8001U}, QImage::Format_RGB32);
    EXPECT_EQ(pixelAt(imageWithOpacity(opaque, 0.5), 0, 0), 0x80804001U);
}

TEST(PictureAdditions, ChangeAPictureThatIsMovedInWithoutCopyingIt) {
    QImage picture = rowOf({0xffffffffU, 0xff000000U});
    const uchar* const bits = picture.constBits();
    picture = imageWithOpacity(replaceColor(std::move(picture), 1, 1, 1, 0), 0.5);
    EXPECT_EQ(picture.constBits(), bits);
    EXPECT_EQ(pixelsOf(picture), QList<QRgb>({0U, 0x80000000U}));
}

TEST(ImageRotatedByDegrees, QuarterTurnsMovePixelsExactly) {
    //  1 2 3        3 6
    //  4 5 6   ->   2 5   counter-clockwise
    //               1 4
    QImage picture(3, 2, QImage::Format_ARGB32_Premultiplied);
    for (int i = 0; i < 6; ++i) picture.setPixel(i % 3, i / 3, 0xff000001U + static_cast<QRgb>(i));
    struct Row {
        double degrees;
        int columns;
        const char* pixels;
    };
    const Row rows[] = {{0, 3, "123456"},    {90, 2, "362514"},  {180, 3, "654321"}, {270, 2, "415263"},
                        {-90, 2, "415263"},  {360, 3, "123456"}, {450, 2, "362514"}, {-270, 2, "362514"},
                        {-180, 3, "654321"}, {720, 3, "123456"}, {-630, 2, "362514"}};
    for (const Row& row : rows) {
        const QImage turned = imageRotatedByDegrees(picture, row.degrees, 1.0);
        ASSERT_EQ(turned.size(), QSize(row.columns, 6 / row.columns)) << row.degrees;
        std::string pixels;
        for (int i = 0; i < 6; ++i) {
            pixels += static_cast<char>('0' + (pixelAt(turned, i % row.columns, i / row.columns) & 0xffU));
        }
        EXPECT_EQ(pixels, row.pixels) << row.degrees;
    }
}

TEST(ImageRotatedByDegrees, CanvasIsTheBoundingBoxRoundedUp) {
    struct Row {
        QSize size;
        double degrees;
        QSize expected;
    };
    const Row rows[] = {
        {{100, 100}, 45, {142, 142}},
        {{200, 50}, 30, {199, 144}},
        {{200, 50}, -30, {199, 144}},
        {{500, 0 + 1}, 0.1, {501, 2}},
        {{400, 300}, std::atan2(3, 4) * 180 / 3.14159265358979323846, {500, 480}},  // whole but for rounding
    };
    for (const Row& row : rows) {
        QImage picture(row.size, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_EQ(imageRotatedByDegrees(picture, row.degrees, 1.0).size(), row.expected) << row.degrees;
    }
    EXPECT_TRUE(imageRotatedByDegrees(QImage(), 30, 1.0).isNull());
}

// Area, centre of mass and colours of the turned picture say that it is whole, in its place, turned the right
// way and mixed with nothing but transparency at its edges.
TEST(ImageRotatedByDegrees, TurnsCounterClockwiseAboutTheCentreWithSmoothEdges) {
    QImage picture(80, 40, QImage::Format_RGB32);
    picture.fill(qRgb(0, 0, 255));
    for (int y = 0; y < 40; ++y) {
        for (int x = 40; x < 80; ++x) picture.setPixel(x, y, qRgb(255, 0, 0));
    }
    for (const double degrees : {30.0, 135.0, -80.0}) {
        const QImage turned = imageRotatedByDegrees(picture, degrees, 0.5);
        double red = 0;
        double blue = 0;
        double redX = 0;
        double redY = 0;
        bool smooth = false;
        for (int y = 0; y < turned.height(); ++y) {
            for (int x = 0; x < turned.width(); ++x) {
                const QRgb pixel = pixelAt(turned, x, y);
                ASSERT_NEAR(qRed(pixel) + qBlue(pixel), qAlpha(pixel), 2) << "x " << x << " y " << y;
                red += qRed(pixel);
                blue += qBlue(pixel);
                redX += qRed(pixel) * (x + 0.5 - turned.width() / 2.0);
                redY += qRed(pixel) * (turned.height() / 2.0 - y - 0.5);
                smooth = smooth || (qAlpha(pixel) > 20 && qAlpha(pixel) < 108);
            }
        }
        const double half = 40 * 40 * 128;
        EXPECT_NEAR(red / half, 1.0, 0.01) << degrees;
        EXPECT_NEAR(blue / half, 1.0, 0.01) << degrees;
        EXPECT_NEAR(redX / red, 20 * std::cos(degrees * M_PI / 180), 0.1) << degrees;
        EXPECT_NEAR(redY / red, 20 * std::sin(degrees * M_PI / 180), 0.1) << degrees;
        EXPECT_TRUE(smooth) << degrees;
    }
}

}  // namespace
}  // namespace zelto
