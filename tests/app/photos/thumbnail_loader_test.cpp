// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/thumbnail_loader.h"

#include "support/test_pictures.h"
#include "support/testing.h"

#include <QDateTime>
#include <QSignalSpy>
#include <QTest>

namespace zelto {
namespace {

TEST(ThumbnailLoader, KeepsWhatItHasMadeUntilAnotherSizeIsWanted) {
    const QTemporaryDir folder;
    const QStringList paths = {folder.filePath(u"a.png"_s), folder.filePath(u"b.png"_s)};
    ASSERT_TRUE(drawnScene({120, 90}).save(paths[0]));
    ASSERT_TRUE(QFile(paths[1]).open(QFile::WriteOnly));
    ThumbnailLoader loader;
    const QSignalSpy made(&loader, &ThumbnailLoader::made);
    for (const auto& [bound, count] : {std::pair(40, 2), {40, 2}, {80, 4}}) {
        loader.want(paths, {bound, bound});
        EXPECT_TRUE(QTest::qWaitFor([&] { return made.count() == count; }));
        EXPECT_EQ(loader.thumbnail(paths[0]).size(), QSize(bound, bound * 3 / 4));
        EXPECT_TRUE(!loader.isBroken(paths[0]) && loader.isBroken(paths[1]));
    }
    ASSERT_TRUE(drawnScene({90, 120}).save(paths[1]));
    QFile mended(paths[1]);
    ASSERT_TRUE(mended.open(QFile::ReadWrite));
    mended.setFileTime(QDateTime::currentDateTime().addSecs(10), QFile::FileModificationTime);
    loader.want(paths, {80, 80});
    EXPECT_TRUE(QTest::qWaitFor([&] { return made.count() == 5; }));
    EXPECT_EQ(loader.thumbnail(paths[1]).size(), QSize(60, 80));
}

}  // namespace
}  // namespace zelto
