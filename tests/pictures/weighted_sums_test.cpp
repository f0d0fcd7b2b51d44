// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/weighted_sums.h"

#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <vector>

namespace zelto {
namespace {

TEST(WeightedSums, EveryLengthOnEveryInstructionSet) {
    const std::vector<float> weights = {0.25F, -1.0F, 3.0F};
    std::vector<std::uint16_t> values;
    for (unsigned i = 0; i < 80; ++i)
        values.push_back(static_cast<std::uint16_t>(i * 40'503U));  // also above 32767
    const std::vector<const std::uint16_t*> rows = {values.data(), values.data() + 1, values.data() + 7};
    forEachInstructionSet([&] {
        for (std::size_t length = 0; length <= 70; ++length) {
            std::vector<float> sums(length + 1, -5.0F);
            weightedSums(rows, weights, std::span(sums).first(length));
            for (std::size_t i = 0; i < length; ++i) {
                const float expected = 0.25F * values[i] - 1.0F * values[i + 1] + 3.0F * values[i + 7];
                ASSERT_EQ(sums[i], expected) << i << " of " << length;
            }
            ASSERT_EQ(sums[length], -5.0F) << "wrote past the end";
        }
    });
}

}  // namespace
}  // namespace zelto
