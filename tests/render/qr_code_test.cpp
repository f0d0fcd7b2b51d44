// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/qr_code.h"

#include "render/placement.h"
#include "render/tiling.h"
#include "support/ink.h"
#include "support/qr_reader.h"
#include "support/records.h"

#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelto {
namespace {

// A symbol of 25 modules a side.
const QString TwentyFive = QStringLiteral("https://example.org/photos");

// The code alone on a clear picture of its own size.
QImage drawn(const QString& text, double side, const std::optional<Color>& background) {
    const std::optional<QrImage> code = qrImageForString(text, side, background);
    return code ? pictureOf(*code, QSizeF(side, side)) : QImage();
}

TEST(QrCode, ReadsBackAsTheText) {
    const std::pair<std::optional<Color>, double> looks[] = {
        {std::nullopt, 450.0}, {Color::white(), 512.7}, {Color{0.9F, 0.9F, 0.2F, 1.0F}, 600.0}};
    for (const QString& text : {QStringLiteral("a"), TwentyFive,
                                QStringLiteral("Grüße 日本 🙂\nline two"), QString(1200, u'x')}) {
        for (const auto& [background, side] : looks)
            EXPECT_EQ(readQrCodes(drawn(text, side, background)), QStringList(text)) << side;
    }
}

// From the top left, of the dark pixels on a clear background.
QRect darkBox(const QImage& picture) {
    return colorBox(picture, Qt::black, 127);
}

TEST(QrCode, ModulesAreWholeUnitsCentredInTheSurface) {
    const std::optional<QrSymbol> symbol = encodeQrSymbol(TwentyFive);
    ASSERT_TRUE(symbol);
    ASSERT_EQ(symbol->width, 25);
    const std::pair<int, QRect> rows[] = {
        {200, {0, 0, 200, 200}}, {211, {5, 5, 200, 200}}, {25, {0, 0, 25, 25}}};
    for (const auto& [side, box] : rows) {
        QImage surface(side, side, QImage::Format_ARGB32_Premultiplied);
        surface.fill(Qt::transparent);
        QPainter painter(&surface);
        drawQRCode(*symbol, painter, side);
        painter.end();
        ASSERT_EQ(darkBox(surface), box);
        const int module = box.width() / 25;
        for (int i = 0; i < 25 * 25; ++i) {
            const QRect square(box.topLeft() + QPoint(i % 25, i / 25) * module, QSize(module, module));
            const int alpha = (symbol->modules[i] & 1) != 0 ? 255 : 0;
            ASSERT_EQ(qAlpha(surface.pixel(square.topLeft())), alpha) << i;
            ASSERT_EQ(qAlpha(surface.pixel(square.bottomRight())), alpha) << i;
        }
    }
}

TEST(QrCode, LeavesATwentiethFreeOnEverySide) {
    struct {
        double side;
        QRect box;  // from the top left
    } const rows[] = {
        {200.0, {10, 10, 180, 180}},
        {199.0, {20, 20, 159, 159}},  // 175 of 199 units in the middle, shrunk into 181 pixels
        {20.0, {1, 5, 14, 14}},       // fewer pixels than modules: shrunk towards the lower left corner
    };
    for (const auto& row : rows) {
        const QImage picture = drawn(TwentyFive, row.side, std::nullopt);
        const QRect box = darkBox(picture);
        EXPECT_NEAR(box.x(), row.box.x(), 1) << row.side;
        EXPECT_NEAR(box.y(), row.box.y(), 1) << row.side;
        EXPECT_NEAR(box.width(), row.box.width(), 1) << row.side;
    }
}

TEST(QrCode, TheBackgroundFillsTheWholeSquareOrStaysClear) {
    EXPECT_EQ(drawn(TwentyFive, 200.0, std::nullopt).pixel(0, 0), qRgba(0, 0, 0, 0));
    const QImage yellow = drawn(TwentyFive, 200.0, Color{1.0F, 1.0F, 0.0F, 0.5F});
    for (const QPoint corner : {QPoint(0, 0), QPoint(199, 199)})
        EXPECT_EQ(yellow.pixel(corner), qRgba(128, 128, 0, 128)) << "premultiplied";
    EXPECT_EQ(yellow.pixel(14, 14), qRgb(0, 0, 0));
}

TEST(QrCode, TouchingModulesLeaveNoSeams) {
    const QImage picture = drawn(TwentyFive, 333.0, Color::white());
    // The left edge of the upper left finder pattern is seven dark modules long.
    for (int y = 30; y < 95; ++y) ASSERT_EQ(picture.pixel(30, y), qRgb(0, 0, 0)) << y;
}

TEST(QrCode, NothingWhereThereIsNoSymbolOrNoRoom) {
    EXPECT_FALSE(qrImageForString(QString(), 200.0, Color::white()));
    EXPECT_FALSE(qrImageForString(QString(2954, u'x'), 200.0, Color::white()));
    EXPECT_TRUE(qrImageForString(QString(2953, u'x'), 200.0, Color::white()));
    for (const double side : {0.0, -1.0, HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(qrImageForString(TwentyFive, side, Color::white())) << side;
    }
}

TEST(QrCode, RelativeCodesReachTheEdgesOfPhotosOfAnyWidth) {
    Watermark code(watermark_type::QrCode);
    for (const int width : {640,  800,  1000, 1024, 1280, 1500, 1600, 1920, 2000, 2048,
                            2400, 3000, 3264, 4000, 4032, 5184, 5472, 6000, 6048, 8256}) {
        const int height = width * 3 / 4;
        for (int share = 1; share <= 75; ++share) {
            code.ResizeWidth = static_cast<float>(share / 100.0);
            const double side = qrSide(code, QSizeF(width, height));
            const auto placeAt = [&](std::int32_t position) {
                code.Position = position;
                return placedFrame(code, {side, side}, QSizeF(width, height)).topLeft();
            };
            // In hundredths of a pixel, then cut to whole ones.
            const QPoint corner((100 * width - share * width) / 100, (100 * height - share * width) / 100);
            ASSERT_EQ(placeAt(3), QPointF(corner)) << share << " % of " << width;
            ASSERT_EQ(placeAt(5).x(), (100 * width - share * width) / 200) << share << " % of " << width;
        }
    }
}

// Also drawn larger than the photo, of which it then shows the lower left part.
TEST(QrCode, ALargeCodeIsDrawnAsFarAsThePhotoGoes) {
    Watermark code(watermark_type::QrCode);
    code.Text = TwentyFive;
    code.ResizeFormat = qr_resize::Absolute;
    code.ResizeWidth = 40'000;
    code.Position = 7;
    EXPECT_EQ(darkBox(composed(code, plainPhoto({2'100, 3'000}))).bottomLeft(), QPoint(2'000, 999));
}

}  // namespace
}  // namespace zelto
