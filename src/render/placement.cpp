// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/placement.h"

#include "pictures/lengths.h"
#include "render/lengths.h"

#include <QPointF>

#include <algorithm>
#include <array>
#include <cmath>

namespace zelto {
namespace {

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

// The paddings of a record on one area.
struct Paddings {
    double left;
    double top;
    double right;
    double bottom;

    Paddings(const Watermark& record, QSizeF reference)
        : left(on(record, length_field::PaddingLeft, reference)),
          top(on(record, length_field::PaddingTop, reference)),
          right(on(record, length_field::PaddingRight, reference)),
          bottom(on(record, length_field::PaddingBottom, reference)) {}

    static double on(const Watermark& record, const length_field::WatermarkLength& field, QSizeF reference) {
        return static_cast<double>(lengthOn(record, field, reference));
    }
};

QPointF origin(const Watermark& record, QSizeF size, QSizeF reference) {
    const double roomX = reference.width() - size.width();
    const double roomY = reference.height() - size.height();
    if (const std::optional<Place> place = presetPlace(record.Position)) {
        const Paddings padding(record, reference);
        return {along(place->horizontal, roomX, padding.left, padding.right, padding.left),
                along(place->vertical, roomY, padding.bottom, padding.top, -padding.top)};
    }
    if (record.Position == CustomPosition) {
        const double top =
            record.CustomPositionTop >= 1 ? static_cast<double>(record.CustomPositionTop) : 0.0;
        return {static_cast<double>(record.CustomPositionLeft), roomY - top};
    }
    return {0.0, roomY};
}

// Truncated first, so that -0.5 and 0.9 are both 0; what is not a number is 0 too.
double truncated(double coordinate) {
    return coordinate > 0.0 ? std::trunc(coordinate) : 0.0;
}

// What content with this much free `before` and `after` it is nearest to. Without any room all three are one: it keeps
// what it had.
Anchor nearestAnchor(double before, double after, Anchor kept) {
    if (before + after <= 0.0) return kept;
    const double fromMiddle = std::abs(before - after) / 2.0;
    if (fromMiddle <= std::min(before, after)) return Anchor::Middle;
    return before < after ? Anchor::Near : Anchor::Far;
}

std::int32_t presetAt(const Place& place) {
    const auto* const found = std::find_if(presets.begin(), presets.end(), [&](const Place& preset) {
        return preset.horizontal == place.horizontal && preset.vertical == place.vertical;
    });
    return static_cast<std::int32_t>(found - presets.begin()) + 1;
}

// The whole numbers that, cut to whole pixels as placing does, lead back to the same place.
std::int64_t down(double length) {
    return static_cast<std::int64_t>(std::floor(withoutDust(length)));
}
std::int64_t up(double length) {
    return -down(-length);
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

std::optional<Place> presetPlace(std::int32_t position) {
    if (position < 1 || position > std::ssize(presets)) return std::nullopt;
    return presets[static_cast<std::size_t>(position - 1)];
}

QRectF placedFrame(const Watermark& record, QSizeF size, QSizeF reference) {
    const QPointF place = origin(record, size, reference);
    return {QPointF(truncated(place.x()), truncated(place.y())), size};
}

void placeAt(Watermark& record, const QRectF& frame, QSizeF reference, Anchoring anchoring) {
    const double roomX = reference.width() - frame.width();
    const double roomY = reference.height() - frame.height();
    if (record.Position == CustomPosition) {
        record.CustomPositionLeft = std::llround(frame.x());
        record.CustomPositionTop = down(roomY - frame.y());
        return;
    }
    Place place = presetPlace(record.Position).value_or(presets.front());
    if (anchoring == Anchoring::Nearest) {
        place.horizontal = nearestAnchor(frame.x(), roomX - frame.x(), place.horizontal);
        place.vertical = nearestAnchor(frame.y(), roomY - frame.y(), place.vertical);
    }
    record.Position = presetAt(place);
    const auto set = [&](const length_field::WatermarkLength& field, std::int64_t pixels) {
        setLength(record, field, pixels, reference);
    };
    switch (place.horizontal) {
        case Anchor::Near:
            set(length_field::PaddingLeft, std::llround(frame.x()));
            break;
        case Anchor::Middle:
            set(length_field::PaddingLeft, up(frame.x() - roomX / 2.0));
            break;
        case Anchor::Far:
            set(length_field::PaddingRight, down(roomX - frame.x()));
            break;
    }
    switch (place.vertical) {
        case Anchor::Near:
            set(length_field::PaddingBottom, std::llround(frame.y()));
            break;
        case Anchor::Middle:
            set(length_field::PaddingTop, down(roomY / 2.0 - frame.y()));
            break;
        case Anchor::Far:
            set(length_field::PaddingTop, down(roomY - frame.y()));
            break;
    }
}

QRectF tiledFrame(const Watermark& record, QSizeF turned, QSizeF reference) {
    const auto [left, top, right, bottom] = Paddings(record, reference);
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
