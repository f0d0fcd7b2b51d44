// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/layer_drag.h"

#include "render/scene_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelto {
namespace {

// A line a layer snaps to, and the shift along one axis that brings it there.
struct Snap {
    double line = 0.0;
    double shift = 0.0;
};

// The nearest of the area's two edges and its middle, each for the same side of the layer, within `reach`.
std::optional<Snap> nearestLine(double layerStart, double layerSize, double areaStart, double areaSize,
                                double reach) {
    std::optional<Snap> nearest;
    for (const double part : {0.0, 0.5, 1.0}) {
        const double line = areaStart + part * areaSize;
        const double shift = line - (layerStart + part * layerSize);
        if (std::abs(shift) >= reach) continue;
        if (!nearest || std::abs(shift) < std::abs(nearest->shift)) nearest = Snap{line, shift};
    }
    return nearest;
}

}  // namespace

std::optional<int> layerAt(const PhotoScene& scene, const WatermarkStack& stack, QPointF point,
                           double reach) {
    std::optional<int> tiled;
    for (int i = static_cast<int>(scene.layers.size()) - 1; i >= 0; --i) {
        const auto index = static_cast<std::size_t>(i);
        if (!scene.layers[index] || !stack.Watermarks[index].IsEnabled) continue;
        QRectF frame = layerFrame(scene, index);
        const double moreX = std::max(0.0, reach - frame.width() / 2.0);
        const double moreY = std::max(0.0, reach - frame.height() / 2.0);
        if (!frame.adjusted(-moreX, -moreY, moreX, moreY).contains(point)) continue;
        if (isMovable(stack.Watermarks[index])) return i;
        if (!tiled) tiled = i;
    }
    return tiled;
}

bool isMovable(const Watermark& watermark) {
    return !watermark.HorizontalTiling && !watermark.VerticalTiling;
}

LayerDrag::LayerDrag(int index, const QRectF& frame, const QRectF& area, QPointF grip)
    : index_(index), start_(frame), frame_(frame), area_(area), grip_(grip - frame.topLeft()) {}

void LayerDrag::moveTo(QPointF point, double snap) {
    QPointF topLeft = point - grip_;
    guides_ = {};
    if (const auto line = nearestLine(topLeft.x(), frame_.width(), area_.x(), area_.width(), snap)) {
        topLeft.rx() += line->shift;
        guides_.x = line->line;
    }
    if (const auto line = nearestLine(topLeft.y(), frame_.height(), area_.y(), area_.height(), snap)) {
        topLeft.ry() += line->shift;
        guides_.y = line->line;
    }
    const QPointF reachable = reachablePlace(topLeft, frame_.size(), area_);
    frame_.moveTopLeft(area_.topLeft() + QPointF((reachable - area_.topLeft()).toPoint()));
}

QPoint LayerDrag::place() const {
    return (frame_.topLeft() - area_.topLeft()).toPoint();
}

QPointF reachablePlace(QPointF topLeft, QSizeF layer, const QRectF& area) {
    constexpr double StaysInSight = 16.0;
    const double right = area.right() - std::min(layer.width(), StaysInSight);
    const double bottom = area.bottom() - layer.height();
    return {std::clamp(topLeft.x(), area.left(), std::max(area.left(), right)),
            std::clamp(topLeft.y(), area.top(), std::max(area.top(), bottom))};
}

}  // namespace zelto
