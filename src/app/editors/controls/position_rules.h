// SPDX-License-Identifier: GPL-3.0-or-later
// The rules by which the controls for a watermark's place hang together: which of them can be used, and what
// one of them does to the record besides its own field. Pure functions of records; no widgets.
#pragma once

#include "records/watermark.h"

#include <cstdint>

namespace zelto {

struct PaddingControls {
    bool top = false;
    bool left = false;
    bool bottom = false;
    bool right = false;

    bool operator==(const PaddingControls&) const = default;
};

struct PositionControls {
    bool type = false;        // the choice between a cell of the grid and a place of one's own
    std::uint16_t cells = 0;  // bit t is set where cell t, 1 to 9, can be chosen
    bool custom = false;      // the fields of a place of one's own
    PaddingControls padding;

    bool hasCell(int cell) const { return (cells >> cell & 1) != 0; }
    bool operator==(const PositionControls&) const = default;
};

// Which paddings make a difference where `record` stands.
PaddingControls EnableDisablePadding(const Watermark& record);

PositionControls EnableDisablePositionControls(const Watermark& record);

// Puts the record at a cell of the grid, 1 to 9 row by row from the top left. Texts and logos are aligned to
// the cell's column.
void setPresetPosition(Watermark& record, int cell);

// Switch tiling on or off. A row or a column starts at the cell that stands for it.
void setHorizontalTiling(Watermark& record, bool on);
void setVerticalTiling(Watermark& record, bool on);

}  // namespace zelto
