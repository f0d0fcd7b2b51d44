// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing layer content onto a picture: once and upright, or turned and repeated over a surface. Pictures are
// premultiplied ARGB32 or RGB32 and the painter's transform is the identity. Reentrant, any thread.
#pragma once

#include "render/content_place.h"
#include "render/watermark_view.h"

#include <QPointF>
#include <QRect>
#include <QSizeF>

class QPainter;

namespace zelto {

// Draws content of `size`; a picture of another size is stretched to it.
void drawContent(QPainter& painter, const LayerContent& content, QSizeF size, const ContentPlace& place);

// Fills the surface, whose bottom-left corner lies at the whole pixel `corner` of the picture (y growing
// downward), as far as it is visible. Cells are whole pixels, rounded up; where the spacings leave no cell
// nothing is drawn.
void drawTilingView(QPainter& painter, const TilingView& view, QPointF corner, const QRect& visible);

}  // namespace zelto
