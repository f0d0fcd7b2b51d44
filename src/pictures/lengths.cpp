// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/lengths.h"

#include <cmath>
#include <numbers>

namespace zelto {

double withoutDust(double length) {
    constexpr double Dust = 1e-3;
    const double whole = std::round(length);
    return std::abs(length - whole) < Dust ? whole : length;
}

double wholePixels(double length) {
    return std::ceil(withoutDust(length));
}

QSizeF rotatedSize(QSizeF size, std::int64_t degrees) {
    const std::int64_t turn = degrees % 180;
    if (turn == 0) return size;
    if (turn == 90 || turn == -90) return size.transposed();
    const double radians = static_cast<double>(turn) * std::numbers::pi / 180.0;
    const double cosine = std::abs(std::cos(radians));
    const double sine = std::abs(std::sin(radians));
    return {size.width() * cosine + size.height() * sine, size.width() * sine + size.height() * cosine};
}

}  // namespace zelto
