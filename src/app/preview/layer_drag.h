// SPDX-License-Identifier: GPL-3.0-or-later
// Picking and dragging layers on the preview, as geometry: which layer lies under a point, where it may go,
// and where it snaps to the edges and the middle of the photo. Points are picture pixels from the top left.
// Main thread only.
#pragma once

#include "render/photo_scene.h"

#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

namespace zelto {

// The topmost enabled layer under `point`, tiled ones only where there is no other; `reach` widens small
// layers.
std::optional<int> layerAt(const PhotoScene& scene, const WatermarkStack& stack, QPointF point, double reach);

// Whether a layer has a place of its own that dragging can change.
bool isMovable(const Watermark& watermark);

// Lines a dragged layer has come to lie on.
struct Guides {
    std::optional<double> x;
    std::optional<double> y;
};

class LayerDrag {
  public:
    // A drag of the layer in `frame` within `area`, gripped at `grip`.
    LayerDrag(int index, const QRectF& frame, const QRectF& area, QPointF grip);

    // Moves the grip; the layer snaps to lines nearer than `snap` pixels, 0 for none.
    void moveTo(QPointF point, double snap);

    int index() const { return index_; }
    bool isMoved() const { return frame_ != start_; }
    const QRectF& frame() const { return frame_; }
    const Guides& guides() const { return guides_; }
    // The place in whole pixels, as CustomPositionLeft and CustomPositionTop hold it.
    QPoint place() const;

  private:
    int index_;
    QRectF start_;
    QRectF frame_;
    QRectF area_;
    QPointF grip_;
    Guides guides_;
};

// `topLeft` of a layer moved to where placing by custom position can put it: not beyond the left, the top and
// the bottom edge of the area, and not out of sight at the right.
QPointF reachablePlace(QPointF topLeft, QSizeF layer, const QRectF& area);

}  // namespace zelto
