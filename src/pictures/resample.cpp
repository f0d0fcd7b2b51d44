// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/resample.h"

#include "pictures/parallel_rows.h"
#include "pictures/resample_loops.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace zelto {
namespace {

constexpr double LanczosLobes = 3.0;

double sinc(double x) {
    const double angle = std::numbers::pi * x;
    return x == 0.0 ? 1.0 : std::sin(angle) / angle;
}

// Going down, the filter is widened by the ratio, so that it takes away what the new size cannot hold. At the
// borders it loses the part that finds no pixels. All spans are padded to the longest one's length by zero
// weights.
ResampleAxis axisOf(int oldLength, int newLength, const ResampleFilter& filter) {
    constexpr double Nothing = 1e-9;  // what the sine leaves at whole distances
    const double ratio = static_cast<double>(oldLength) / newLength;
    const double widening = std::max(1.0, ratio);
    const double reach = filter.radius * widening;
    struct Span {
        int first, end;
        double centre;
    };
    std::vector<Span> spans;
    ResampleAxis axis;
    const auto weight = [&](int k, double centre) { return filter.weight((k - centre) / widening); };
    for (int i = 0; i < newLength; ++i) {
        const double centre = (i + 0.5) * ratio - 0.5;
        int first = std::max(0, static_cast<int>(std::ceil(centre - reach)));
        int end = std::min(oldLength, static_cast<int>(std::floor(centre + reach)) + 1);
        while (end - first > 1 && std::abs(weight(first, centre)) < Nothing) ++first;
        while (end - first > 1 && std::abs(weight(end - 1, centre)) < Nothing) --end;
        spans.push_back({first, end, centre});
        axis.taps = std::max(axis.taps, end - first);
    }
    axis.weights.resize(spans.size() * static_cast<std::size_t>(axis.taps));
    float* weights = axis.weights.data();
    for (const Span& span : spans) {
        const int first = std::min(span.first, oldLength - axis.taps);
        double sum = 0.0;
        for (int k = span.first; k < span.end; ++k) sum += weight(k, span.centre);
        for (int k = span.first; k < span.end; ++k) {
            weights[k - first] = static_cast<float>(weight(k, span.centre) / sum);
        }
        axis.first.push_back(first);
        weights += axis.taps;
    }
    return axis;
}

}  // namespace

const ResampleFilter Lanczos3 = {
    LanczosLobes,
    [](double x) { return std::abs(x) < LanczosLobes ? sinc(x) * sinc(x / LanczosLobes) : 0.0; }};

QImage resizedImage(const QImage& picture, QSize newSize) {
    return resizedImage(picture, newSize, Lanczos3);
}

QImage resizedImage(const QImage& picture, QSize newSize, const ResampleFilter& filter) {
    if (picture.isNull() || newSize.isEmpty()) return {};
    if (picture.size() == newSize) return picture;
    QImage result(newSize, picture.format());
    if (result.isNull()) return {};
    const ResampleAxis columns = axisOf(picture.width(), newSize.width(), filter);
    const ResampleAxis rows = axisOf(picture.height(), newSize.height(), filter);
    uchar* const bits = result.bits();
    parallelRows(newSize.height(), std::max(picture.width(), newSize.width()), [&](int firstRow, int endRow) {
        std::vector<float> sums(static_cast<std::size_t>(picture.width()) * 4);
        std::vector<const uchar*> pixels(static_cast<std::size_t>(rows.taps));
        for (int y = firstRow; y < endRow; ++y) {
            const int top = rows.first[static_cast<std::size_t>(y)];
            for (int k = 0; k < rows.taps; ++k) {
                pixels[static_cast<std::size_t>(k)] = picture.constScanLine(top + k);
            }
            const float* const weights = rows.weights.data() + static_cast<std::ptrdiff_t>(y) * rows.taps;
            sumRows(pixels.data(), weights, rows.taps, sums.data(), sums.size());
            sumColumns(sums.data(), columns, !picture.hasAlphaChannel(),
                       reinterpret_cast<QRgb*>(bits + y * result.bytesPerLine()));
        }
    });
    return result;
}

}  // namespace zelto
