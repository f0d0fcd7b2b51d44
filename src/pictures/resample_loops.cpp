// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/resample_loops.h"

#include <algorithm>
#include <array>

// The file is compiled once for each instruction set by including itself.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pictures/resample_loops.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zelto::HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR

// Processors so old that they have no vectors worth the name.
void sumRowsImpl(const std::uint8_t* const* rows, const float* weights, int taps, float* sums,
                 std::size_t bytes) {
    std::fill_n(sums, bytes, 0.0F);
    for (int k = 0; k < taps; ++k) {
        for (std::size_t i = 0; i < bytes; ++i) sums[i] += weights[k] * static_cast<float>(rows[k][i]);
    }
}

void sumColumnsImpl(const float* sums, const ResampleAxis& columns, bool opaque, QRgb* out) {
    const float* weight = columns.weights.data();
    for (const int first : columns.first) {
        std::array<float, 4> sum{};
        for (int k = 0; k < columns.taps; ++k, ++weight) {
            for (std::size_t c = 0; c < 4; ++c)
                sum[c] += *weight * sums[static_cast<std::size_t>(first + k) * 4 + c];
        }
        const float alpha = opaque ? 255.0F : std::max(sum[3], 0.0F);
        const float fit = alpha > 255.0F ? 255.0F / alpha : 1.0F;
        const auto rounded = [&](std::size_t c) {
            return static_cast<int>(std::clamp(sum[c], 0.0F, alpha) * fit + 0.5F);
        };
        *out++ = qRgba(rounded(2), rounded(1), rounded(0), static_cast<int>(alpha * fit + 0.5F));
    }
}

#else

using Floats = hn::ScalableTag<float>;
using PixelFloats = hn::FixedTag<float, 4>;

// As many bytes as D has lanes, as floats.
template <class D>
HWY_INLINE hn::Vec<D> floatsFrom(D d, const std::uint8_t* bytes) {
    const hn::Rebind<std::int32_t, D> integers;
    const hn::Rebind<std::uint8_t, D> small;
    return hn::ConvertTo(d, hn::PromoteTo(integers, hn::LoadU(small, bytes)));
}

void sumRowsImpl(const std::uint8_t* const* rows, const float* weights, int taps, float* sums,
                 std::size_t bytes) {
    const Floats d;
    const std::size_t lanes = hn::Lanes(d);
    std::size_t i = 0;
    // Four sums at a time: the multipliers stay busy while each waits for its own last product.
    for (; i + 4 * lanes <= bytes; i += 4 * lanes) {
        auto sum0 = hn::Zero(d);
        auto sum1 = sum0;
        auto sum2 = sum0;
        auto sum3 = sum0;
        for (int k = 0; k < taps; ++k) {
            const std::uint8_t* const row = rows[k] + i;
            const auto weight = hn::Set(d, weights[k]);
            sum0 = hn::MulAdd(floatsFrom(d, row), weight, sum0);
            sum1 = hn::MulAdd(floatsFrom(d, row + lanes), weight, sum1);
            sum2 = hn::MulAdd(floatsFrom(d, row + 2 * lanes), weight, sum2);
            sum3 = hn::MulAdd(floatsFrom(d, row + 3 * lanes), weight, sum3);
        }
        hn::StoreU(sum0, d, sums + i);
        hn::StoreU(sum1, d, sums + i + lanes);
        hn::StoreU(sum2, d, sums + i + 2 * lanes);
        hn::StoreU(sum3, d, sums + i + 3 * lanes);
    }
    const PixelFloats pixel;
    for (; i < bytes; i += 4) {
        auto sum = hn::Zero(pixel);
        for (int k = 0; k < taps; ++k) {
            sum = hn::MulAdd(floatsFrom(pixel, rows[k] + i), hn::Set(pixel, weights[k]), sum);
        }
        hn::StoreU(sum, pixel, sums + i);
    }
}

using PixelSum = hn::Vec<PixelFloats>;

// Beside an edge an alpha may overshoot; its colour comes down with it, so that it stays that colour.
HWY_INLINE QRgb rounded(PixelSum sum, bool opaque) {
    const PixelFloats d;
    const hn::Rebind<std::uint8_t, PixelFloats> bytes;
    const hn::Repartition<std::uint32_t, decltype(bytes)> word;
    const auto white = hn::Set(d, 255.0F);
    if (opaque) {
        const auto small = hn::DemoteTo(bytes, hn::NearestInt(hn::Min(sum, white)));
        return hn::GetLane(hn::BitCast(word, small)) | 0xff000000U;
    }
    const auto alpha = hn::Max(hn::Broadcast<3>(sum), hn::Zero(d));
    const auto fit = hn::Min(hn::Div(white, alpha), hn::Set(d, 1.0F));
    return hn::GetLane(
        hn::BitCast(word, hn::DemoteTo(bytes, hn::NearestInt(hn::Mul(hn::Min(sum, alpha), fit)))));
}

void sumColumnsImpl(const float* sums, const ResampleAxis& columns, bool opaque, QRgb* out) {
    const PixelFloats d;
    const int taps = columns.taps;
    const float* weights = columns.weights.data();
    const std::size_t count = columns.first.size();
    const auto pixels = [&](std::size_t x) {
        return sums + static_cast<std::ptrdiff_t>(columns.first[x]) * 4;
    };
    std::size_t x = 0;
    for (; x + 4 <= count; x += 4, weights += 4 * static_cast<std::ptrdiff_t>(taps)) {
        const float* const p0 = pixels(x);
        const float* const p1 = pixels(x + 1);
        const float* const p2 = pixels(x + 2);
        const float* const p3 = pixels(x + 3);
        auto sum0 = hn::Zero(d);
        auto sum1 = sum0;
        auto sum2 = sum0;
        auto sum3 = sum0;
        for (int k = 0; k < taps; ++k) {
            sum0 = hn::MulAdd(hn::LoadU(d, p0 + 4 * k), hn::Set(d, weights[k]), sum0);
            sum1 = hn::MulAdd(hn::LoadU(d, p1 + 4 * k), hn::Set(d, weights[taps + k]), sum1);
            sum2 = hn::MulAdd(hn::LoadU(d, p2 + 4 * k), hn::Set(d, weights[2 * taps + k]), sum2);
            sum3 = hn::MulAdd(hn::LoadU(d, p3 + 4 * k), hn::Set(d, weights[3 * taps + k]), sum3);
        }
        out[x] = rounded(sum0, opaque);
        out[x + 1] = rounded(sum1, opaque);
        out[x + 2] = rounded(sum2, opaque);
        out[x + 3] = rounded(sum3, opaque);
    }
    for (; x < count; ++x, weights += taps) {
        auto sum = hn::Zero(d);
        for (int k = 0; k < taps; ++k)
            sum = hn::MulAdd(hn::LoadU(d, pixels(x) + 4 * k), hn::Set(d, weights[k]), sum);
        out[x] = rounded(sum, opaque);
    }
}

#endif

}  // namespace
}  // namespace zelto::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zelto {
namespace {

HWY_EXPORT(sumRowsImpl);
HWY_EXPORT(sumColumnsImpl);

}  // namespace

void sumRows(const std::uint8_t* const* rows, const float* weights, int taps, float* sums,
             std::size_t bytes) {
    HWY_DYNAMIC_DISPATCH(sumRowsImpl)(rows, weights, taps, sums, bytes);
}

void sumColumns(const float* sums, const ResampleAxis& columns, bool opaque, QRgb* out) {
    HWY_DYNAMIC_DISPATCH(sumColumnsImpl)(sums, columns, opaque, out);
}

}  // namespace zelto
#endif
