// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/run_pace.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(RunPace, TellsRateAndTimeLeftOnceThereIsOne) {
    struct Row {
        qint64 photos;
        int done, milliseconds;
        QString rate, timeLeft;
    };
    const Row rows[] = {
        {10, 0, 5000, {}, {}},
        {10, 1, 5000, {}, {}},
        {10, 4, 8000, QStringLiteral("0.5"), QStringLiteral("0:12")},
        {1000, 100, 4000, QStringLiteral("25"), QStringLiteral("0:36")},
        {4000, 2, 2000, QStringLiteral("1.0"), QStringLiteral("1:06:38")},
        {5, 5, 1000, QStringLiteral("5.0"), QStringLiteral("0:00")},
    };
    for (const Row& row : rows) {
        const RunPace::Clock::time_point start{};
        RunPace pace;
        pace.advance();
        pace.begin(row.photos, start);
        for (int i = 0; i < row.done; ++i) pace.advance();
        const auto figures = pace.figures(start + std::chrono::milliseconds(row.milliseconds));
        EXPECT_EQ(figures ? figures->rate() : QString(), row.rate);
        EXPECT_EQ(figures ? figures->timeLeft() : QString(), row.timeLeft);
    }
}

}  // namespace
}  // namespace zelto
