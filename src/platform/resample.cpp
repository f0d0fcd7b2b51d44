// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/resample.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace zelto {
namespace {

constexpr double KernelRadius = 3.0;

double sinc(double x) {
    const double angle = std::numbers::pi * x;
    return x == 0.0 ? 1.0 : std::sin(angle) / angle;
}

double lanczos3(double x) {
    return std::abs(x) < KernelRadius ? sinc(x) * sinc(x / KernelRadius) : 0.0;
}

// For each pixel of the new axis, the span of old pixels it is made of and their weights, which sum to 1.
struct Axis {
    struct Span {
        int first = 0;
        int count = 0;
        std::size_t weights = 0;  // the first one's place in `weights`
    };
    std::vector<Span> spans;
    std::vector<float> weights;
};

// Going down, the kernel is widened by the ratio, so that it takes away what the new size cannot hold.
Axis axisOf(int oldLength, int newLength) {
    Axis axis;
    const double ratio = static_cast<double>(oldLength) / newLength;
    const double widening = std::max(1.0, ratio);
    std::vector<double> exact;
    for (int i = 0; i < newLength; ++i) {
        const double centre = (i + 0.5) * ratio;
        const int first = std::max(0, static_cast<int>(std::floor(centre - KernelRadius * widening)));
        const int end = std::min(oldLength, static_cast<int>(std::ceil(centre + KernelRadius * widening)));
        exact.clear();
        for (int k = first; k < end; ++k) exact.push_back(lanczos3((k + 0.5 - centre) / widening));
        double sum = 0.0;
        for (const double weight : exact) sum += weight;
        axis.spans.push_back({first, end - first, axis.weights.size()});
        for (const double weight : exact) axis.weights.push_back(static_cast<float>(weight / sum));
    }
    return axis;
}

void gatherRows(const QImage& picture, const Axis::Span& span, const float* weights,
                std::vector<float>& sums) {
    std::fill(sums.begin(), sums.end(), 0.0F);
    for (int k = 0; k < span.count; ++k) {
        const uchar* const row = picture.constScanLine(span.first + k);
        const float weight = weights[k];
        for (std::size_t i = 0; i < sums.size(); ++i) sums[i] += weight * static_cast<float>(row[i]);
    }
}

// The bytes of a picture's pixel are blue, green, red, alpha; overshoot may not leave a component above its
// alpha.
QRgb pixelOf(const float* sum, bool opaque) {
    const int alpha = opaque ? 255 : static_cast<int>(std::clamp(sum[3], 0.0F, 255.0F) + 0.5F);
    const auto component = [alpha](float value) {
        return std::min(alpha, static_cast<int>(std::max(value, 0.0F) + 0.5F));
    };
    return qRgba(component(sum[2]), component(sum[1]), component(sum[0]), alpha);
}

}  // namespace

QImage resizedImage(const QImage& picture, QSize newSize) {
    if (picture.isNull() || newSize.isEmpty()) return {};
    if (picture.size() == newSize) return picture;
    QImage result(newSize, picture.format());
    if (result.isNull()) return {};
    const Axis columns = axisOf(picture.width(), newSize.width());
    const Axis rows = axisOf(picture.height(), newSize.height());
    const bool opaque = !picture.hasAlphaChannel();
    std::vector<float> sums(static_cast<std::size_t>(picture.width()) * 4);
    for (int y = 0; y < newSize.height(); ++y) {
        const Axis::Span& rowSpan = rows.spans[static_cast<std::size_t>(y)];
        gatherRows(picture, rowSpan, rows.weights.data() + rowSpan.weights, sums);
        auto* const out = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < newSize.width(); ++x) {
            const Axis::Span& span = columns.spans[static_cast<std::size_t>(x)];
            float sum[4] = {};
            for (int k = 0; k < span.count; ++k) {
                const float weight = columns.weights[span.weights + static_cast<std::size_t>(k)];
                const float* const pixel = sums.data() + (static_cast<std::ptrdiff_t>(span.first) + k) * 4;
                for (int c = 0; c < 4; ++c) sum[c] += weight * pixel[c];
            }
            out[x] = pixelOf(sum, opaque);
        }
    }
    return result;
}

}  // namespace zelto
