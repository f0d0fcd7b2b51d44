// SPDX-License-Identifier: GPL-3.0-or-later
// The size of a text's letters, which a record keeps as a whole number and a fraction beside it. In points, or in per
// cent of a side of the photo where the record says so.
#pragma once

#include "records/watermark.h"

#include <cmath>
#include <optional>

namespace zelto {

inline double fontSizeOf(const Watermark& record) {
    return static_cast<double>(record.FontSize) + static_cast<double>(record.FontSizeFraction.value_or(0.0F));
}

inline void setFontSize(Watermark& record, double size) {
    const double whole = std::floor(size);
    const auto fraction = static_cast<float>(size - whole);
    record.FontSize = static_cast<std::int64_t>(whole);
    record.FontSizeFraction = fraction > 0.0F ? std::optional(fraction) : std::nullopt;
}

}  // namespace zelto
