// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_additions.h"

#include "pictures/lengths.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

QImage rowOf(const QList<QRgb>& pixels, QImage::Format format = QImage::Format_ARGB32_Premultiplied) {
    return pictureOf({int(pixels.size()), 1}, format, [&](int x, int) { return pixels[x]; });
}

QList<QRgb> pixelsOf(const QImage& row) {
    QList<QRgb> pixels;
    for (int x = 0; x < row.width(); ++x) pixels.append(storedValues(row).pixel(x, 0));
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
        EXPECT_EQ(pixelsOf(replaceColor(picture, row.red, row.green, row.blue)), row.expected)
            << row.red << ' ' << row.green << ' ' << row.blue;
    }
    EXPECT_EQ(pixelsOf(picture), untouched) << "a copy of the caller's was changed";
}

TEST(ReplaceColor, FindsEveryByteThatAnEditorCanStore) {
    for (int value = 0; value < 256; ++value) {
        const QRgb near = qRgb(value ^ 1, 255 - value, value);
        const QImage opaque = rowOf({qRgb(value, 255 - value, value), near}, QImage::Format_RGB32);
        const auto component = static_cast<float>(value / 255.0);
        const auto complement = static_cast<float>((255 - value) / 255.0);
        EXPECT_EQ(pixelsOf(replaceColor(opaque, component, complement, component)), QList<QRgb>({0U, near}))
            << value;
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
        EXPECT_EQ(pixelsOf(imageWithOpacity(rowOf({row.before}), row.opacity)), QList<QRgb>({row.after}));
    }
    const QImage opaque = rowOf({0xffff8001U}, QImage::Format_RGB32);
    EXPECT_EQ(pixelsOf(imageWithOpacity(opaque, 0.5)), QList<QRgb>({0x80804001U}));
}

TEST(ImageRotatedByDegrees, QuarterTurnsMovePixelsExactly) {
    //  1 2 3        3 6
    //  4 5 6   ->   2 5   counter-clockwise
    //               1 4
    const QImage picture = pictureOf({3, 2}, QImage::Format_ARGB32_Premultiplied,
                                     [](int x, int y) { return 0xff000001U + QRgb(3 * y + x); });
    struct Row {
        std::int64_t degrees;
        int columns;
        const char* pixels;
    };
    const Row rows[] = {{0, 3, "123456"},   {90, 2, "362514"},   {180, 3, "654321"}, {-90, 2, "415263"},
                        {270, 2, "415263"}, {-180, 3, "654321"}, {720, 3, "123456"}, {-630, 2, "362514"}};
    for (const Row& row : rows) {
        const QImage turned = imageRotatedByDegrees(picture, row.degrees);
        ASSERT_EQ(turned.size(), QSize(row.columns, 6 / row.columns)) << row.degrees;
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(qBlue(turned.pixel(i % row.columns, i / row.columns)), row.pixels[i] - '0');
    }
}

// Area, centre of mass and colours of the turned picture say that it is whole, in its place, turned the right
// way and mixed with nothing but transparency at its edges.
TEST(ImageRotatedByDegrees, TurnsCounterClockwiseAboutTheCentreWithSmoothEdges) {
    const QImage picture = pictureOf({80, 40}, QImage::Format_RGB32,
                                     [](int x, int) { return x < 40 ? qRgb(0, 0, 255) : qRgb(255, 0, 0); });
    for (const int degrees : {30, 135, -80}) {
        const QImage turned = storedValues(imageRotatedByDegrees(picture, degrees));
        const QSizeF box = rotatedSize(picture.size(), degrees);
        EXPECT_EQ(turned.size(), QSize(int(std::ceil(box.width())), int(std::ceil(box.height()))));
        double red = 0, blue = 0, redX = 0, redY = 0;
        bool smooth = false;
        for (int y = 0; y < turned.height(); ++y) {
            for (int x = 0; x < turned.width(); ++x) {
                const QRgb pixel = turned.pixel(x, y);
                ASSERT_NEAR(qRed(pixel) + qBlue(pixel), qAlpha(pixel), 2) << "x " << x << " y " << y;
                red += qRed(pixel);
                blue += qBlue(pixel);
                redX += qRed(pixel) * (x + 0.5 - turned.width() / 2.0);
                redY += qRed(pixel) * (turned.height() / 2.0 - y - 0.5);
                smooth = smooth || (qAlpha(pixel) > 20 && qAlpha(pixel) < 235);
            }
        }
        const double half = 40 * 40 * 255;
        EXPECT_NEAR(red / half, 1.0, 0.01) << degrees;
        EXPECT_NEAR(blue / half, 1.0, 0.01) << degrees;
        EXPECT_NEAR(redX / red, 20 * std::cos(degrees * M_PI / 180), 0.1) << degrees;
        EXPECT_NEAR(redY / red, 20 * std::sin(degrees * M_PI / 180), 0.1) << degrees;
        EXPECT_TRUE(smooth) << degrees;
    }
}

TEST(RotatedSize, IsTheBoundingBoxExactForQuarterTurns) {
    for (const std::int64_t degrees : {0, -180, 540, 90, -810}) {
        const QSizeF turned = rotatedSize({200.25, 50.1}, degrees);
        const QSizeF expected = degrees % 180 == 0 ? QSizeF(200.25, 50.1) : QSizeF(50.1, 200.25);
        EXPECT_TRUE(turned.width() == expected.width() && turned.height() == expected.height()) << degrees;
    }
    for (const std::int64_t degrees : {30, -30, 150, 210, 390}) {
        const QSizeF turned = rotatedSize({200, 100}, degrees);
        EXPECT_NEAR(turned.width(), 100 * std::sqrt(3.0) + 50, 1e-9) << degrees;
        EXPECT_NEAR(turned.height(), 100 + 50 * std::sqrt(3.0), 1e-9) << degrees;
    }
}

}  // namespace
}  // namespace zelto
