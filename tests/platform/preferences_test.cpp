// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/preferences.h"

#include "support/testing.h"

namespace zelto {
namespace {

TEST(Preferences, ComeBackWithTheirTypeFromTheUsersOwnFile) {
    EXPECT_EQ(storedPreference(preference::ShowTips), std::nullopt);
    const QByteArray bytes("\x00\xFF;=\n", 5);
    setPreference(preference::ShowTips, false);
    setPreference(preference::LastAutoNumber, qint64{1} << 40);
    setPreference(preference::LastOutDirectoryData, bytes);
    flushPreferences();

    QFile file(QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")) + QStringLiteral("/Zelto/Zelto.ini"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll().contains("ShowTips=false\n"));
    EXPECT_EQ(storedPreference(preference::ShowTips), false);
    EXPECT_EQ(storedPreference(preference::LastAutoNumber), qint64{1} << 40);
    EXPECT_EQ(storedPreference(preference::LastOutDirectoryData), bytes);

    removePreference(preference::LastAutoNumber);
    EXPECT_EQ(storedPreference(preference::LastAutoNumber), std::nullopt);
}

}  // namespace
}  // namespace zelto
