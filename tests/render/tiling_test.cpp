// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/tiling.h"

#include "composed.h"
#include "render/placement.h"
#include "render/text_block.h"
#include "support/ink.h"

#include <QBuffer>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelto {
namespace {

// 40 x 20: red, with a green corner on the lower left and a blue one on the upper right.
QImage sign() {
    QImage picture(40, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    QPainter painter(&picture);
    painter.fillRect(0, 10, 10, 10, Qt::green);
    painter.fillRect(30, 0, 10, 10, Qt::blue);
    return picture;
}

Watermark logoRecord(const QImage& picture, std::int32_t position) {
    Watermark record(watermark_type::Image);
    QBuffer buffer(&record.ImageData);
    picture.save(&buffer, "PNG");
    record.Transparency = 1.0F;
    record.Position = position;
    return record;
}

// A pixel by its place right of and above the lower-left corner.
QColor at(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, picture.height() - 1 - y);
}

Watermark tiled(bool horizontal, bool vertical, std::int64_t right, std::int64_t above,
                std::int32_t position = 1) {
    Watermark record = logoRecord(sign(), position);
    record.HorizontalTiling = horizontal;
    record.VerticalTiling = vertical;
    record.HorizontalSpacing = right;
    record.VerticalSpacing = above;
    return record;
}

TEST(Tiling, FillsTheAreaFromItsLowerLeftCornerEdgeToEdge) {
    const QImage picture = composed(tiled(true, true, 0, 0), plainPhoto({210, 90}));
    for (int y = 0; y < 90; ++y) {
        for (int x = 0; x < 210; ++x) {
            ASSERT_EQ(at(picture, x, y), sign().pixelColor(x % 40, 19 - y % 20)) << x << ' ' << y;
        }
    }
}

TEST(Tiling, PutsSpacingRightOfAndAboveEveryTileInsideThePaddings) {
    Watermark record = tiled(true, true, 13, 7);
    record.PaddingLeft = 11;
    record.PaddingBottom = 5;
    record.PaddingRight = 17;
    record.PaddingTop = 3;
    const QImage picture = composed(record, plainPhoto({400, 300}));
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 400; ++x) {
            const bool inside = x >= 11 && x < 383 && y >= 5 && y < 297;
            const int tileX = (x - 11) % 53;
            const int tileY = (y - 5) % 27;
            const bool onTile = inside && tileX < 40 && tileY < 20;
            ASSERT_EQ(at(picture, x, y), onTile ? sign().pixelColor(tileX, 19 - tileY) : QColor(Qt::white))
                << x << ' ' << y;
        }
    }
}

TEST(Tiling, RowsAndColumnsUseTheirOwnSpacingOnly) {
    const QImage row = composed(tiled(true, false, 10, 500, 2), plainPhoto({400, 300}));
    EXPECT_EQ(inkBox(row), QRect(0, 0, 390, 20));
    EXPECT_EQ(at(row, 45, 290), QColor(Qt::white));
    const QImage column = composed(tiled(false, true, 500, 10, 6), plainPhoto({400, 300}));
    EXPECT_EQ(inkBox(column), QRect(360, 10, 40, 290))
        << "tiles stand at 0, 30, ... 270 with 10 free above each";
    EXPECT_EQ(at(column, 380, 25), QColor(Qt::white));
}

TEST(Tiling, TurnsEveryTileClockwise) {
    Watermark record = tiled(true, true, 4, 6);
    record.Rotation = 90;
    const QImage picture = composed(record, plainPhoto({240, 230}));
    // A quarter turn makes the cell 20 x 40; the lower left corner comes to the upper left.
    EXPECT_EQ(at(picture, 24 * 3 + 2, 46 * 2 + 38), QColor(Qt::green));
    EXPECT_EQ(at(picture, 24 * 3 + 18, 46 * 2 + 2), QColor(Qt::blue));
    EXPECT_EQ(at(picture, 24 * 3 + 22, 46 * 2 + 20), QColor(Qt::white));
    EXPECT_EQ(at(picture, 24 * 3 + 10, 46 * 2 + 43), QColor(Qt::white));
}

TEST(Tiling, AnUntiledTurnShowsOneCopyInItsBoundingBox) {
    Watermark record = logoRecord(sign(), 9);
    record.PaddingRight = 10;
    for (const std::int64_t rotation : {90, -270, 450}) {
        record.Rotation = rotation;
        const QImage picture = composed(record, plainPhoto({200, 100}));
        EXPECT_EQ(inkBox(picture), QRect(170, 60, 20, 40));
        EXPECT_EQ(at(picture, 172, 38), QColor(Qt::green));
    }
    record.Rotation = 180;
    EXPECT_EQ(at(composed(record, plainPhoto({200, 100})), 188, 18), QColor(Qt::green));
    record.Rotation = 45;  // bounding box 42.4 x 42.4
    const QRect ink = inkBox(composed(record, plainPhoto({200, 100})));
    EXPECT_NEAR(ink.width(), 43, 1);
    EXPECT_NEAR(ink.left(), 147, 1);
    EXPECT_NEAR(ink.bottom(), 99, 1);
}

TEST(Tiling, TextRepeatsInWholePixelsAndLooksLikeItsSingleCopy) {
    Watermark record = textRecord(QStringLiteral("tile"), 17);
    record.Transparency = 0.5F;
    for (const std::int64_t rotation : {0, 25, 90}) {
        record.Rotation = rotation;
        record.HorizontalTiling = record.VerticalTiling = false;
        const QImage single = composed(record, plainPhoto({600, 400}));
        record.HorizontalTiling = record.VerticalTiling = true;
        const QImage picture = composed(record, plainPhoto({600, 400}));
        const QSizeF cell = rotatedSize(makeTextBlock(record, record.Text, {600, 400}).size, rotation);
        const int width = static_cast<int>(std::ceil(cell.width()));
        const int height = static_cast<int>(std::ceil(cell.height()));
        // One level for blending the cell's finished pixels instead of the letters themselves.
        const QImage first = picture.copy(0, 400 - height, width, height);
        EXPECT_LE(largestDifference(first, single.copy(0, 400 - height, width, height)), 1) << rotation;
        for (const QPoint step : {QPoint(width, 0), QPoint(3 * width, -5 * height)}) {
            EXPECT_EQ(picture.copy(QRect(QPoint(0, 400 - height) + step, first.size())), first) << rotation;
        }
    }
}

TEST(Tiling, NegativeGapsCutTheTilesAndGapsThatLeaveNoCellDrawNothing) {
    const QImage cut = composed(tiled(true, true, -25, 0), plainPhoto({150, 60}));
    EXPECT_EQ(at(cut, 14, 5), QColor(Qt::red));
    EXPECT_EQ(at(cut, 15, 5), QColor(Qt::green));
    EXPECT_TRUE(colorBox(cut, Qt::blue).isEmpty());
    constexpr auto Most = std::numeric_limits<std::int64_t>::max();
    const QImage blank = plainPhoto({150, 60});
    for (const std::int64_t gap : {std::int64_t{-40}, std::int64_t{-1000}, -Most}) {
        EXPECT_EQ(composed(tiled(true, true, gap, 0), blank), blank) << gap;
    }
    EXPECT_EQ(inkBox(composed(tiled(true, true, Most, Most), blank)), QRect(0, 40, 40, 20));
    Watermark record = tiled(true, true, 3, 3);
    record.PaddingLeft = 100;
    record.PaddingRight = 50;
    EXPECT_EQ(composed(record, blank), blank) << "the paddings leave no area";
    for (const std::int64_t padding : {Most, -Most}) {
        record.PaddingLeft = record.PaddingBottom = padding;
        EXPECT_EQ(composed(record, blank).size(), blank.size());
    }
}

TEST(Tiling, AGridThatBeginsOutsideThePhotoKeepsItsAnchor) {
    Watermark record = tiled(true, true, 2, 2);
    record.PaddingLeft = -50;
    record.PaddingBottom = -30;
    const QImage picture = composed(record, plainPhoto({300, 200}));
    // Cells of 42 x 22 begin at -50 and -30, so one begins at 34 and 14.
    EXPECT_EQ(at(picture, 34, 14), QColor(Qt::green));
    EXPECT_EQ(at(picture, 33, 14), QColor(Qt::white));
    EXPECT_EQ(at(picture, 34, 13), QColor(Qt::white));
}

}  // namespace
}  // namespace zelto
