// SPDX-License-Identifier: GPL-3.0-or-later
// The sRGB transfer curve in double precision (IEC 61966-2-1), for tables and for single values. Any thread.
#pragma once

#include <cmath>

namespace zelto {

// The linear light of an encoded component; both run from 0 to 1.
inline double linearFromSrgb(double encoded) {
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

// The encoded component of a linear one; both run from 0 to 1.
inline double srgbFromLinear(double linear) {
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1.0 / 2.4) - 0.055;
}

}  // namespace zelto
