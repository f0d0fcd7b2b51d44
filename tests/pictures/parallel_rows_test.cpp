// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/parallel_rows.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace zelto {
namespace {

TEST(ParallelRows, EveryRowOnceWithManyCallersAndFromWithinABand) {
    std::vector<std::jthread> callers;
    for (const int rows : {0, 1, 2, 3, 1000, 4001}) {
        callers.emplace_back([rows] {
            // Each row is one thread's alone, so plain counters would show a race.
            std::vector<int> counts(static_cast<std::size_t>(rows), 0);
            parallelRows(rows, 1 << 20, [&](int first, int end) {
                parallelRows(end - first, 1 << 20, [&](int from, int to) {
                    for (int row = first + from; row < first + to; ++row)
                        ++counts[static_cast<std::size_t>(row)];
                });
            });
            EXPECT_EQ(counts, std::vector<int>(counts.size(), 1)) << rows;
        });
    }
}

}  // namespace
}  // namespace zelto
