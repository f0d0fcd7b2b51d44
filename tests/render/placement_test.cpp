// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelto {
namespace {

Watermark recordAt(std::int32_t position, std::int64_t left, std::int64_t top, std::int64_t right,
                   std::int64_t bottom) {
    Watermark record(watermark_type::Text);
    record.Position = position;
    record.PaddingLeft = left;
    record.PaddingTop = top;
    record.PaddingRight = right;
    record.PaddingBottom = bottom;
    return record;
}

constexpr QSizeF area(1000, 800);

TEST(Placement, EveryPresetInAnAreaOf1000By800) {
    struct Row {
        std::int32_t position;
        double x, y;
    };
    // Content of 200 x 50; paddings left 30, top 40, right 10, bottom 20. Centred content is shifted, not
    // squeezed.
    for (const Row& row : {Row{1, 30, 710}, Row{2, 430, 710}, Row{3, 790, 710}, Row{4, 30, 335},
                           Row{5, 430, 335}, Row{6, 790, 335}, Row{7, 30, 20}, Row{8, 430, 20},
                           Row{9, 790, 20}, Row{0, 0, 750}, Row{11, 0, 750}, Row{-3, 0, 750}}) {
        EXPECT_EQ(placedFrame(recordAt(row.position, 30, 40, 10, 20), {200, 50}, area),
                  QRectF(row.x, row.y, 200, 50))
            << "position " << row.position;
    }
}

TEST(Placement, CustomPlacesCountFromTheTopLeftAndOnlyInward) {
    struct Row {
        std::int64_t left, top;
        double x, y;
    };
    for (const Row& row :
         {Row{12, 1, 12, 749}, Row{-5, 0, 0, 750}, Row{0, -7, 0, 750}, Row{990, 790, 990, 0}}) {
        Watermark record = recordAt(CustomPosition, 9, 9, 9, 9);
        record.CustomPositionLeft = row.left;
        record.CustomPositionTop = row.top;
        EXPECT_EQ(placedFrame(record, {200, 50}, area), QRectF(row.x, row.y, 200, 50))
            << row.left << ' ' << row.top;
    }
}

TEST(Placement, CoordinatesAreCutToWholePixelsAndNeverNegative) {
    // (1000 - 974.2) / 2 = 12.9; (800 - 801) / 2 = -0.5
    EXPECT_EQ(placedFrame(recordAt(5, 0, 0, 0, 0), {974.2, 801}, area).topLeft(), QPointF(12, 0));
    // Wider and higher than the area: flush with its lower left, reaching out on the other sides.
    EXPECT_EQ(placedFrame(recordAt(3, 0, 0, 0, 0), {1200, 900}, area), QRectF(0, 0, 1200, 900));
    constexpr auto Far = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(placedFrame(recordAt(9, 0, 0, Far, -Far), {200, 50}, area).x(), 0);
    const double nan = std::nan("");
    EXPECT_EQ(placedFrame(recordAt(3, 0, 0, 0, 0), {nan, nan}, area).topLeft(), QPointF(0, 0));
}

TEST(Placement, TilingsFillAColumnARowOrTheAreaInsideThePaddings) {
    struct Row {
        bool horizontal, vertical;
        std::int32_t position;
        QRectF frame;
    };
    // Turned content of 101 x 51; paddings left 30, top 40, right 10, bottom 20.
    for (const Row& row :
         {Row{false, true, 5, QRectF(469.5, 20, 101, 740)}, Row{false, true, 6, QRectF(889, 20, 101, 740)},
          Row{false, true, 3, QRectF(30, 20, 101, 740)}, Row{true, false, 2, QRectF(30, 709, 960, 51)},
          Row{true, false, 5, QRectF(30, 354.5, 960, 51)}, Row{true, false, 3, QRectF(30, 20, 960, 51)},
          Row{true, true, 5, QRectF(30, 20, 960, 740)}}) {
        Watermark record = recordAt(row.position, 30, 40, 10, 20);
        record.HorizontalTiling = row.horizontal;
        record.VerticalTiling = row.vertical;
        EXPECT_EQ(tiledFrame(record, {101, 51}, area), row.frame)
            << row.horizontal << row.vertical << " position " << row.position;
    }
}

TEST(Placement, TurnedSizesAreBoundingBoxesExactForQuarterTurns) {
    constexpr QSizeF size(200.25, 50.1);
    for (const std::int64_t degrees : {0, 180, -180, 360, 540})
        EXPECT_TRUE(rotatedSize(size, degrees) == size);
    for (const std::int64_t degrees : {90, -90, 270, 450, -810}) {
        const QSizeF turned = rotatedSize(size, degrees);
        EXPECT_TRUE(turned.width() == 50.1 && turned.height() == 200.25) << degrees;
    }
    for (const std::int64_t degrees : {30, -30, 150, 210, 390}) {
        const QSizeF turned = rotatedSize({200, 100}, degrees);
        EXPECT_NEAR(turned.width(), 100 * std::sqrt(3.0) + 50, 1e-9) << degrees;
        EXPECT_NEAR(turned.height(), 100 + 50 * std::sqrt(3.0), 1e-9) << degrees;
    }
}

}  // namespace
}  // namespace zelto
