// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/shape.h"

#include "render/lengths.h"
#include "render/opacity.h"
#include "render/qt_color.h"

#include <QBrush>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zelto {
namespace {

constexpr int MaximumSides = 10'000;  // more only makes the same round outline
double length(bool isRelative, float fraction, double reference, float pixels) {
    return drawnLength(isRelative ? relativeLength(fraction, reference) : withoutDust(pixels));
}

QSizeF outlineSize(const Watermark& shape, QSizeF reference) {
    return {length(shape.ResizeWidthByPercent, shape.ResizeWidth, reference.width(), shape.Width),
            length(shape.ResizeHeightByPercent, shape.ResizeHeight, reference.height(), shape.Height)};
}

// Corners on an ellipse of whole radii, from the middle of the right edge counter-clockwise, each cut down to
// whole pixels. The angle adds up in double precision and is looked at in single precision, which decides on
// which side of a whole pixel a corner falls.
QPainterPath polygon(std::int64_t sides, QSizeF size) {
    QPainterPath path;
    if (sides < 3) return path;
    const int count = static_cast<int>(std::min<std::int64_t>(sides, MaximumSides));
    const auto radiusX = static_cast<int>(size.width() * 0.5);
    const auto radiusY = static_cast<int>(size.height() * 0.5);
    const auto cut = [](float ratio, int radius) {
        return std::trunc(ratio * static_cast<float>(radius) + static_cast<float>(radius));
    };
    double angle = 0.0;
    for (int corner = 0; corner < count; ++corner, angle += 2.0 * std::numbers::pi / count) {
        const auto single = static_cast<float>(angle);
        const QPointF point(cut(std::cos(single), radiusX), cut(std::sin(single), radiusY));
        corner == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

QPainterPath outlineOf(const ShapeImage& shape) {
    const QRectF bounds(QPointF(0.0, 0.0), shape.outline);
    QPainterPath path;
    switch (shape.kind) {
        case shape_type::Rectangle:
        case shape_type::Line:
            path.addRect(bounds);
            break;
        case shape_type::Polygon:
            path = polygon(shape.sides, shape.outline);
            break;
        default:
            path.addEllipse(bounds);
            break;
    }
    return path;
}

// Degrees, counter-clockwise from the right, y up.
double gradientAngle(std::int64_t type) {
    switch (type) {
        case gradient_type::TopToBottom:
            return 270.0;
        case gradient_type::LowerRightToUpperLeft:
            return 135.0;
        case gradient_type::UpperRightToLowerLeft:
            return 225.0;
        default:
            return 0.0;
    }
}

// The axis passes through the centre and is just long enough for the end colours to meet opposite corners.
QLinearGradient linearGradient(double degrees, const QRectF& bounds) {
    const QLineF unit = QTransform().rotate(degrees).map(QLineF(0.0, 0.0, 1.0, 0.0));
    const double half = (bounds.width() * std::abs(unit.dx()) + bounds.height() * std::abs(unit.dy())) / 2.0;
    const QPointF reach = unit.p2() * half;
    return {bounds.center() - reach, bounds.center() + reach};
}

QBrush fill(const ShapeImage& shape, const QRectF& bounds) {
    const auto paint = [](const std::optional<Color>& color) {
        return color ? toQColor(*color) : QColor(Qt::transparent);
    };
    if (shape.gradient == ShapeImage::PlainFill) return paint(shape.first);
    const auto colored = [&](auto gradient) {
        gradient.setColorAt(0.0, paint(shape.first));
        gradient.setColorAt(1.0, paint(shape.second));
        return QBrush(gradient);
    };
    if (shape.gradient == gradient_type::FromCentre) {
        return colored(QRadialGradient(bounds.center(), std::hypot(bounds.width(), bounds.height()) / 2.0));
    }
    return colored(linearGradient(gradientAngle(shape.gradient), bounds));
}

// Degrees clockwise as seen, 0 to 359. A circle does not turn; the record's own sides say whether it is one,
// also where its drawn size is relative.
int turn(const Watermark& shape) {
    const bool circle = shape.ShapeType == shape_type::Ellipse && shape.Width == shape.Height;
    return circle ? 0 : static_cast<int>((shape.Rotation % 360 + 360) % 360);
}

// From the outline's own space, y up, to the pixels of the shape's box, y down. Unturned the outline stands on the
// lower edge, turned it is centred.
QTransform toBox(const ShapeImage& shape) {
    QTransform transform;
    if (shape.degrees == 0) {
        transform.translate(0.0, shape.size.height());
        transform.scale(1.0, -1.0);
    } else {
        transform.translate(shape.size.width() / 2.0, shape.size.height() / 2.0);
        transform.rotate(shape.degrees);
        transform.scale(1.0, -1.0);
        transform.translate(-shape.outline.width() / 2.0, -shape.outline.height() / 2.0);
    }
    return transform;
}

}  // namespace

std::optional<ShapeImage> GetShapeImage(const Watermark& record, QSizeF reference) {
    ShapeImage shape{.kind = record.ShapeType,
                     .sides = record.Sides,
                     .outline = outlineSize(record, reference),
                     .degrees = turn(record),
                     .gradient = record.SolidBackground ? ShapeImage::PlainFill : record.GradeintType,
                     .first = record.SolidBackground ? record.SolidColor : record.FirstColor,
                     .second = record.SecondColor,
                     .opacity = opacityOf(record.Transparency),
                     .size = {}};
    if (outlineOf(shape).boundingRect().isEmpty()) return std::nullopt;
    const QSizeF turned = rotatedSize(shape.outline, shape.degrees);
    shape.size = QSizeF(wholePixels(turned.width()), wholePixels(turned.height())).toSize();
    if (shape.size.isEmpty()) return std::nullopt;
    return shape;
}

void drawShape(QPainter& painter, const ShapeImage& shape, const ContentPlace& place) {
    const QRectF box = place.toPicture.mapRect(QRectF(QPointF(0.0, 0.0), shape.size));
    if (visiblePixels(box, place.visible).isEmpty()) return;
    const QPainterPath path = outlineOf(shape);
    painter.save();
    painter.setClipRect(place.visible);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(shape.opacity);
    painter.setTransform(toBox(shape) * place.toPicture);
    painter.fillPath(path, fill(shape, path.boundingRect()));
    painter.restore();
}

}  // namespace zelto
