// SPDX-License-Identifier: GPL-3.0-or-later
// Lengths in pixels on their way to whole pixels, and the size of what is turned. Any thread.
#pragma once

#include <QSizeF>

#include <cstdint>

namespace zelto {

// `length` without the dust that arithmetic leaves on it: 0.2 of 1000 is 200, not 200.000003. The tolerance, a
// thousandth of a pixel, is far below what shows and far above what rounding leaves.
double withoutDust(double length);

// The whole pixels that hold `length`.
double wholePixels(double length);

// The bounding box of a rectangle of `size` turned by whole `degrees`. Exact for quarter turns.
QSizeF rotatedSize(QSizeF size, std::int64_t degrees);

}  // namespace zelto
