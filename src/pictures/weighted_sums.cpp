// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/weighted_sums.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pictures/weighted_sums.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zelto {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

void sumUp(std::span<const std::uint16_t* const> rows, std::span<const float> weights,
           std::span<float> sums) {
    constexpr hn::ScalableTag<float> floats;
    constexpr hn::RebindToSigned<decltype(floats)> integers;
    constexpr hn::Rebind<std::uint16_t, decltype(floats)> shorts;
    const std::size_t lanes = hn::Lanes(floats);
    std::size_t i = 0;
    for (; i + lanes <= sums.size(); i += lanes) {
        auto sum = hn::Zero(floats);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const auto values = hn::PromoteTo(integers, hn::LoadU(shorts, rows[row] + i));
            sum = hn::MulAdd(hn::ConvertTo(floats, values), hn::Set(floats, weights[row]), sum);
        }
        hn::StoreU(sum, floats, sums.data() + i);
    }
    for (; i < sums.size(); ++i) {
        float sum = 0.0F;
        for (std::size_t row = 0; row < rows.size(); ++row)
            sum += weights[row] * static_cast<float>(rows[row][i]);
        sums[i] = sum;
    }
}

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace zelto
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zelto {

HWY_EXPORT(sumUp);

void weightedSums(std::span<const std::uint16_t* const> rows, std::span<const float> weights,
                  std::span<float> sums) {
    HWY_DYNAMIC_DISPATCH(sumUp)(rows, weights, sums);
}

}  // namespace zelto
#endif
