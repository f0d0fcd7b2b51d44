// SPDX-License-Identifier: GPL-3.0-or-later
// Shape watermarks: rectangle, ellipse, polygon and bar in one colour or a gradient. Shapes are drawn straight onto the
// photo, so that a large one costs no more memory than a small one.
#pragma once

#include "records/watermark.h"
#include "render/content_place.h"
#include "render/watermark_view.h"

#include <QSizeF>

#include <optional>

class QPainter;

namespace zelto {

// The shape of a record at its final size; `reference` is the area in photo pixels that relative sizes refer to. A
// positive rotation turns clockwise as seen, about the centre of the box of whole pixels that holds the turned shape.
// Nothing where the record has no area or a polygon fewer than three sides.
std::optional<ShapeImage> GetShapeImage(const Watermark& record, QSizeF reference);

// Draws the part of the shape that is visible. Content pixels are those of its box. The painter's own transform must
// be the identity.
void drawShape(QPainter& painter, const ShapeImage& shape, const ContentPlace& place);

}  // namespace zelto
