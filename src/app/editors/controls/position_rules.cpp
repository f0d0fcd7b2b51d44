// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/position_rules.h"

#include <array>

namespace zelto {
namespace {

constexpr std::uint16_t cellBits(std::initializer_list<int> cells) {
    std::uint16_t bits = 0;
    for (const int cell : cells) bits = static_cast<std::uint16_t>(bits | 1U << static_cast<unsigned>(cell));
    return bits;
}

constexpr std::uint16_t AllCells = cellBits({1, 2, 3, 4, 5, 6, 7, 8, 9});
constexpr std::uint16_t CentreColumn = cellBits({2, 5, 8});
constexpr std::uint16_t MiddleRow = cellBits({4, 5, 6});

// The cells that a padding moves.
constexpr std::uint16_t MovedByTop = cellBits({1, 2, 3, 4, 5, 6});
constexpr std::uint16_t MovedByLeft = cellBits({1, 2, 4, 5, 7, 8});
constexpr std::uint16_t MovedByBottom = cellBits({7, 8, 9});
constexpr std::uint16_t MovedByRight = cellBits({3, 6, 9});

bool contains(std::uint16_t cells, std::int32_t position) {
    return position >= 1 && position <= 9 && (cells >> position & 1) != 0;
}

// The cell that stands for a row alone or a column alone.
void startTiling(Watermark& record) {
    if (record.HorizontalTiling && !record.VerticalTiling) record.Position = 2;
    if (record.VerticalTiling && !record.HorizontalTiling) record.Position = 4;
}

}  // namespace

PaddingControls EnableDisablePadding(const Watermark& record) {
    if (record.HorizontalTiling || record.VerticalTiling) return {true, true, true, true};
    const std::int32_t position = record.Position;
    return {contains(MovedByTop, position), contains(MovedByLeft, position),
            contains(MovedByBottom, position), contains(MovedByRight, position)};
}

PositionControls EnableDisablePositionControls(const Watermark& record) {
    PositionControls controls;
    controls.padding = EnableDisablePadding(record);
    if (!record.HorizontalTiling && !record.VerticalTiling) {
        controls.type = true;
        controls.custom = record.Position == CustomPosition;
        controls.cells = controls.custom ? std::uint16_t{0} : AllCells;
    } else if (!record.VerticalTiling) {
        controls.cells = CentreColumn;
    } else if (!record.HorizontalTiling) {
        controls.cells = MiddleRow;
    }
    return controls;
}

void setPresetPosition(Watermark& record, int cell) {
    record.Position = cell;
    if (record.Type != watermark_type::Text && record.Type != watermark_type::Image) return;
    constexpr std::array<std::uint64_t, 3> AlignmentByColumn = {text_alignment::Right, text_alignment::Left,
                                                                text_alignment::Centre};
    record.Alignment = AlignmentByColumn.at(static_cast<std::size_t>(cell % 3));
}

void setHorizontalTiling(Watermark& record, bool on) {
    record.HorizontalTiling = on;
    startTiling(record);
}

void setVerticalTiling(Watermark& record, bool on) {
    record.VerticalTiling = on;
    startTiling(record);
}

}  // namespace zelto
