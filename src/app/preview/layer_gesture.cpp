// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/layer_gesture.h"

#include "pictures/lengths.h"
#include "render/hand_edits.h"
#include "render/placement.h"

#include <QLineF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// The shift that brings a layer to the nearest of the area's two edges and its middle, each for the same side of the
// layer; 0 where none is within `reach`.
double snapShift(double layerStart, double layerSize, double areaStart, double areaSize, double reach) {
    double nearest = reach;
    for (const double part : {0.0, 0.5, 1.0}) {
        const double shift = areaStart + part * areaSize - (layerStart + part * layerSize);
        if (std::abs(shift) < std::abs(nearest)) nearest = shift;
    }
    return nearest == reach ? 0.0 : nearest;
}

QPointF turned(QPointF vector, double degrees) {
    return QTransform().rotate(degrees).map(vector);
}

QPointF times(QPointF factors, QSizeF size) {
    return {factors.x() * size.width(), factors.y() * size.height()};
}

QRectF around(QPointF centre, QSizeF size) {
    QRectF rect(QPointF(), size);
    rect.moveCenter(centre);
    return rect;
}

// What stays where it is while a corner is pulled, in half sizes from the middle of the content: the opposite corner,
// but the middle on an axis on which the layer holds on to the middle of the photo.
QPointF fixedPoint(const Watermark& record, const LayerOutline& outline, QPointF pulled) {
    const std::optional<Place> place = presetPlace(record.Position);
    if (!place || outline.degrees != 0.0) return -pulled;
    return {place->horizontal == Anchor::Middle ? 0.0 : -pulled.x(),
            place->vertical == Anchor::Middle ? 0.0 : -pulled.y()};
}

double degreesOf(QPointF vector) {
    return -QLineF(QPointF(), vector).angle();
}

}  // namespace

std::optional<int> layerAt(const PhotoScene& scene, const WatermarkStack& stack, QPointF point,
                           double reach) {
    std::optional<int> tiled;
    for (int i = static_cast<int>(scene.layers.size()) - 1; i >= 0; --i) {
        const auto index = static_cast<std::size_t>(i);
        if (!scene.layers[index] || !stack.Watermarks[index].IsEnabled) continue;
        const QRectF frame = layerFrame(scene, index);
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

QPointF reachablePlace(QPointF topLeft, QSizeF layer, const QRectF& area) {
    constexpr double StaysInSight = 16.0;
    const double right = area.right() - std::min(layer.width(), StaysInSight);
    const double bottom = area.bottom() - layer.height();
    return {std::clamp(topLeft.x(), area.left(), std::max(area.left(), right)),
            std::clamp(topLeft.y(), area.top(), std::max(area.top(), bottom))};
}

LayerGesture::LayerGesture(const PhotoScene& scene, const WatermarkStack& stack, int index, const Grip& grip,
                           QPointF point)
    : index_(index),
      grip_(grip),
      record_(stack.Watermarks.at(static_cast<std::size_t>(index))),
      frame_(layerFrame(scene, static_cast<std::size_t>(index))),
      area_(scene.referenceRect),
      outline_(layerOutline(scene, static_cast<std::size_t>(index)).value_or(LayerOutline())),
      held_(point),
      degrees_(record_.Rotation) {}

LayerEdit LayerGesture::moveTo(QPointF point, double snap, bool isFree) {
    switch (grip_.part) {
        case Grip::Part::Corner:
            return resize(point, isFree);
        case Grip::Part::Turn:
            return turn(point, isFree);
        case Grip::Part::Body:
            break;
    }
    return move(point, snap);
}

LayerEdit LayerGesture::move(QPointF point, double snap) const {
    QPointF topLeft = frame_.topLeft() + point - held_;
    topLeft.rx() += snapShift(topLeft.x(), frame_.width(), area_.x(), area_.width(), snap);
    topLeft.ry() += snapShift(topLeft.y(), frame_.height(), area_.y(), area_.height(), snap);
    const QRectF to = toArea({reachablePlace(topLeft, frame_.size(), area_), frame_.size()}, area_);
    return [to, area = area_.size()](Watermark& record) { placeAt(record, to, area, Anchoring::Nearest); };
}

LayerEdit LayerGesture::resize(QPointF point, bool isFree) const {
    const QPointF pulled(grip_.corner);
    const QPointF fixed = fixedPoint(record_, outline_, pulled);
    const auto at = [this](QPointF halfSizes) {
        return outline_.centre + turned(times(halfSizes, outline_.size) / 2.0, outline_.degrees);
    };
    const QPointF fixedAt = at(fixed);
    // From the fixed point to the corner, as it was and as it is to be, along the sides of the content.
    const QPointF before = times(pulled - fixed, outline_.size) / 2.0;
    const QPointF after = turned(at(pulled) + point - held_ - fixedAt, -outline_.degrees);
    constexpr double Smallest = 1e-3;
    const double diagonal = QPointF::dotProduct(after, before) / QPointF::dotProduct(before, before);
    QSizeF factors(diagonal, diagonal);
    if (isFree && isFreelySized(record_)) factors = {after.x() / before.x(), after.y() / before.y()};
    factors = factors.expandedTo({Smallest, Smallest});
    return [=, outline = outline_, area = area_](Watermark& record) {
        const QSizeF left = resizeBy(record, factors, area.size());
        const QSizeF size(outline.size.width() * left.width(), outline.size.height() * left.height());
        const QPointF centre = fixedAt - turned(times(fixed, size) / 2.0, outline.degrees);
        const QRectF frame = around(centre, rotatedSize(size, std::llround(outline.degrees)));
        placeAt(record, toArea(frame, area), area.size(), Anchoring::Kept);
    };
}

// Where the layer lies when it is turned: in its corner with its paddings, so that none of it leaves the photo; about
// its middle where its place is its own.
QRectF LayerGesture::frameTurnedTo(std::int64_t degrees) const {
    const QSizeF size = rotatedSize(outline_.size, degrees);
    if (record_.Position == CustomPosition) return around(outline_.centre, size);
    return fromArea(placedFrame(record_, size, area_.size()), area_);
}

LayerEdit LayerGesture::turn(QPointF point, bool inSteps) {
    // A layer that keeps its corner moves its middle while it turns: the angle is the one that fits where it comes to
    // lie, found in a few steps.
    constexpr int Steps = 6;
    constexpr double StepDegrees = 15.0;
    const double grippedAt = degreesOf(held_ - outline_.centre) - outline_.degrees;
    for (int step = 0; step < Steps; ++step) {
        const QPointF centre = frameTurnedTo(degrees_).center();
        const double wanted = degreesOf(point - centre) - grippedAt;
        degrees_ =
            inSteps ? std::llround(std::round(wanted / StepDegrees) * StepDegrees) : std::llround(wanted);
    }
    const bool isCustom = record_.Position == CustomPosition;
    return [degrees = degrees_, isCustom, to = toArea(frameTurnedTo(degrees_), area_),
            area = area_.size()](Watermark& record) {
        turnTo(record, degrees);
        if (isCustom) placeAt(record, to, area, Anchoring::Kept);
    };
}

}  // namespace zelto
