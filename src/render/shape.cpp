// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/shape.h"

#include "pictures/picture_reader.h"
#include "render/lengths.h"
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
constexpr std::int64_t RadialGradient = 5;

// Lengths are worked out in single precision, like the records that hold them: 0.2 of 4000 is 800 there.
double length(bool relative, float fraction, double reference, float pixels) {
    return withoutDust(relative ? fraction * static_cast<float>(reference) : pixels);
}

QSizeF shapeSize(const Watermark& shape, QSizeF reference) {
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

QPainterPath outline(const Watermark& shape, QSizeF size) {
    const QRectF bounds(QPointF(0.0, 0.0), size);
    QPainterPath path;
    switch (shape.ShapeType) {
        case shape_type::Rectangle:
        case shape_type::Line:
            path.addRect(bounds);
            break;
        case shape_type::Polygon:
            path = polygon(shape.Sides, size);
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
        case 2:
            return 270.0;
        case 3:
            return 135.0;
        case 4:
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

QBrush fill(const Watermark& shape, const QRectF& bounds) {
    const auto paint = [](const std::optional<Color>& color) {
        return color ? toQColor(*color) : QColor(Qt::transparent);
    };
    if (shape.SolidBackground) return paint(shape.SolidColor);
    const auto colored = [&](auto gradient) {
        gradient.setColorAt(0.0, paint(shape.FirstColor));
        gradient.setColorAt(1.0, paint(shape.SecondColor));
        return QBrush(gradient);
    };
    if (shape.GradeintType == RadialGradient) {
        return colored(QRadialGradient(bounds.center(), std::hypot(bounds.width(), bounds.height()) / 2.0));
    }
    return colored(linearGradient(gradientAngle(shape.GradeintType), bounds));
}

// Degrees clockwise as seen, 0 to 359. A circle does not turn; the record's own sides say whether it is one,
// also where its drawn size is relative.
int turn(const Watermark& shape) {
    const bool circle = shape.ShapeType == shape_type::Ellipse && shape.Width == shape.Height;
    return circle ? 0 : static_cast<int>((shape.Rotation % 360 + 360) % 360);
}

}  // namespace

QImage GetShapeImage(const Watermark& shape, QSizeF reference) {
    const QSizeF size = shapeSize(shape, reference);
    if (canvasSide(size.width()) == 0 || canvasSide(size.height()) == 0) return {};
    const QPainterPath path = outline(shape, size);
    if (path.isEmpty()) return {};

    const int degrees = turn(shape);
    const QRectF turned = QTransform().rotate(degrees).mapRect(QRectF(QPointF(0.0, 0.0), size));
    const QSize canvasSize(canvasSide(turned.width()), canvasSide(turned.height()));
    if (canvasSize.isEmpty() || qint64{canvasSize.width()} * canvasSize.height() > MaximumPicturePixels)
        return {};
    QImage canvas(canvasSize, QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull()) return {};
    canvas.fill(Qt::transparent);

    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(shape.Transparency > 0.0F ? std::min(shape.Transparency, 1.0F) : 0.0F);
    // From the outline's own space, y up, to the canvas: unturned it stands on the bottom edge, turned it is
    // centred.
    if (degrees == 0) {
        painter.translate(0.0, canvas.height());
        painter.scale(1.0, -1.0);
    } else {
        painter.translate(canvas.width() / 2.0, canvas.height() / 2.0);
        painter.rotate(degrees);
        painter.scale(1.0, -1.0);
        painter.translate(-size.width() / 2.0, -size.height() / 2.0);
    }
    painter.fillPath(path, fill(shape, path.boundingRect()));
    painter.end();
    return canvas;
}

}  // namespace zelto
