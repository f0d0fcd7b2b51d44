// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_rules.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

// What can be used, as letters: y the type, c the custom fields, cells by number, t l b r the paddings.
QString enabled(const Watermark& record) {
    const PositionControls controls = EnableDisablePositionControls(record);
    QString letters;
    const auto add = [&letters](bool on, char letter) {
        if (on) letters += QLatin1Char(letter);
    };
    add(controls.type, 'y');
    add(controls.custom, 'c');
    for (int cell = 1; cell <= 9; ++cell) add(controls.hasCell(cell), static_cast<char>('0' + cell));
    const PaddingControls padding = controls.padding;
    add(padding.top, 't');
    add(padding.left, 'l');
    add(padding.bottom, 'b');
    add(padding.right, 'r');
    return letters;
}

TEST(PositionRules, ControlsFollowThePositionAndTheTiling) {
    struct Row {
        std::int32_t position;
        bool across;
        bool down;
        const char* expected;
    };
    constexpr Row Rows[] = {
        {1, false, false, "y123456789tl"}, {2, false, false, "y123456789tl"},
        {3, false, false, "y123456789tr"}, {4, false, false, "y123456789tl"},
        {5, false, false, "y123456789tl"}, {6, false, false, "y123456789tr"},
        {7, false, false, "y123456789lb"}, {8, false, false, "y123456789lb"},
        {9, false, false, "y123456789br"}, {10, false, false, "yc"},
        {0, false, false, "y123456789"},   {2, true, false, "258tlbr"},
        {4, false, true, "456tlbr"},       {7, true, true, "tlbr"},
        {10, true, true, "tlbr"},
    };
    for (const Row& row : Rows) {
        Watermark record(watermark_type::Text);
        record.Position = row.position;
        record.HorizontalTiling = row.across;
        record.VerticalTiling = row.down;
        EXPECT_EQ(enabled(record), QLatin1String(row.expected)) << row.position << row.across << row.down;
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

TEST(PositionRules, EveryPercentOfTransparencyComesBack) {
    for (int percent = 0; percent <= 100; ++percent) {
        EXPECT_EQ(transparencyPercent(transparencyOf(percent)), percent);
    }
    EXPECT_EQ(transparencyOf(100), 0.0F);
    EXPECT_EQ(transparencyPercent(2.0F), 0) << "more than opaque";
}

}  // namespace
}  // namespace zelto
