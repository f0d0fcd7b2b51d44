// SPDX-License-Identifier: GPL-3.0-or-later
// Changing a picture's size with a high-quality filter. Pictures are RGB32 or premultiplied ARGB32; the sums
// are made on the encoded, premultiplied components, as 2-D drawing makes them. docs/resampling.md says how
// the filter was chosen.
#pragma once

#include <QImage>
#include <QSize>

namespace zelto {

// `picture` stretched to `newSize` pixels; the proportions are the caller's. The picture itself when it
// already has that size, a null picture for an empty size or where memory does not suffice. Any thread.
QImage resizedImage(const QImage& picture, QSize newSize);

// A separable filter by its weights: of the old pixel at `distance` pixels (of the coarser of both grids)
// from the centre of the new one, 0 from `radius` on. They need not sum to 1.
struct ResampleFilter {
    double radius;
    double (*weight)(double distance);
};

// Lanczos' windowed sinc of three lobes: what resizedImage() uses.
extern const ResampleFilter Lanczos3;

QImage resizedImage(const QImage& picture, QSize newSize, const ResampleFilter& filter);

}  // namespace zelto
