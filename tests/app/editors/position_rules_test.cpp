// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_rules.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(PositionRules, ControlsFollowThePositionAndTheTiling) {
    struct Row {
        const char* what;    // the position; a and d for tiling across and down
        const char* usable;  // y the type, c the custom fields, cells by number, t l b r the paddings
    };
    constexpr Row Rows[] = {
        {"1", "y123456789tl"}, {"2", "y123456789tl"}, {"3", "y123456789tr"}, {"4", "y123456789tl"},
        {"5", "y123456789tl"}, {"6", "y123456789tr"}, {"7", "y123456789lb"}, {"8", "y123456789lb"},
        {"9", "y123456789br"}, {"10", "yc"},          {"0", "y123456789"},   {"2a", "258tlbr"},
        {"4d", "456tlbr"},     {"7ad", "tlbr"},       {"10ad", "tlbr"},
    };
    for (const Row& row : Rows) {
        const QLatin1String what(row.what);
        Watermark record(watermark_type::Text);
        record.Position = QString(what).remove(u'a').remove(u'd').toInt();
        record.HorizontalTiling = what.contains(u'a');
        record.VerticalTiling = what.contains(u'd');
        const PositionControls controls = EnableDisablePositionControls(record);
        QString usable;
        const auto add = [&usable](bool on, int letter) {
            if (on) usable += QChar(letter);
        };
        add(controls.type, 'y');
        add(controls.custom, 'c');
        for (int cell = 1; cell <= 9; ++cell) add(controls.hasCell(cell), '0' + cell);
        add(controls.padding.top, 't');
        add(controls.padding.left, 'l');
        add(controls.padding.bottom, 'b');
        add(controls.padding.right, 'r');
        EXPECT_EQ(usable, QLatin1String(row.usable)) << row.what;
    }
}

TEST(PositionRules, TilingMovesToTheCellThatStandsForIt) {
    Watermark record(watermark_type::Text);
    record.Position = 7;
    setHorizontalTiling(record, true);
    EXPECT_EQ(record.Position, 2);
    setVerticalTiling(record, true);
    EXPECT_EQ(record.Position, 2) << "over the whole area no cell counts";
    setHorizontalTiling(record, false);
    EXPECT_EQ(record.Position, 4);
    setVerticalTiling(record, false);
    EXPECT_EQ(record.Position, 4);
}

TEST(PositionRules, TextsAreAlignedToTheirColumn) {
    constexpr std::uint64_t Left = 0;
    constexpr std::uint64_t Right = 1;
    constexpr std::uint64_t Centre = 2;
    constexpr std::uint64_t Expected[] = {Left, Centre, Right};
    for (int cell = 1; cell <= 9; ++cell) {
        Watermark text(watermark_type::Text);
        setPresetPosition(text, cell);
        EXPECT_EQ(text.Position, cell);
        EXPECT_EQ(text.Alignment, Expected[(cell - 1) % 3]) << cell;
        Watermark shape(watermark_type::Shape);
        setPresetPosition(shape, cell);
        EXPECT_EQ(shape.Alignment, 0U);
    }
}

}  // namespace
}  // namespace zelto
