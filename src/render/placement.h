// SPDX-License-Identifier: GPL-3.0-or-later
// Where a watermark's content goes in the reference area: the nine preset places, the custom place, and the areas that
// tilings fill; and the way back, from where a hand has put a mark to what its record is to hold. Pure geometry: photo
// pixels, y growing upward from the bottom-left corner; `reference` is the size of the area.
#pragma once

#include "records/watermark.h"

#include <QRectF>
#include <QSizeF>

#include <optional>

namespace zelto {

// What content holds on to along one axis of the reference area, from the origin outward.
enum class Anchor { Near, Middle, Far };

struct Place {
    Anchor horizontal;
    Anchor vertical;
};

// The place of a preset, 1 to 9; nothing for any other position.
std::optional<Place> presetPlace(std::int32_t position);

// The frame of content of `size` at the record's position: x and y truncated to whole pixels and never below 0. The
// centred places are shifted by the left and the top padding alone; nothing keeps a frame from reaching past the right
// or the top edge.
QRectF placedFrame(const Watermark& record, QSizeF size, QSizeF reference);

enum class Anchoring { Nearest, Kept };

// Gives the record the position and the paddings with which its content lies at `frame`, to less than a pixel. Nearest
// takes that of the nine positions whose edges and middles the frame is nearest to, so that the mark keeps its corner
// on photos of every size; Kept changes the paddings alone. A custom position stays custom. Paddings that do not move
// the mark there stay as they are.
void placeAt(Watermark& record, const QRectF& frame, QSizeF reference, Anchoring anchoring);

// The area a record with tiling fills with cells of content whose turned size is `turned`: a column, a row, or all of
// the reference area inside the paddings. Neither rounded nor clamped.
QRectF tiledFrame(const Watermark& record, QSizeF turned, QSizeF reference);

}  // namespace zelto
