// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/scene_geometry.h"

#include "pictures/lengths.h"
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
    return {QPoint(0, 0), scene.size};
}

QRectF fromArea(const QRectF& inArea, const QRectF& area) {
    return {area.left() + inArea.left(), area.bottom() - inArea.bottom(), inArea.width(), inArea.height()};
}

QRectF toArea(const QRectF& inPicture, const QRectF& area) {
    return {inPicture.left() - area.left(), area.bottom() - inPicture.bottom(), inPicture.width(),
            inPicture.height()};
}

QRectF layerFrame(const PhotoScene& scene, std::size_t index) {
    if (index >= scene.layers.size() || !scene.layers[index]) return {};
    return fromArea(scene.layers[index]->frame, QRectF(scene.referenceRect));
}

std::optional<LayerOutline> layerOutline(const PhotoScene& scene, std::size_t index) {
    const QRectF frame = layerFrame(scene, index);
    if (frame.isNull()) return std::nullopt;
    LayerOutline outline{.centre = frame.center(), .size = frame.size()};
    const WatermarkView& layer = *scene.layers[index];
    if (const auto* surface = std::get_if<TilingView>(&layer.child)) {
        if (surface->size != rotatedSize(surface->contentSize, surface->rotation)) return std::nullopt;
        outline.size = surface->contentSize;
        outline.degrees = static_cast<double>(surface->rotation);
    } else if (const auto* shape = std::get_if<ShapeImage>(&std::get<LayerContent>(layer.child))) {
        outline.size = shape->outline;
        outline.degrees = shape->degrees;
    }
    return outline;
}

QRect layerReach(const PhotoScene& scene, std::size_t index) {
    const QRectF frame = layerFrame(scene, index);
    if (frame.isNull()) return {};
    const double more = overhangOf(*scene.layers[index]);
    return frame.adjusted(-more, -more, more, more).intersected(QRectF(pictureRect(scene))).toAlignedRect();
}

}  // namespace zelto
