// SPDX-License-Identifier: GPL-3.0-or-later
// Rounding in loops over pixels, where std::lround would keep the compiler from using vector instructions.
#pragma once

#include <concepts>

namespace zelto {

// The nearest whole number to `value`, halves upward. `value` is at least -0.5.
template <std::floating_point Number>
constexpr int rounded(Number value) {
    return static_cast<int>(value + Number{0.5});  // NOLINT(bugprone-incorrect-roundings)
}

}  // namespace zelto
