// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/region_composer.h"

#include "app/preview/halved_picture.h"
#include "render/canvas.h"
#include "render/composition.h"
#include "render/scene_geometry.h"

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

bool hasLayers(const PhotoScene& scene) {
    return std::any_of(scene.layers.begin(), scene.layers.end(),
                       [](const auto& layer) { return layer.has_value(); });
}

// `part` of the composed picture at scale 1.
QImage composePart(const PhotoScene& scene, const WatermarkStack& stack, const QRect& part) {
    const PhotoScene seen = layersReaching(scene, part);
    const bool isWhole = part == scene.picture.rect();
    QImage picture = isWhole ? scene.picture : allocated(scene.picture.copy(part));
    if (hasLayers(seen)) addWatermarkTo(picture, seen, stack);
    return picture;
}

// The picture `part` covers, halved `times` on each side; the part begins at a whole pixel of the result.
QImage composeHalved(const PhotoScene& scene, const WatermarkStack& stack, const QRect& part, int times) {
    if (times == 0) return composePart(scene, stack, part);
    if (!hasLayers(layersReaching(scene, part))) return halvedPicture(scene.picture, part, times);
    QImage result = allocated(QImage(halvedSize(part.size(), times), scene.picture.format()));
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

// Device pixels a pixel of the picture takes on each axis. Its edges lie on whole device pixels, so these differ a
// little from the scale asked for; otherwise a last row that is half a pixel high would be drawn or not as rounding has
// it.
struct Stretch {
    double x;
    double y;

    Stretch(const QSize& picture, double scale) {
        const QSize size = scaledSize(picture, scale);
        x = static_cast<double>(size.width()) / picture.width();
        y = static_cast<double>(size.height()) / picture.height();
    }
};

// The pixels of the picture needed for `region`, aligned to whole pixels of the halved picture.
QRect neededPart(const QSize& picture, const QRect& region, const Stretch& stretch, int times) {
    const int block = 1 << times;
    const auto down = [&](int at, double scale) {
        const int pixel = static_cast<int>(std::floor(at / scale)) - block;
        return std::max(0, pixel) / block * block;
    };
    const auto up = [&](int at, double scale, int limit) {
        const int pixel = static_cast<int>(std::ceil(at / scale)) + 2 * block;
        return std::min(limit, pixel / block * block);
    };
    const QPoint first(down(region.left(), stretch.x), down(region.top(), stretch.y));
    const QPoint last(up(region.right() + 1, stretch.x, picture.width()) - 1,
                      up(region.bottom() + 1, stretch.y, picture.height()) - 1);
    return {first, last};
}

// Pixels are seen as such from this scale on; below, enlarging is smooth.
constexpr double PixelScale = 2.0;

}  // namespace

QImage composeRegion(const PhotoScene& scene, const WatermarkStack& stack, const ViewRegion& region) {
    const int times = halvingsFor(region.scale);
    const double halved = 1.0 / (1 << times);
    if (region.rect.isEmpty() || scene.picture.isNull()) return {};
    const Stretch stretch(scene.picture.size(), region.scale);
    const QRect part = neededPart(scene.picture.size(), region.rect, stretch, times);
    if (part.isEmpty()) return {};
    const QImage source = composeHalved(scene, stack, part, times);
    const QPointF sourceCorner = QPointF(part.topLeft()) * halved;
    if (region.scale == halved) return source.copy(region.rect.translated(-sourceCorner.toPoint()));

    const auto format = source.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    QImage scaled = allocated(QImage(region.rect.size(), format));
    if (source.hasAlphaChannel()) scaled.fill(Qt::transparent);
    QPainter painter(&scaled);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, region.scale < PixelScale);
    painter.translate(-region.rect.topLeft());
    painter.scale(stretch.x / halved, stretch.y / halved);
    painter.drawImage(sourceCorner, source);
    return scaled;
}

}  // namespace zelto
