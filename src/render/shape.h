// SPDX-License-Identifier: GPL-3.0-or-later
// Shape watermarks: rectangle, ellipse, polygon and bar in one colour or a gradient. Reentrant, any thread.
#pragma once

#include "records/watermark.h"

#include <QImage>
#include <QSizeF>

namespace zelto {

// The picture of a shape record at its final size, already turned and at its opacity; `reference` is the area in
// photo pixels that relative sizes refer to. A positive rotation turns clockwise as seen, on the box of the turned
// bounds rounded up to whole pixels. A colour that is absent paints nothing. A null picture where the record has no
// area, a polygon fewer than three sides, or a side is longer than a painter can draw.
QImage GetShapeImage(const Watermark& shape, QSizeF reference);

}  // namespace zelto
