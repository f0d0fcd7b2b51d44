// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/scene_geometry.h"

#include "render/text_block.h"

namespace zelto {
namespace {

// How far a layer's content may reach beyond its frame, in pixels. A tiling surface is cut at its edges.
double overhangOf(const WatermarkView& layer) {
    constexpr double SmoothEdge = 1.0;
    const auto* content = std::get_if<LayerContent>(&layer.child);
    const auto* text = content == nullptr ? nullptr : std::get_if<TextBlock>(content);
    return text == nullptr ? SmoothEdge : overhang(*text) + SmoothEdge;
}

}  // namespace

QRect pictureRect(const PhotoScene& scene) {
    return scene.picture.isNull() ? QRect(QPoint(0, 0), scene.photoSize) : scene.picture.rect();
}

QRectF layerFrame(const PhotoScene& scene, std::size_t index) {
    if (index >= scene.layers.size() || !scene.layers[index]) return {};
    const QRectF& frame = scene.layers[index]->frame;
    const QRectF area(scene.referenceRect);
    return {area.left() + frame.left(), area.bottom() - frame.top() - frame.height(), frame.width(),
            frame.height()};
}

QRect layerReach(const PhotoScene& scene, std::size_t index) {
    const QRectF frame = layerFrame(scene, index);
    if (frame.isNull()) return {};
    const double more = overhangOf(*scene.layers[index]);
    return frame.adjusted(-more, -more, more, more).intersected(QRectF(pictureRect(scene))).toAlignedRect();
}

}  // namespace zelto
