// SPDX-License-Identifier: GPL-3.0-or-later
// What the sizes of a record come to on one photo. W x H is the reference area, in photo pixels.
#pragma once

#include "pictures/lengths.h"
#include "records/length_field.h"

#include <QSizeF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <cstdint>
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

// A length of a record, which may be a share of the shorter side: for a watermark that of the reference area, for a
// border or a shadow that of the photo alone. Whole pixels, as pixels are.
template <class Record>
std::int64_t lengthOn(const Record& record, const LengthField<Record>& field, QSizeF area) {
    const std::optional<float>& share = record.*field.Share;
    if (!share) return record.*field.Pixels;
    return std::llround(relativeLength(*share, std::min(area.width(), area.height())));
}

// The share that `pixels` are, with the six decimals that setting files keep; 0 where the area has no size.
inline float shareOf(double pixels, QSizeF area) {
    const double side = std::min(area.width(), area.height());
    return side > 0.0 ? static_cast<float>(std::round(pixels / side * 1e6) / 1e6) : 0.0F;
}

// Sets the length to `pixels` on this area. Where the record has a share it has the same share of photos of other sizes.
template <class Record>
void setLength(Record& record, const LengthField<Record>& field, std::int64_t pixels, QSizeF area) {
    record.*field.Pixels = pixels;
    if (record.*field.Share) record.*field.Share = shareOf(static_cast<double>(pixels), area);
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
