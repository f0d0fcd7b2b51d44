// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_size.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>

namespace zelto {
namespace {

constexpr std::int64_t Huge = std::numeric_limits<std::int64_t>::max();

enum Flags { None = 0, Keep = 1, NoEnlarge = 2, Off = 4 };

struct Row {
    QSize photo;
    std::int64_t type;
    std::int64_t width;  // the longer side for that type
    std::int64_t height;
    int flags;
    QSize expected;
};

void expectSizes(std::initializer_list<Row> rows) {
    for (const Row& row : rows) {
        OutputOptions options;
        options.ResizeImage = !(row.flags & Off);
        options.ResizeType = row.type;
        options.ResizeWidth = options.LongestsideSize = row.width;
        options.ResizeHeight = row.height;
        options.AspectRatio = row.flags & Keep;
        options.DontEnlargeSmallImage = row.flags & NoEnlarge;
        const QSize size = outputSize(row.photo, options);
        EXPECT_EQ(size, row.expected)
            << size.width() << " x " << size.height() << ", row " << &row - rows.begin();
    }
}

constexpr std::int64_t Percent = resize_type::Percentage;
constexpr std::int64_t Pixels = resize_type::Pixels;
constexpr std::int64_t Longer = resize_type::LongerSide;

TEST(OutputSize, TakesEachSidesOwnPercentage) {
    expectSizes({{{4000, 3000}, Percent, 50, 25, None, {2000, 750}},
                 {{333, 7}, Percent, 50, 50, Keep, {166, 3}},
                 {{640, 480}, Percent, 200, 200, NoEnlarge, {1280, 960}},
                 {{4000, 3000}, Percent, 50, 50, Off | NoEnlarge, {4000, 3000}},
                 {{4000, 3000}, 3, 800, 600, NoEnlarge, {0, 0}},  // an unknown way
                 {{99, 99}, Percent, 1, 0, None, {0, 0}},
                 {{30000, 9}, Percent, Huge, 100, None, {2147483647, 9}}});
}

TEST(OutputSize, FitsThePixelsAskedFor) {
    expectSizes({{{4000, 3000}, Pixels, 800, 600, None, {800, 600}},
                 {{4000, 3000}, Pixels, 800, 0, None, {800, 0}},
                 {{4000, 3000}, Pixels, 800, 600, Keep, {800, 600}},
                 {{3000, 3000}, Pixels, 800, 600, Keep, {600, 600}},
                 // 1000 / 600 counts as 1, so a 4:3 photo is still bound by the width.
                 {{4000, 3000}, Pixels, 1000, 600, Keep, {1000, 750}},
                 {{3000, 4000}, Pixels, 600, 800, Keep, {600, 800}},
                 {{3000, 4000}, Pixels, 800, 600, Keep, {450, 600}},
                 {{4000, 3000}, Pixels, 801, 0, Keep, {801, 600}},
                 {{4000, 3000}, Pixels, 0, 601, Keep, {801, 601}},
                 {{4000, 3000}, Pixels, 0, 0, Keep, {0, 0}},
                 {{640, 480}, Pixels, 800, 100, NoEnlarge, {640, 480}},
                 {{4000, 3000}, Pixels, 800, 600, NoEnlarge, {800, 600}}});
}

TEST(OutputSize, SetsTheLongerSide) {
    expectSizes({{{4000, 3000}, Longer, 1000, 0, Keep, {1000, 750}},
                 {{3000, 4000}, Longer, 1000, 0, Keep, {750, 1000}},
                 {{4000, 3000}, Longer, 1000, 0, None, {1000, 3000}},
                 {{3000, 4000}, Longer, 1000, 0, None, {3000, 1000}},
                 {{3000, 3000}, Longer, 1000, 0, None, {1000, 3000}},
                 {{640, 480}, Longer, 1000, 0, Keep | NoEnlarge, {640, 480}},
                 {{640, 480}, Longer, 1000, 0, Keep, {1000, 750}},
                 {{10000, 10}, Longer, 100, 0, Keep, {100, 0}}});
}

}  // namespace
}  // namespace zelto
