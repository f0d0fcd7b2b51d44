// SPDX-License-Identifier: GPL-3.0-or-later
// Where things lie in a scene's picture: pixels from its top-left corner, y growing downward.
#pragma once

#include "render/photo_scene.h"

#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSizeF>

#include <cstddef>
#include <optional>

namespace zelto {

// The whole picture, in a scene without pixels and in a reduced one too.
QRect pictureRect(const PhotoScene& scene);

// A rectangle of the reference area, y up, as it lies in the picture, and the other way round; `area` is the scene's
// reference rectangle.
QRectF fromArea(const QRectF& inArea, const QRectF& area);
QRectF toArea(const QRectF& inPicture, const QRectF& area);

// The frame of the layer at `index`, not rounded; null where the record has no layer.
QRectF layerFrame(const PhotoScene& scene, std::size_t index);

// A layer's content as a rectangle turned about its centre.
struct LayerOutline {
    QPointF centre;
    QSizeF size;           // before it is turned
    double degrees = 0.0;  // clockwise as seen
};

// Nothing where the record has no layer, and for one that is repeated.
std::optional<LayerOutline> layerOutline(const PhotoScene& scene, std::size_t index);

// The pixels of the picture on which the layer at `index` may leave its mark; empty for no layer.
QRect layerReach(const PhotoScene& scene, std::size_t index);

}  // namespace zelto
