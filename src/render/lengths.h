// SPDX-License-Identifier: GPL-3.0-or-later
// What the sizes of a record come to on one photo. W x H is the reference area, in photo pixels.
#pragma once

#include "pictures/lengths.h"
#include "records/watermark.h"

#include <QSizeF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <optional>

namespace zelto {

// The share `fraction` of a side of `reference` pixels. It is worked out in single precision, like the records that
// hold it: 0.2 of 4000 is 800 there.
inline double relativeLength(float fraction, double reference) {
    return withoutDust(fraction * static_cast<float>(reference));
}

// `length` as it is drawn: 0 where it is not above 0, and at most a length that no photo has and a painter's
// arithmetic still holds.
inline double drawnLength(double length) {
    constexpr double Longest = 4e6;
    return length > 0.0 && std::isfinite(length) ? std::min(length, Longest) : 0.0;
}

enum class Side { Width, Height };

// The side that `name`, one of photo_side, stands for; the longer side of a square is its width. Nothing for any other
// name.
inline std::optional<Side> sideNamed(const QString& name, QSizeF reference) {
    if (name == photo_side::Width) return Side::Width;
    if (name == photo_side::Height) return Side::Height;
    if (name != photo_side::LongerSide) return std::nullopt;
    return reference.height() > reference.width() ? Side::Height : Side::Width;
}

}  // namespace zelto
