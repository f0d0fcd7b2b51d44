// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace zelto {
namespace {

constexpr QSizeF area(1000, 800);
constexpr auto Far = std::numeric_limits<std::int64_t>::max();
const double nan = std::nan("");

TEST(Placement, EveryPlaceInAnAreaOf1000By800) {
    struct Row {
        std::int32_t position;
        std::int64_t left, top, right, bottom;  // paddings; for the custom place left and top are its own
        QSizeF size;
        QPointF origin;
    };
    constexpr QSizeF size(200, 50);
    for (const Row& row : {// Centred content is shifted by the left and the top padding, not squeezed.
                           Row{1, 30, 40, 10, 20, size, {30, 710}}, Row{2, 30, 40, 10, 20, size, {430, 710}},
                           Row{3, 30, 40, 10, 20, size, {790, 710}}, Row{4, 30, 40, 10, 20, size, {30, 335}},
                           Row{5, 30, 40, 10, 20, size, {430, 335}}, Row{6, 30, 40, 10, 20, size, {790, 335}},
                           Row{7, 30, 40, 10, 20, size, {30, 20}}, Row{8, 30, 40, 10, 20, size, {430, 20}},
                           Row{9, 30, 40, 10, 20, size, {790, 20}}, Row{0, 30, 40, 10, 20, size, {0, 750}},
                           Row{11, 30, 40, 10, 20, size, {0, 750}},
                           // The custom place counts from the top left and only inward.
                           Row{10, 12, 1, 0, 0, size, {12, 749}}, Row{10, -5, 0, 0, 0, size, {0, 750}},
                           Row{10, 0, -7, 0, 0, size, {0, 750}}, Row{10, 990, 790, 0, 0, size, {990, 0}},
                           // Cut to whole pixels first (12.9 and -0.5), then never negative.
                           Row{5, 0, 0, 0, 0, {974.2, 801}, {12, 0}}, Row{3, 0, 0, 0, 0, {1200, 900}, {0, 0}},
                           Row{9, 0, 0, Far, -Far, size, {0, 0}}, Row{3, 0, 0, 0, 0, {nan, nan}, {0, 0}}}) {
        Watermark record(watermark_type::Text);
        record.Position = row.position;
        record.PaddingLeft = record.CustomPositionLeft = row.left;
        record.PaddingTop = record.CustomPositionTop = row.top;
        record.PaddingRight = row.right;
        record.PaddingBottom = row.bottom;
        EXPECT_EQ(placedFrame(record, row.size, area).topLeft(), row.origin) << "position " << row.position;
    }
}

TEST(Placement, AMarkPutSomewhereKeepsTheNearestPositionOnEveryPhoto) {
    struct Row {
        QPointF at;  // of a mark of 200 x 50
        std::int32_t position;
        std::int64_t left, top, right, bottom;
        QPointF onOther;  // an area of 600 x 1200
    };
    for (const Row& row :
         {Row{{30, 720}, 1, 30, 30, 0, 0, {30, 1120}}, Row{{400, 740}, 2, 0, 10, 0, 0, {200, 1140}},
          Row{{790, 20}, 9, 0, 0, 10, 20, {390, 20}}, Row{{0, 375}, 4, 0, 0, 0, 0, {0, 575}},
          Row{{430, 335}, 5, 30, 40, 0, 0, {230, 535}}, Row{{610, 190}, 6, 0, 185, 190, 0, {210, 390}},
          Row{{590, 180}, 8, 190, 0, 0, 180, {390, 180}}, Row{{850, 0}, 9, 0, 0, -50, 0, {450, 0}}}) {
        Watermark record(watermark_type::Text);
        placeAt(record, {row.at, QSizeF(200, 50)}, area, Anchoring::Nearest);
        EXPECT_EQ(record.Position, row.position);
        EXPECT_EQ(
            std::vector({record.PaddingLeft, record.PaddingTop, record.PaddingRight, record.PaddingBottom}),
            std::vector({row.left, row.top, row.right, row.bottom}));
        EXPECT_EQ(placedFrame(record, {200, 50}, area).topLeft(), row.at);
        EXPECT_EQ(placedFrame(record, {200, 50}, {600, 1200}).topLeft(), row.onOther) << row.position;
    }
    // Marks of any size stay where they are when they are put where they are, at whatever position they have.
    for (std::int32_t position = 1; position <= CustomPosition; ++position) {
        for (const QSizeF size : {QSizeF(200, 50), QSizeF(133.7, 41.3), QSizeF(1200, 900)}) {
            Watermark record(watermark_type::Text);
            record.Position = position;
            record.PaddingLeft = record.PaddingTop = record.PaddingRight = record.PaddingBottom = 7;
            record.CustomPositionLeft = record.CustomPositionTop = 7;
            const QRectF placed = placedFrame(record, size, area);
            placeAt(record, placed, area, size.width() > 1000 ? Anchoring::Nearest : Anchoring::Kept);
            EXPECT_EQ(placedFrame(record, size, area), placed) << position << ", " << size.width();
            EXPECT_EQ(record.Position, position);
        }
    }
}

TEST(Placement, SharedPaddingsFollowTheShorterSide) {
    Watermark record(watermark_type::Text);
    record.Position = 9;
    record.PaddingRight = 9999;
    record.PaddingRightShare = record.PaddingBottomShare = 0.025F;
    EXPECT_EQ(placedFrame(record, {200, 50}, area).topLeft(), QPointF(780, 20));
    EXPECT_EQ(placedFrame(record, {200, 50}, {4000, 6000}).topLeft(), QPointF(3700, 100));
    placeAt(record, {760, 16, 200, 50}, area, Anchoring::Nearest);
    EXPECT_EQ(record.PaddingRight, 40);
    EXPECT_EQ(record.PaddingRightShare, 0.05F);
    EXPECT_EQ(placedFrame(record, {200, 50}, {4000, 6000}).topLeft(), QPointF(3600, 80));
    record.HorizontalTiling = true;
    record.PaddingLeftShare = 0.1F;
    EXPECT_EQ(tiledFrame(record, {200, 50}, area), QRectF(80, 16, 880, 50));
}

TEST(Placement, TilingsFillAColumnARowOrTheAreaInsideThePaddings) {
    struct Row {
        bool horizontal, vertical;
        std::int32_t position;
        QRectF frame;
    };
    for (const Row& row : {Row{false, true, 5, {469.5, 20, 101, 740}},
                           Row{false, true, 6, {889, 20, 101, 740}}, Row{false, true, 3, {30, 20, 101, 740}},
                           Row{true, false, 2, {30, 709, 960, 51}}, Row{true, false, 5, {30, 354.5, 960, 51}},
                           Row{true, false, 3, {30, 20, 960, 51}}, Row{true, true, 5, {30, 20, 960, 740}}}) {
        Watermark record(watermark_type::Text);
        record.Position = row.position;
        record.PaddingLeft = 30;
        record.PaddingTop = 40;
        record.PaddingRight = 10;
        record.PaddingBottom = 20;
        record.HorizontalTiling = row.horizontal;
        record.VerticalTiling = row.vertical;
        EXPECT_EQ(tiledFrame(record, {101, 51}, area), row.frame)
            << row.horizontal << row.vertical << " position " << row.position;
    }
}

}  // namespace
}  // namespace zelto
