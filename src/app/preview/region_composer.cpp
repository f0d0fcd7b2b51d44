// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/region_composer.h"

#include "app/preview/halved_picture.h"
#include "render/composition.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace zelto {
namespace {

// Rows composed at a time where the result is scaled down: enough to draw each layer only a few times, few
// enough that what was composed is still in the cache when it is scaled.
constexpr int BandRows = 512;
static_assert(BandRows % (1 << MaximumHalvings) == 0);

// How far a layer's content may reach beyond its frame, in pixels.
double overhang(const WatermarkView& layer) {
    const auto* content = std::get_if<LayerContent>(&layer.child);
    const auto* text = content == nullptr ? nullptr : std::get_if<TextBlock>(content);
    if (text == nullptr) return 1.0;
    constexpr double ShadowReach = 16.0;
    return text->attributes.font.pointSize + ShadowReach;
}

// Where the reference area begins in the picture, y up.
QPoint referenceOrigin(const PhotoScene& scene, const std::optional<PhotoEffects>& effect) {
    if (!effect) return {};
    return effect->ApplyWatermarkOnBorder ? scene.borderRect.topLeft() : scene.imageRect.topLeft();
}

// The scene without its picture, seen from `part` of it: layers that do not reach it are left out.
PhotoScene layersOf(const PhotoScene& scene, const WatermarkStack& stack, const QRect& part) {
    PhotoScene seen;
    seen.imageRect = scene.imageRect;
    seen.borderRect = scene.borderRect;
    seen.layers.resize(scene.layers.size());
    const QPointF corner(part.left(), scene.picture.height() - part.top() - part.height());
    for (std::size_t i = 0; i < scene.layers.size(); ++i) {
        if (!layerReach(scene, stack, i).intersects(part)) continue;
        seen.layers[i] = scene.layers[i];
        seen.layers[i]->frame.translate(-corner);
    }
    return seen;
}

bool hasLayers(const PhotoScene& scene) {
    return std::any_of(scene.layers.begin(), scene.layers.end(),
                       [](const auto& layer) { return layer.has_value(); });
}

// `part` of the composed picture at scale 1.
QImage composePart(const PhotoScene& scene, const WatermarkStack& stack, const QRect& part) {
    const PhotoScene seen = layersOf(scene, stack, part);
    const bool isWhole = part == scene.picture.rect();
    QImage picture = isWhole ? scene.picture : scene.picture.copy(part);
    if (hasLayers(seen)) addWatermarkTo(picture, seen, stack);
    return picture;
}

// The picture `part` covers, halved `times` on each side; the part begins at a whole pixel of the result.
QImage composeHalved(const PhotoScene& scene, const WatermarkStack& stack, const QRect& part, int times) {
    if (times == 0) return composePart(scene, stack, part);
    if (!hasLayers(layersOf(scene, stack, part))) return halvedPicture(scene.picture, part, times);
    QImage result(halvedSize(part.size(), times), scene.picture.format());
    for (int top = 0; top < part.height(); top += BandRows) {
        const QRect band(part.left(), part.top() + top, part.width(),
                         std::min(BandRows, part.height() - top));
        const QImage full = composePart(scene, stack, band);
        halveInto(result, top >> times, full, full.rect(), times);
    }
    return result;
}

int halvingsFor(double scale) {
    int times = 0;
    while (scale <= 0.5 && times < MaximumHalvings) {
        scale *= 2.0;
        ++times;
    }
    return times;
}

// The pixels of the picture needed for `region`, aligned to whole pixels of the halved picture.
QRect neededPart(const QSize& picture, const ViewRegion& region, int times) {
    const int block = 1 << times;
    const auto down = [&](int at) {
        const int pixel = static_cast<int>(std::floor(at / region.scale)) - block;
        return std::max(0, pixel) / block * block;
    };
    const auto up = [&](int at, int limit) {
        const int pixel = static_cast<int>(std::ceil(at / region.scale)) + 2 * block;
        return std::min(limit, pixel / block * block);
    };
    const QPoint first(down(region.rect.left()), down(region.rect.top()));
    const QPoint last(up(region.rect.right() + 1, picture.width()) - 1,
                      up(region.rect.bottom() + 1, picture.height()) - 1);
    return {first, last};
}

// Pixels are seen as such from this scale on; below, enlarging is smooth.
constexpr double PixelScale = 2.0;

}  // namespace

QRectF layerFrame(const PhotoScene& scene, const WatermarkStack& stack, std::size_t index) {
    if (index >= scene.layers.size() || !scene.layers[index]) return {};
    const QRectF frame = scene.layers[index]->frame.translated(referenceOrigin(scene, stack.Effects));
    return {frame.left(), scene.picture.height() - frame.top() - frame.height(), frame.width(),
            frame.height()};
}

QRect layerReach(const PhotoScene& scene, const WatermarkStack& stack, std::size_t index) {
    const QRectF frame = layerFrame(scene, stack, index);
    if (frame.isNull()) return {};
    const double more = overhang(*scene.layers[index]);
    return frame.adjusted(-more, -more, more, more).intersected(QRectF(scene.picture.rect())).toAlignedRect();
}

QImage composeRegion(const PhotoScene& scene, const WatermarkStack& stack, const ViewRegion& region) {
    const int times = halvingsFor(region.scale);
    const double halved = 1.0 / (1 << times);
    const QRect part = neededPart(scene.picture.size(), region, times);
    if (region.rect.isEmpty() || part.isEmpty()) return {};
    const QImage source = composeHalved(scene, stack, part, times);
    const QPointF sourceCorner = QPointF(part.topLeft()) * halved;
    if (region.scale == halved) return source.copy(region.rect.translated(-sourceCorner.toPoint()));

    QImage scaled(region.rect.size(),
                  source.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (source.hasAlphaChannel()) scaled.fill(Qt::transparent);
    QPainter painter(&scaled);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, region.scale < PixelScale);
    painter.translate(-region.rect.topLeft());
    painter.scale(region.scale / halved, region.scale / halved);
    painter.drawImage(sourceCorner, source);
    return scaled;
}

}  // namespace zelto
