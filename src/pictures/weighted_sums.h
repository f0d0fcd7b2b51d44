// SPDX-License-Identifier: GPL-3.0-or-later
// The inner loop of a convolution. Any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace zelto {

// sums[i] = weights[0] * rows[0][i] + weights[1] * rows[1][i] + ... for all of `sums`; there are as many rows
// as weights and each holds as many values as `sums`. Rows may overlap: a row and itself a place further on
// blur it across.
void weightedSums(std::span<const std::uint16_t* const> rows, std::span<const float> weights,
                  std::span<float> sums);

}  // namespace zelto
