// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/filter_pass.h"

#include "pictures/rounding.h"
#include "pictures/srgb_transfer.h"

#include <algorithm>
#include <cstddef>

namespace zelto {
namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

constexpr Vector Luma = {0.2125, 0.7154, 0.0721};

Vector times(const Matrix& matrix, const Vector& v) {
    Vector result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) result[row] += matrix[row][column] * v[column];
    }
    return result;
}

// A colour map: x becomes matrix * x + offset.
struct Affine {
    Matrix matrix = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    Vector offset = {0, 0, 0};

    // This map first, `next` on its result.
    Affine then(const Affine& next) const {
        Affine both;
        for (std::size_t column = 0; column < 3; ++column) {
            const Vector image =
                times(next.matrix, {matrix[0][column], matrix[1][column], matrix[2][column]});
            for (std::size_t row = 0; row < 3; ++row) both.matrix[row][column] = image[row];
        }
        both.offset = times(next.matrix, offset);
        for (std::size_t row = 0; row < 3; ++row) both.offset[row] += next.offset[row];
        return both;
    }
};

Affine affine(const ColorControls& controls) {
    Affine map;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const double own = row == column ? controls.saturation : 0.0;
            map.matrix[row][column] = controls.contrast * (own + (1.0 - controls.saturation) * Luma[column]);
        }
        map.offset[row] = 0.5 - 0.5 * controls.contrast + controls.brightness;
    }
    return map;
}

Affine affine(const CrossPolynomial& weights) {
    return {{weights.red, weights.green, weights.blue}, {0, 0, 0}};
}

Affine affine(const std::vector<ColorStep>& steps) {
    Affine all;
    for (const ColorStep& step : steps) {
        all = all.then(std::visit([](const auto& one) { return affine(one); }, step));
    }
    return all;
}

FilterPlace placeOf(const VignetteEffect& vignette, QSize size) {
    constexpr double Falloff = 0.5;
    constexpr double HalfRange = 0.5 + Falloff;
    const double radius = std::max(size.width() * 0.5, 0.001);
    FilterPlace place;
    place.kind = FilterPlace::Kind::Vignette;
    place.slope = static_cast<float>(1.0 / (radius * 2.0 * HalfRange));
    place.start = static_cast<float>((HalfRange - 1.0) / (2.0 * HalfRange));
    place.intensity = static_cast<float>(vignette.intensity);
    return place;
}

FilterPlace placeOf(const WhiteGradientOver& gradient, QSize size) {
    constexpr double Step = 1e-3;  // pixels; what is left of a gradient whose circles meet
    const double inner = gradient.innerRadius * size.height();
    const double outer = gradient.outerRadius * size.width();
    const double slope = 1.0 / std::max(outer - inner, Step);
    FilterPlace place;
    place.kind = FilterPlace::Kind::WhiteGradient;
    place.slope = static_cast<float>(slope);
    place.start = static_cast<float>(-inner * slope);
    return place;
}

std::array<float, 3> single(const Vector& v) {
    return {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])};
}

bool isDiagonal(const Matrix& m) {
    return m[0][1] == 0 && m[0][2] == 0 && m[1][0] == 0 && m[1][2] == 0 && m[2][0] == 0 && m[2][1] == 0;
}

// One channel's table for linear results of factor * x + offset.
std::array<std::uint32_t, 256> table(double factor, double offset, std::size_t channel) {
    std::array<std::uint32_t, 256> values{};
    for (std::size_t level = 0; level < values.size(); ++level) {
        const double linear = factor * linearFromSrgb(static_cast<double>(level) / 255.0) + offset;
        const double encoded = srgbFromLinear(std::clamp(linear, 0.0, 1.0));
        values[level] = static_cast<std::uint32_t>(rounded(encoded * 255.0)) << (16U - 8U * channel);
    }
    return values;
}

template <class Rows>
bool allEqual(const Rows& rows) {
    return rows[0] == rows[1] && rows[1] == rows[2];
}

}  // namespace

FilterPass fuse(const FilterChain& chain, QSize size) {
    const Affine last = affine(chain.after);
    Affine first = affine(chain.before);
    first = first.then({last.matrix, {0, 0, 0}});

    FilterPass pass;
    pass.sepia = chain.sepia;
    for (std::size_t row = 0; row < 3; ++row) pass.matrix[row] = single(first.matrix[row]);
    pass.offset = single(first.offset);
    pass.veil = single(times(last.matrix, {1, 1, 1}));
    pass.shift = single(last.offset);
    if (chain.place) {
        pass.place = std::visit([size](const auto& step) { return placeOf(step, size); }, *chain.place);
        pass.place.centerX = static_cast<float>(size.width() * 0.5);
        pass.place.centerY = static_cast<float>(size.height() * 0.5);
    }
    if (!chain.sepia && !chain.place && isDiagonal(first.matrix)) {
        const auto map = [&](std::size_t c) {
            return table(first.matrix[c][c], first.offset[c] + last.offset[c], c);
        };
        pass.tables = {map(0), map(1), map(2)};
    }
    pass.grey = allEqual(pass.matrix) && allEqual(pass.offset) && allEqual(pass.veil) &&
                allEqual(pass.shift) && pass.place.kind != FilterPlace::Kind::WhiteGradient;
    return pass;
}

}  // namespace zelto
