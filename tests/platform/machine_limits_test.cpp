// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/machine_limits.h"

#include "support/testing.h"

#include <QFileInfo>

namespace zelto {
namespace {

TEST(MachineLimits, TheSmallestLimitOfTheGroupsAboveCounts) {
    const QTemporaryDir root;
    for (const auto& [name, text] : {std::pair{"job/memory.max", "3000\n"},
                                     {"job/step/memory.max", "max\n"},
                                     {"job/step/task/memory.max", "5000\n"},
                                     {"memory/memory.limit_in_bytes", "9223372036854771712\n"},
                                     {"memory/docker/memory.limit_in_bytes", "4000\n"}}) {
        QFile file(root.filePath(QLatin1String(name)));
        QDir().mkpath(QFileInfo(file).path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
    }
    struct Row {
        const char* membership;
        std::optional<qint64> limit;
    };
    const Row rows[] = {{"0::/job/step/task\n", 3000},
                        {"0::/job/step\n", 3000},
                        {"0::/\n", std::nullopt},
                        {"0::/gone/task\n", std::nullopt},
                        {"5:cpu:/job\n4:hugetlb,memory:/docker\n0::/\n", 4000},
                        {"4:memory:/elsewhere\n", 9223372036854771712},
                        {"nonsense\n\n", std::nullopt}};
    for (const Row& row : rows)
        EXPECT_EQ(controlGroupMemoryLimit(row.membership, root.path()), row.limit) << row.membership;
    EXPECT_GT(availableMemory(), 0);
}

}  // namespace
}  // namespace zelto
