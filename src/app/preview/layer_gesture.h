// SPDX-License-Identifier: GPL-3.0-or-later
// What a hand does to a layer on the preview, as geometry: which layer lies under a point, and what moving, sizing and
// turning it make of its record. Points are picture pixels from the top left. Main thread only.
#pragma once

#include "render/photo_scene.h"
#include "render/scene_geometry.h"

#include <QPoint>
#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>

namespace zelto {

// The topmost enabled layer under `point`, tiled ones only where there is no other; `reach` widens small
// layers.
std::optional<int> layerAt(const PhotoScene& scene, const WatermarkStack& stack, QPointF point, double reach);

// Whether a layer has a place of its own that dragging can change.
bool isMovable(const Watermark& watermark);

// `topLeft` of a layer moved to where it may be put: not beyond the left, the top and the bottom edge of the area, and
// not out of sight at the right.
QPointF reachablePlace(QPointF topLeft, QSizeF layer, const QRectF& area);

// What of a layer is held.
struct Grip {
    enum class Part { Body, Corner, Turn };
    Part part = Part::Body;
    QPoint corner;  // of the content before it is turned: -1 for left and top, 1 for right and bottom

    bool operator==(const Grip&) const = default;
};

// What a gesture makes of the record as it was when the gesture began.
using LayerEdit = std::function<void(Watermark&)>;

class LayerGesture {
  public:
    // The layer at `index`, which is movable and has an outline, is held by `grip` at `point`.
    LayerGesture(const PhotoScene& scene, const WatermarkStack& stack, int index, const Grip& grip,
                 QPointF point);

    int index() const { return index_; }
    const Grip& grip() const { return grip_; }

    // The grip is moved. A layer that is moved snaps to the edges and the middles of the area nearer than `snap`
    // pixels, 0 for none. `isFree` lifts the proportions of a layer that is sized, where its kind allows it, and holds
    // one that is turned to steps of 15 degrees.
    LayerEdit moveTo(QPointF point, double snap, bool isFree);

  private:
    LayerEdit move(QPointF point, double snap) const;
    LayerEdit resize(QPointF point, bool isFree) const;
    LayerEdit turn(QPointF point, bool inSteps);
    QRectF frameTurnedTo(std::int64_t degrees) const;

    int index_;
    Grip grip_;
    Watermark record_;
    QRectF frame_;
    QRectF area_;
    LayerOutline outline_;
    QPointF held_;          // where it was gripped
    std::int64_t degrees_;  // as last turned
};

}  // namespace zelto
