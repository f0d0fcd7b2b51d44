// SPDX-License-Identifier: GPL-3.0-or-later
// Lengths in photo pixels on their way to whole pixels.
#pragma once

#include <cmath>

namespace zelto {

// The longest side a painter can draw on, in pixels.
inline constexpr double MaximumCanvasSide = 32'767.0;

// `length` without the dust that single precision leaves on it: 0.2 of 1000 is 200, not 200.000003. The
// tolerance is far below what shows and far above what rounding leaves.
inline double withoutDust(double length) {
    constexpr double Dust = 1e-3;
    const double whole = std::round(length);
    return std::abs(length - whole) < Dust ? whole : length;
}

// The whole pixels that hold `length`; 0 for one that is no number, not above 0 or above MaximumCanvasSide.
inline int canvasSide(double length) {
    const bool drawable = length > 0.0 && length <= MaximumCanvasSide;
    return drawable ? static_cast<int>(std::ceil(withoutDust(length))) : 0;
}

}  // namespace zelto
