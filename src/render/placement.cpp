// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/placement.h"

#include <QPointF>

#include <array>
#include <cmath>

namespace zelto {
namespace {

// Where content lies along one axis of the reference area, from the origin outward.
enum class Anchor { Near, Middle, Far };

struct Place {
    Anchor horizontal;
    Anchor vertical;
};

// The presets 1 to 9, row by row from the top left.
constexpr std::array<Place, 9> presets = {{
    {Anchor::Near, Anchor::Far},
    {Anchor::Middle, Anchor::Far},
    {Anchor::Far, Anchor::Far},
    {Anchor::Near, Anchor::Middle},
    {Anchor::Middle, Anchor::Middle},
    {Anchor::Far, Anchor::Middle},
    {Anchor::Near, Anchor::Near},
    {Anchor::Middle, Anchor::Near},
    {Anchor::Far, Anchor::Near},
}};

// `room` is what the content leaves free on the axis, `shift` how far the paddings move a centred content.
double along(Anchor anchor, double room, double nearPadding, double farPadding, double shift) {
    switch (anchor) {
        case Anchor::Near:
            return nearPadding;
        case Anchor::Middle:
            return room * 0.5 + shift;
        case Anchor::Far:
            break;
    }
    return room - farPadding;
}

double padding(std::int64_t pixels) {
    return static_cast<double>(pixels);
}

QPointF origin(const Watermark& record, QSizeF size, QSizeF reference) {
    const double roomX = reference.width() - size.width();
    const double roomY = reference.height() - size.height();
    if (record.Position >= 1 && record.Position <= std::ssize(presets)) {
        const Place place = presets[static_cast<std::size_t>(record.Position - 1)];
        const double left = padding(record.PaddingLeft);
        const double top = padding(record.PaddingTop);
        return {along(place.horizontal, roomX, left, padding(record.PaddingRight), left),
                along(place.vertical, roomY, padding(record.PaddingBottom), top, -top)};
    }
    if (record.Position == CustomPosition) {
        const double top = record.CustomPositionTop >= 1 ? padding(record.CustomPositionTop) : 0.0;
        return {padding(record.CustomPositionLeft), roomY - top};
    }
    return {0.0, roomY};
}

// Truncated first, so that -0.5 and 0.9 are both 0; what is not a number is 0 too.
double truncated(double coordinate) {
    return coordinate > 0.0 ? std::trunc(coordinate) : 0.0;
}

Anchor columnAnchor(std::int32_t position) {
    if (position == 5) return Anchor::Middle;
    return position == 6 ? Anchor::Far : Anchor::Near;
}

Anchor rowAnchor(std::int32_t position) {
    if (position == 5) return Anchor::Middle;
    return position == 2 ? Anchor::Far : Anchor::Near;
}

}  // namespace

QRectF placedFrame(const Watermark& record, QSizeF size, QSizeF reference) {
    const QPointF place = origin(record, size, reference);
    return {QPointF(truncated(place.x()), truncated(place.y())), size};
}

QRectF tiledFrame(const Watermark& record, QSizeF turned, QSizeF reference) {
    const double left = padding(record.PaddingLeft);
    const double right = padding(record.PaddingRight);
    const double top = padding(record.PaddingTop);
    const double bottom = padding(record.PaddingBottom);
    QRectF frame(left, bottom, reference.width() - right - left, reference.height() - top - bottom);
    if (!record.HorizontalTiling) {
        const double room = reference.width() - turned.width();
        frame.moveLeft(along(columnAnchor(record.Position), room, left, right, left - right));
        frame.setWidth(turned.width());
    } else if (!record.VerticalTiling) {
        const double room = reference.height() - turned.height();
        frame.moveTop(along(rowAnchor(record.Position), room, bottom, top, bottom - top));
        frame.setHeight(turned.height());
    }
    return frame;
}

}  // namespace zelto
