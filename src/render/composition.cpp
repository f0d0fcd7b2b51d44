// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/composition.h"

#include "pictures/lengths.h"
#include "render/scene_geometry.h"
#include "render/tiling.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

namespace zelto {
namespace {

// The grid of tiles stands on whole pixels.
QPointF tilingCorner(const QRectF& frame) {
    return {std::floor(withoutDust(frame.left())), std::ceil(withoutDust(frame.bottom()))};
}

// Draws a layer whose frame lies at `frame` of the picture.
void drawLayer(QPainter& painter, const WatermarkView& layer, const QRectF& frame, const QRect& picture) {
    if (const auto* surface = std::get_if<TilingView>(&layer.child)) {
        drawTilingView(painter, *surface, tilingCorner(frame), picture);
        return;
    }
    drawContent(painter, std::get<LayerContent>(layer.child), frame.size(),
                {.toPicture = QTransform::fromTranslate(frame.left(), frame.top()), .visible = picture});
}

}  // namespace

void addWatermarkTo(QImage& picture, const PhotoScene& scene, const WatermarkStack& stack) {
    addWatermarkTo(picture, picture.size(), scene, stack);
}

void addWatermarkTo(QImage& picture, QSize standsFor, const PhotoScene& scene, const WatermarkStack& stack) {
    const std::size_t count = std::min(scene.layers.size(), stack.Watermarks.size());
    QPainter painter;
    for (std::size_t i = 0; i < count; ++i) {
        if (!scene.layers[i] || !stack.Watermarks[i].IsEnabled) continue;
        // Opened for the first layer that is drawn: a painter on a shared picture copies it.
        if (!painter.isActive()) {
            picture.detach();
            if (picture.isNull()) throw std::bad_alloc();
            painter.begin(&picture);
            if (standsFor != picture.size()) {
                painter.setWindow(QRect(QPoint(), standsFor));
                painter.setViewport(picture.rect());
                painter.setRenderHint(QPainter::SmoothPixmapTransform);
            }
        }
        drawLayer(painter, *scene.layers[i], layerFrame(scene, i), QRect(QPoint(), standsFor));
    }
}

PhotoScene layersReaching(const PhotoScene& scene, const QRect& part) {
    PhotoScene seen;
    seen.photoSize = scene.photoSize;
    seen.referenceRect = scene.referenceRect.translated(-part.topLeft());
    seen.layers.resize(scene.layers.size());
    for (std::size_t i = 0; i < scene.layers.size(); ++i) {
        if (layerReach(scene, i).intersects(part)) seen.layers[i] = scene.layers[i];
    }
    return seen;
}

std::vector<QRect> inkAreas(const PhotoScene& scene, const WatermarkStack& stack) {
    std::vector<QRect> areas;
    const std::size_t count = std::min(scene.layers.size(), stack.Watermarks.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (!scene.layers[i] || !stack.Watermarks[i].IsEnabled) continue;
        const QRect reach = layerReach(scene, i);
        const auto* surface = std::get_if<TilingView>(&scene.layers[i]->child);
        const std::vector<QRect> tiles =
            surface == nullptr ? std::vector{reach}
                               : tileAreas(*surface, tilingCorner(layerFrame(scene, i)), pictureRect(scene));
        areas.insert(areas.end(), tiles.begin(), tiles.end());
    }
    return areas;
}

QImage MakeWatermarkImage(PhotoScene scene, const WatermarkStack& stack) try {
    QImage picture = std::exchange(scene.picture, QImage());
    addWatermarkTo(picture, scene.size, scene, stack);
    return picture;
} catch (const std::bad_alloc&) {
    return {};
}

}  // namespace zelto
