// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/place_guides.h"

#include "pictures/lengths.h"
#include "render/lengths.h"
#include "render/placement.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

bool hasSharedPaddings(const Watermark& record) {
    return std::any_of(length_field::Paddings.begin(), length_field::Paddings.end(),
                       [&](const auto& field) { return (record.*field.Share).has_value(); });
}

// Pixels, and where the paddings are shares of the photo what share that is.
QString labelOf(const Watermark& record, double pixels, QSizeF area) {
    const QString length =
        QCoreApplication::translate("zelto::PlaceGuides", "%L1 px").arg(static_cast<int>(pixels));
    if (record.Position == CustomPosition || !hasSharedPaddings(record)) return length;
    const double percent = static_cast<double>(shareOf(pixels, area)) * 100.0;
    return QCoreApplication::translate("zelto::PlaceGuides", "%1 = %2 %")
        .arg(length, QLocale().toString(percent, 'f', 1));
}

// Both along one axis, as their first and their last coordinate.
struct Span {
    double first;
    double last;

    double middle() const { return (first + last) / 2.0; }
    double at(Anchor anchor) const {
        if (anchor == Anchor::Middle) return middle();
        return anchor == Anchor::Near ? first : last;
    }
};

}  // namespace

PlaceGuides placeGuides(const Watermark& record, const QRectF& frame, const QRectF& area) {
    PlaceGuides guides;
    const std::optional<Place> preset = presetPlace(record.Position);
    if (preset) guides.cell = record.Position;
    const Place place = preset.value_or(Place{Anchor::Near, Anchor::Far});
    // Records count upward, pictures downward.
    const Anchor fromTop = place.vertical == Anchor::Middle ? Anchor::Middle
                           : place.vertical == Anchor::Far  ? Anchor::Near
                                                            : Anchor::Far;
    // `line` makes one across the axis at a coordinate, `along` one on the axis between two.
    const auto add = [&](Span layer, Span whole, Anchor anchor, auto line, auto along) {
        const double from = whole.at(anchor);
        const double to = layer.at(anchor);
        const double distance = std::floor(withoutDust(std::abs(to - from)));
        if (distance == 0.0 || anchor == Anchor::Middle) guides.lines.push_back(line(from));
        if (distance > 0.0)
            guides.distances.push_back({along(from, to), labelOf(record, distance, area.size())});
    };
    add(
        {frame.left(), frame.right()}, {area.left(), area.right()}, place.horizontal,
        [&](double x) { return QLineF(x, area.top(), x, area.bottom()); },
        [&](double from, double to) { return QLineF(from, frame.center().y(), to, frame.center().y()); });
    add(
        {frame.top(), frame.bottom()}, {area.top(), area.bottom()}, fromTop,
        [&](double y) { return QLineF(area.left(), y, area.right(), y); },
        [&](double from, double to) { return QLineF(frame.center().x(), from, frame.center().x(), to); });
    return guides;
}

}  // namespace zelto
