// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing layer content onto a picture: once and upright, or turned and repeated over a surface. Pictures are
// premultiplied ARGB32 or RGB32 and the painter's transform is the identity.
#pragma once

#include "render/content_place.h"
#include "render/watermark_view.h"

#include <QPointF>
#include <QRect>
#include <QSizeF>

#include <vector>

class QPainter;

namespace zelto {

// Draws content of `size`; a picture of another size is stretched to it. Shapes and codes have sizes of their own.
void drawContent(QPainter& painter, const LayerContent& content, QSizeF size, const ContentPlace& place);

// The content alone, on a transparent picture of `size` rounded up to whole pixels. For what is small, such as the
// picture on a button.
QImage pictureOf(const LayerContent& content, QSizeF size);

// Whether the surface shows anything: it has an area, its content a size, and the spacings leave room for a cell.
bool hasTiles(const TilingView& view);

// Fills the surface, whose bottom-left corner lies at the whole pixel `corner` of the picture (y growing
// downward), as far as it is visible. Cells are whole pixels, rounded up.
void drawTilingView(QPainter& painter, const TilingView& view, QPointF corner, const QRect& visible);

// The visible pixels that drawTilingView() may fill: the tiles one by one where there are not too many to tell and they
// leave half of what they span free, otherwise all of that.
std::vector<QRect> tileAreas(const TilingView& view, QPointF corner, const QRect& visible);

}  // namespace zelto
