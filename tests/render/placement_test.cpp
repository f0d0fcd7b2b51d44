// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

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
