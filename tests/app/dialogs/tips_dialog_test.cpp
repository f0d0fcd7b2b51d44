// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/tips_dialog.h"

#include "app/common/my_global_instance.h"
#include "app/hands.h"
#include "platform/preferences.h"

#include <QLabel>

namespace zelto {
namespace {

TEST(TipsDialog, GoesRoundTheTipsAsDrawnAndIsAskedBackOrNot) {
    setPreference(preference::ShowTips, true);
    MyGlobalInstance shared;
    shared.ReadTips(
        "<Tips><Tip ID=\"0\"><Text>zero</Text></Tip><Tip ID=\"1\">one</Tip><Tip ID=\"2\">two</Tip></Tips>");
    // 7 mod 3, 1 + 8 mod 2, 2 + 9 mod 1: a tip may come twice and another not at all.
    shared.GetShuffledArray(3, [drawn = 7U]() mutable { return drawn++; });
    TipsDialog dialog(shared);
    dialog.show();
    for (const char* tip : {"one", "one", "two", "one"}) {
        EXPECT_EQ(control<QLabel>(dialog, "Tip").text(), QLatin1String(tip));
        click(dialog, "Next Tip");
    }
    shared.ReadTips("<Tips><Tip ID=\"0\">cut sho");
    EXPECT_TRUE(shared.Tips.isEmpty());
    EXPECT_TRUE(shared.Nums.isEmpty());
    for (const bool wanted : {false, true}) {
        QTest::keyClick(&button(dialog, "Show tips at start-up"), Qt::Key_Space);
        EXPECT_EQ(storedPreference(preference::ShowTips), wanted);
    }
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace zelto
