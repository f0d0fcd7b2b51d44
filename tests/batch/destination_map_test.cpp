// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/destination_map.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(DestinationMap, RelativePathsStartWithTheAncestorsOwnName) {
    struct Row {
        const char* candidate;
        const char* folder;
        const char* relative;  // null: no ancestor
    };
    const Row rows[] = {
        {"/p/a", "/p/a/b/c", "a/b/c"}, {"/p", "/p/b", "p/b"},         {"/p/a", "/p/a", nullptr},
        {"/", "/p", nullptr},          {"/", "/p/a", nullptr},        {"/p/a", "/p/ab/c", nullptr},
        {"/p/A", "/p/a/b", nullptr},   {"/p/a/b", "/p/a", nullptr},   {"/p", "/", nullptr},
        {"p", "p/q", "p/q"},           {"/p/a", "/q/p/a/b", nullptr}, {"/p/a", "/p/a//b/", "a/b"},
    };
    for (const Row& row : rows) {
        const auto relative = GetRelativePath(QLatin1String(row.candidate), QLatin1String(row.folder));
        EXPECT_EQ(relative.value_or(QString()), QLatin1String(row.relative))
            << row.folder << " below " << row.candidate;
        EXPECT_EQ(relative.has_value(), row.relative != nullptr) << row.folder << " below " << row.candidate;
    }
}

TEST(DestinationMap, HasParentStoresOnlyForAFolderOfTheMap) {
    const FolderDestinations sources = {{QStringLiteral("/p/a"), {}}, {QStringLiteral("/p/a/b"), {}}};
    FolderDestinations destinations = sources;
    EXPECT_TRUE(HasParent(QStringLiteral("/p/a/x"), sources, QStringLiteral("/out"), destinations));
    EXPECT_EQ(destinations, sources);
    EXPECT_FALSE(HasParent(QStringLiteral("/p/a"), sources, QStringLiteral("/out"), destinations));
    EXPECT_EQ(destinations, sources);
    EXPECT_TRUE(HasParent(QStringLiteral("/p/a/b"), sources, QStringLiteral("/out"), destinations));
    EXPECT_EQ(destinations.value(QStringLiteral("/p/a/b")), QStringLiteral("/out/a/b"));
}

TEST(DestinationMap, EveryFolderLandsBelowItsTopmostAncestor) {
    struct Row {
        const char* folders;  // folder > destination, separated by blanks
        const char* topFolders;
    };
    const Row rows[] = {
        {"/p/a>/out/a /p/a/b/c>/out/a/b/c", "/out/a"},
        {"/p/a/b>/out/b /p/a/c>/out/c", "/out/b /out/c"},
        {"/p/a>/out/a /p/a/b>/out/a/b /p/a/b/c>/out/a/b/c /p/ab>/out/ab", "/out/a /out/ab"},
        {"/x/photos>/out/photos /y/photos>/out/photos", "/out/photos /out/photos"},
        {"/>/out", "/out"},
        {"/p/..>/out/_ /p/../..>/out/_/_", "/out/_"},
    };
    for (const Row& row : rows) {
        FolderDestinations expected;
        FolderDestinations destinations;
        for (const QString& pair : QString::fromLatin1(row.folders).split(QLatin1Char(' '))) {
            expected.insert(pair.section(QLatin1Char('>'), 0, 0), pair.section(QLatin1Char('>'), 1));
            destinations.insert(pair.section(QLatin1Char('>'), 0, 0), QString());
        }
        const QStringList topFolders = resolveDestinations(destinations, QStringLiteral("/out"));
        EXPECT_EQ(destinations, expected) << row.folders;
        for (const QString& folder : expected.keys()) {
            EXPECT_EQ(destinationOf(folder, expected, QStringLiteral("/out")), expected.value(folder))
                << "one folder alone, of " << row.folders;
        }
        EXPECT_EQ(topFolders.join(QLatin1Char(' ')), QLatin1String(row.topFolders)) << row.folders;
    }
}

}  // namespace
}  // namespace zelto
