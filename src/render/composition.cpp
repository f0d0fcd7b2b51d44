// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/composition.h"

#include "render/lengths.h"
#include "render/tiling.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zelto {
namespace {

// Where the reference area's origin lies in the picture, y up.
QPoint referenceOrigin(const PhotoScene& scene, const std::optional<PhotoEffects>& effect) {
    if (!effect) return {};
    return effect->ApplyWatermarkOnBorder ? scene.borderRect.topLeft() : scene.imageRect.topLeft();
}

// Draws one layer whose reference area begins at `origin` of the picture.
void drawLayer(QPainter& painter, const WatermarkView& layer, QPoint origin, const QRect& picture) {
    const double left = origin.x() + layer.frame.x();
    const double bottom = origin.y() + layer.frame.y();
    if (const auto* surface = std::get_if<TilingView>(&layer.child)) {
        const QPointF corner(std::floor(withoutDust(left)),
                             picture.height() - std::floor(withoutDust(bottom)));
        drawTilingView(painter, *surface, corner, picture);
        return;
    }
    const double top = picture.height() - bottom - layer.frame.height();
    drawContent(painter, std::get<LayerContent>(layer.child), layer.frame.size(),
                {.toPicture = QTransform::fromTranslate(left, top), .visible = picture});
}

}  // namespace

void addWatermarkTo(QImage& picture, const PhotoScene& scene, const WatermarkStack& stack) {
    const std::size_t count = std::min(scene.layers.size(), stack.Watermarks.size());
    const QPoint origin = referenceOrigin(scene, stack.Effects);
    QPainter painter;
    for (std::size_t i = 0; i < count; ++i) {
        if (!scene.layers[i] || !stack.Watermarks[i].IsEnabled) continue;
        // Opened for the first layer that is drawn: a painter on a shared picture copies it.
        if (!painter.isActive()) painter.begin(&picture);
        drawLayer(painter, *scene.layers[i], origin, picture.rect());
    }
}

QImage MakeWatermarkImage(PhotoScene scene, const WatermarkStack& stack) {
    QImage picture = std::exchange(scene.picture, QImage());
    addWatermarkTo(picture, scene, stack);
    return picture;
}

}  // namespace zelto
