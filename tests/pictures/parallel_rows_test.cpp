// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/parallel_rows.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace zelto {
namespace {

TEST(ParallelRows, EveryRowOnce) {
    for (const int rows : {0, 1, 2, 3, 1000, 4001}) {
        for (const int width : {0, 1, 6000, 1 << 20}) {
            // Each row is one thread's alone, so plain counters would show a race.
            std::vector<int> counts(static_cast<std::size_t>(rows), 0);
            parallelRows(rows, width, [&](int first, int end) {
                for (int row = first; row < end; ++row) ++counts[static_cast<std::size_t>(row)];
            });
            EXPECT_EQ(counts, std::vector<int>(counts.size(), 1)) << rows << " rows of " << width;
        }
    }
}

TEST(ParallelRows, ManyCallersAndCallsFromWithinABand) {
    constexpr int Callers = 8;
    constexpr int Rows = 64;
    std::atomic<int> inner = 0;
    std::vector<std::jthread> callers;
    for (int i = 0; i < Callers; ++i) {
        callers.emplace_back([&inner] {
            parallelRows(Rows, 1 << 20, [&inner](int first, int end) {
                for (int row = first; row < end; ++row) {
                    parallelRows(4, 1 << 20, [&inner](int from, int to) { inner += to - from; });
                }
            });
        });
    }
    callers.clear();
    EXPECT_EQ(inner, Callers * Rows * 4);
}

}  // namespace
}  // namespace zelto
