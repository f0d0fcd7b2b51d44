// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/tiling.h"

#include "pictures/lengths.h"
#include "render/text_block.h"
#include "support/ink.h"
#include "support/records.h"

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

Watermark tiled(bool horizontal, bool vertical, std::int64_t right, std::int64_t above,
                std::int32_t position = 1) {
    Watermark record = logoRecord(sign(), position);
    record.HorizontalTiling = horizontal;
    record.VerticalTiling = vertical;
    record.HorizontalSpacing = right;
    record.VerticalSpacing = above;
    return record;
}

// A pixel by its place right of and above the lower-left corner.
QColor colourAt(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, picture.height() - 1 - y);
}

TEST(Tiling, PutsSpacingRightOfAndAboveEveryTileInsideThePaddings) {
    for (const QPoint gap : {QPoint(0, 0), QPoint(13, 7), QPoint(-25, -5)}) {
        Watermark record = tiled(true, true, gap.x(), gap.y());
        record.PaddingLeft = 11;
        record.PaddingBottom = -5;  // the grid begins below the photo
        record.PaddingRight = 17;
        record.PaddingTop = 3;
        const QImage picture = composed(record, plainPhoto({400, 300}));
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 400; ++x) {
                const QPoint tile((x - 11) % (40 + gap.x()), (y + 5) % (20 + gap.y()));
                const bool shown = x >= 11 && x < 383 && y < 297 && tile.x() < 40 && tile.y() < 20;
                ASSERT_EQ(colourAt(picture, x, y),
                          shown ? sign().pixelColor(tile.x(), 19 - tile.y()) : QColor(Qt::white))
                    << gap.x() << " at " << x << ' ' << y;
            }
        }
    }
}

TEST(Tiling, RowsAndColumnsUseTheirOwnSpacingOnly) {
    const QImage photo = plainPhoto({400, 300});
    EXPECT_EQ(inkBox(composed(tiled(true, false, 10, 500, 2), photo)), QRect(0, 0, 390, 20));
    // Tiles stand at 0, 30, ... 270.
    EXPECT_EQ(inkBox(composed(tiled(false, true, 500, 10, 6), photo)), QRect(360, 10, 40, 290));
}

TEST(Tiling, TurnsClockwiseTiledAndSingle) {
    struct Row {
        std::int64_t degrees;
        QRect ink;     // of one copy in the lower left, y down
        QPoint green;  // where the lower left corner comes to, from the photo's lower left
    };
    for (const Row& row : {Row{90, {0, 60, 20, 40}, {2, 38}}, Row{-270, {0, 60, 20, 40}, {2, 38}},
                           Row{180, {0, 80, 40, 20}, {38, 18}}, Row{45, {0, 57, 43, 43}, {7, 28}}}) {
        Watermark record = logoRecord(sign());
        record.Rotation = row.degrees;
        const QImage single = composed(record, plainPhoto({200, 100}));
        const int slack = row.degrees % 90 == 0 ? 0 : 1;  // a slanted corner may not reach the last pixel
        EXPECT_TRUE(row.ink.contains(inkBox(single)) &&
                    inkBox(single).contains(row.ink.adjusted(slack, slack, -slack, -slack)))
            << row.degrees;
        EXPECT_EQ(colourAt(single, row.green.x(), row.green.y()), QColor(Qt::green)) << row.degrees;
        record.HorizontalTiling = record.VerticalTiling = true;
        record.HorizontalSpacing = 4;
        const QImage tiles = composed(record, plainPhoto({200, 100}));
        EXPECT_EQ(tiles.copy(row.ink.translated(row.ink.width() + 4, 0)), single.copy(row.ink))
            << row.degrees;
    }
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
        const QSizeF turned = rotatedSize(makeTextBlock(record, record.Text, {600, 400}).size, rotation);
        const QSize cell(int(std::ceil(turned.width())), int(std::ceil(turned.height())));
        const QRect corner(QPoint(0, 400 - cell.height()), cell);
        // One level for blending the cell's finished pixels instead of the letters themselves.
        EXPECT_LE(largestDifference(picture.copy(corner), single.copy(corner)), 1) << rotation;
        const QRect another = corner.translated(3 * cell.width(), -5 * cell.height());
        EXPECT_EQ(picture.copy(another), picture.copy(corner)) << rotation;
    }
}

TEST(Tiling, GapsThatLeaveNoCellDrawNothingAndHugeOnesOneTile) {
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

}  // namespace
}  // namespace zelto
