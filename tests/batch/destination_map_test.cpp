// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/destination_map.h"

#include "support/testing.h"

namespace zelto {
namespace {

TEST(DestinationMap, RelativePathsStartWithTheAncestorsOwnName) {
    struct Row {
        const char *candidate, *folder, *relative;  // null: no ancestor
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

TEST(DestinationMap, EveryFolderLandsBelowItsTopmostAncestor) {
    // Folder > destination, separated by blanks, and the top folders.
    const std::pair<const char*, const char*> rows[] = {
        {"/p/a>/out/a /p/a/b/c>/out/a/b/c", "/out/a"},
        {"/p/a/b>/out/b /p/a/c>/out/c", "/out/b /out/c"},
        {"/p/a>/out/a /p/a/b>/out/a/b /p/a/b/c>/out/a/b/c /p/ab>/out/ab", "/out/a /out/ab"},
        {"/x/photos>/out/photos /y/photos>/out/photos", "/out/photos /out/photos"},
        {"/>/out", "/out"},
        {"/p/..>/out/_ /p/../..>/out/_/_", "/out/_"},
    };
    for (const auto& [folders, top] : rows) {
        FolderDestinations expected;
        FolderDestinations destinations;
        for (const QString& pair : QString::fromLatin1(folders).split(u' ')) {
            expected.insert(pair.section(u'>', 0, 0), pair.section(u'>', 1));
            destinations.insert(pair.section(u'>', 0, 0), QString());
        }
        const QStringList topFolders = resolveDestinations(destinations, u"/out"_s);
        EXPECT_EQ(destinations, expected) << folders;
        for (const QString& folder : expected.keys()) {
            EXPECT_EQ(destinationOf(folder, expected, u"/out"_s), expected.value(folder))
                << "one folder alone, of " << folders;
        }
        EXPECT_EQ(topFolders.join(u' '), QLatin1String(top)) << folders;
    }
}

}  // namespace
}  // namespace zelto
