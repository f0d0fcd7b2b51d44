// SPDX-License-Identifier: GPL-3.0-or-later
// The inner loops of resampling, for the widest vectors that the processor at hand has. A picture is made row
// by row: old rows are summed into one row of floats, and this row's pixels into one row of the new picture.
#pragma once

#include <QRgb>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace zelto {

// What the new pixels of one axis are made of: pixel i of the `taps` old ones from first[i] on, with the
// weights from weights[i * taps] on, which sum to 1.
struct ResampleAxis {
    int taps = 0;
    std::vector<int> first;
    std::vector<float> weights;
};

// sums[i] = sum of rows[k][i] * weights[k] over the `taps` rows, for `bytes` values (a multiple of 4).
void sumRows(const std::uint8_t* const* rows, const float* weights, int taps, float* sums, std::size_t bytes);

// A row of new pixels from a row of four floats per pixel, rounded and valid as pixels: no component above its
// alpha, and the alpha of `opaque` pictures 255.
void sumColumns(const float* sums, const ResampleAxis& columns, bool opaque, QRgb* out);

}  // namespace zelto
