// SPDX-License-Identifier: GPL-3.0-or-later
// What a resolution found in a file is taken to mean, and how it is written.
#pragma once

#include <cmath>
#include <cstdint>

namespace zelto {

inline constexpr double DefaultDpi = 72.0;
inline constexpr double InchesPerMeter = 1.0 / 0.0254;

// The whole number that files counting so hold.
inline std::uint32_t dotsPerMeter(double dpi) {
    return static_cast<std::uint32_t>(std::lround(dpi * InchesPerMeter));
}

// Dots per inch as the picture's author meant them. Files count in whole dots per metre or in fractions, so
// that 72 arrives as 72.009 or 300 as 299.9994: what is within that rounding of a whole number is that
// number. Values no scanner, camera or printer has mean that none was recorded.
inline double intendedDpi(double recorded) {
    if (!(recorded > 1.0 && recorded < 1e6)) return DefaultDpi;
    constexpr double HalfDotPerMeter = 0.5 / InchesPerMeter;
    const double whole = std::round(recorded);
    return std::abs(recorded - whole) <= HalfDotPerMeter ? whole : recorded;
}

}  // namespace zelto
