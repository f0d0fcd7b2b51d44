// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/tips_dialog.h"

#include "app/common/my_global_instance.h"
#include "app/hands.h"
#include "platform/preferences.h"

#include <QLabel>

namespace zelto {
namespace {

TEST(TipsDialog, GoesRoundTheTipsAndIsAskedBackOrNot) {
    setPreference(preference::ShowTips, true);
    MyGlobalInstance shared;
    shared.ReadTips("<Tips><Tip ID=\"0\">zero</Tip><Tip ID=\"1\">one</Tip><Tip ID=\"2\">two</Tip></Tips>");
    shared.GetShuffledArray(3, [] { return 0U; });
    TipsDialog dialog(shared);
    dialog.show();
    for (const char* tip : {"zero", "one", "two", "zero"}) {
        EXPECT_EQ(control<QLabel>(dialog, "Tip").text(), QLatin1String(tip));
        click(dialog, "Next Tip");
    }
    for (const bool wanted : {false, true}) {
        QTest::keyClick(&button(dialog, "Show tips at start-up"), Qt::Key_Space);
        EXPECT_EQ(storedPreference(preference::ShowTips), wanted);
    }
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace zelto
