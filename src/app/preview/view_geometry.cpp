// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/view_geometry.h"

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// Pixels on each side that one pixel of a scaled picture may depend on.
constexpr int SmoothingReach = 2;

}  // namespace

QSize scaledSize(QSize picture, double scale) {
    return {std::max(1, static_cast<int>(std::lround(picture.width() * scale))),
            std::max(1, static_cast<int>(std::lround(picture.height() * scale)))};
}

double ViewGeometry::scale() const {
    if (!fitToScreen || picture.isEmpty() || viewport.isEmpty()) return chosenScale;
    return std::min(static_cast<double>(viewport.width()) / picture.width(),
                    static_cast<double>(viewport.height()) / picture.height());
}

QSize ViewGeometry::scaledSize() const {
    return zelto::scaledSize(picture, scale());
}

QPoint ViewGeometry::largestScroll() const {
    const QSize size = scaledSize();
    return {std::max(0, size.width() - viewport.width()), std::max(0, size.height() - viewport.height())};
}

QPoint ViewGeometry::clampedScroll() const {
    const QPoint largest = largestScroll();
    return {std::clamp(scroll.x(), 0, largest.x()), std::clamp(scroll.y(), 0, largest.y())};
}

QPoint ViewGeometry::origin() const {
    const QSize size = scaledSize();
    const QPoint at = clampedScroll();
    return {size.width() < viewport.width() ? (viewport.width() - size.width()) / 2 : -at.x(),
            size.height() < viewport.height() ? (viewport.height() - size.height()) / 2 : -at.y()};
}

QPointF ViewGeometry::toPicture(QPointF view) const {
    return (view - origin()) / scale();
}

QPointF ViewGeometry::toView(QPointF inPicture) const {
    return inPicture * scale() + origin();
}

QRectF ViewGeometry::toView(const QRectF& inPicture) const {
    return {toView(inPicture.topLeft()), inPicture.size() * scale()};
}

ViewGeometry ViewGeometry::zoomedAbout(double newScale, QPointF view) const {
    const QPointF held = toPicture(view);
    ViewGeometry zoomed = *this;
    zoomed.fitToScreen = false;
    zoomed.chosenScale = std::clamp(newScale, SmallestScale, LargestScale);
    zoomed.scroll = (held * zoomed.chosenScale - view).toPoint();
    zoomed.scroll = zoomed.clampedScroll();
    return zoomed;
}

ViewRegion ViewGeometry::visibleRegion() const {
    const QRect all(QPoint(0, 0), scaledSize());
    return {scale(), QRect(-origin(), viewport).intersected(all)};
}

ViewRegion ViewGeometry::comfortableRegion() const {
    const QRect all(QPoint(0, 0), scaledSize());
    ViewRegion region = visibleRegion();
    const int marginX = viewport.width() / 4;
    const int marginY = viewport.height() / 4;
    region.rect = region.rect.adjusted(-marginX, -marginY, marginX, marginY).intersected(all);
    return region;
}

QRect scaledRect(const QRect& inPicture, double scale) {
    const auto down = [scale](int at) { return static_cast<int>(std::floor(at * scale)) - SmoothingReach; };
    const auto up = [scale](int at) { return static_cast<int>(std::ceil(at * scale)) + SmoothingReach; };
    return {QPoint(down(inPicture.left()), down(inPicture.top())),
            QPoint(up(inPicture.right() + 1) - 1, up(inPicture.bottom() + 1) - 1)};
}

}  // namespace zelto
