// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/application_folders.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace zelto {
namespace {

TEST(ApplicationFolders, AreMadeBelowTheUsersOwnAndEndInASlash) {
    const QString home = QString::fromLocal8Bit(qgetenv("XDG_DATA_HOME"));
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(applicationFolder(SettingsFolder), home + QStringLiteral("/Zelto/Settings/"));
        EXPECT_TRUE(QDir(home + QStringLiteral("/Zelto/Settings")).exists());
    }
    QFile blocker(home + QStringLiteral("/Zelto/file"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    const auto blocked =
        findOrCreateDirectory(QStandardPaths::GenericDataLocation, QStringLiteral("/Zelto/file/below/"));
    ASSERT_FALSE(blocked);
    EXPECT_EQ(blocked.error().code, ErrorCode::CannotWrite);
}

}  // namespace
}  // namespace zelto
