// SPDX-License-Identifier: GPL-3.0-or-later
// Where a watermark's content goes in the reference area: the nine preset places, the custom place, and the
// areas that tilings fill. Pure geometry: photo pixels, y growing upward from the bottom-left corner, W x H
// the size of the reference area.
#pragma once

#include "records/watermark.h"

#include <QRectF>
#include <QSizeF>

namespace zelto {

// The frame of content of `size` at the record's position: x and y truncated to whole pixels and never below
// 0. The centred places are shifted by the left and the top padding alone; nothing keeps a frame from
// reaching past the right or the top edge.
QRectF placedFrame(const Watermark& record, QSizeF size, QSizeF reference);

// The area a record with tiling fills with cells of content whose turned size is `turned`: a column, a row,
// or all of the reference area inside the paddings. Neither rounded nor clamped.
QRectF tiledFrame(const Watermark& record, QSizeF turned, QSizeF reference);

}  // namespace zelto
