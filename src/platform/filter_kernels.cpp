// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/filter_kernels.h"

#include "platform/srgb_transfer.h"

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

struct Straight {
    std::array<double, 3> color;
    double alpha;
};

std::uint32_t sepia(std::uint32_t pixel) {
    const std::uint32_t r = (pixel >> 16U) & 0xFFU;
    const std::uint32_t g = (pixel >> 8U) & 0xFFU;
    const std::uint32_t b = pixel & 0xFFU;
    const std::uint32_t red = std::min((393 * r + 769 * g + 189 * b) / 1000, 255U);
    const std::uint32_t green = std::min((349 * r + 686 * g + 168 * b) / 1000, 255U);
    const std::uint32_t blue = std::min((272 * r + 534 * g + 131 * b) / 1000, 255U);
    return (pixel & 0xFF000000U) | (red << 16U) | (green << 8U) | blue;
}

Straight straight(std::uint32_t pixel, bool hasAlpha) {
    const double alpha = hasAlpha ? (pixel >> 24U) / 255.0 : 1.0;
    Straight s{{0, 0, 0}, alpha};
    if (alpha <= 0.0) return s;
    for (unsigned channel = 0; channel < 3; ++channel) {
        const double encoded = ((pixel >> (16U - 8U * channel)) & 0xFFU) / 255.0 / alpha;
        s.color[channel] = linearFromSrgb(std::min(encoded, 1.0));
    }
    return s;
}

std::uint32_t packed(const Straight& s) {
    auto pixel = static_cast<std::uint32_t>(s.alpha * 255.0 + 0.5) << 24U;
    for (unsigned channel = 0; channel < 3; ++channel) {
        const double encoded = srgbFromLinear(std::clamp(s.color[channel], 0.0, 1.0)) * s.alpha;
        pixel |= static_cast<std::uint32_t>(encoded * 255.0 + 0.5) << (16U - 8U * channel);
    }
    return pixel;
}

}  // namespace

void filterPixels(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target, int count,
                  int x, int y, bool hasAlpha) {
    const FilterPlace& place = pass.place;
    for (int i = 0; i < count; ++i) {
        Straight s = straight(pass.sepia ? sepia(source[i]) : source[i], hasAlpha);
        double m = 1.0;
        double k = 0.0;
        if (place.kind != FilterPlace::Kind::Nowhere) {
            const double d = std::hypot(x + i + 0.5 - place.centerX, y + 0.5 - place.centerY);
            const double u = std::clamp(d * place.slope + place.start, 0.0, 1.0);
            if (place.kind == FilterPlace::Kind::Vignette) {
                m = linearFromSrgb(1.0 - place.intensity * u * u * u * (u * (u * 6.0 - 15.0) + 10.0));
            } else {
                const double alpha = u + s.alpha * (1.0 - u);
                m = alpha > 0.0 ? s.alpha * (1.0 - u) / alpha : 0.0;
                k = alpha > 0.0 ? u / alpha : 0.0;
                s.alpha = alpha;
            }
        }
        Straight result{{}, s.alpha};
        for (std::size_t c = 0; c < 3; ++c) {
            double value = pass.offset[c];
            for (std::size_t j = 0; j < 3; ++j) value += pass.matrix[c][j] * s.color[j];
            result.color[c] = m * value + k * pass.veil[c] + pass.shift[c];
        }
        target[i] = packed(result);
    }
}

}  // namespace zelto
