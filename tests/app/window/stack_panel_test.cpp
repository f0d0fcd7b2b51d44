// SPDX-License-Identifier: GPL-3.0-or-later
// The stack in the right column: its head, its rows, and the strip of what belongs to the photo.
#include "app/editor_fixture.h"
#include "app/window/stack_head.h"
#include "persistence/setting_file.h"
#include "platform/preferences.h"

#include <QListWidget>
#include <QToolButton>

namespace zelto {
namespace {

class StackPanel : public EditorTest {
  protected:
    StackPanel() { EXPECT_TRUE(shared.findSettingDirectory()); }

    QString setting(const char* name) const {
        return shared.SettingDirectory + QLatin1String(name) + QStringLiteral(".zcs");
    }
    QString head() { return window.findChild<QToolButton*>(QStringLiteral("StackName"))->text(); }
    void press(Act act) { window.actions()[act]->trigger(); }
    QVariant row(int row, int role) { return window.watermarks().model().index(row).data(role); }
};

TEST_F(StackPanel, TheHeadNamesTheSettingAndSavesItWithoutAQuestion) {
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("one");
    add(code);
    ASSERT_TRUE(window.watermarks().SaveWatermarkSettings(setting("First")));
    EXPECT_EQ(head(), QStringLiteral("First"));
    code.Text = QStringLiteral("two");
    ASSERT_TRUE(writeSettingFile({{code}, {}, 0, false}, setting("Second")));

    press(Act::DuplicateWatermark);
    EXPECT_EQ(head(), QStringLiteral("First •"));
    history().undo();
    EXPECT_EQ(head(), QStringLiteral("First"));
    press(Act::DuplicateWatermark);
    press(Act::SaveSettings);
    EXPECT_EQ(head(), QStringLiteral("First"));
    EXPECT_EQ(LoadWatermarkSetting(setting("First"))->Watermarks.size(), 2U);

    press(Act::ChooseStack);
    auto* saved = window.findChild<QListWidget*>(QStringLiteral("SavedStacks"));
    ASSERT_EQ(saved->count(), 2);
    EXPECT_EQ(saved->currentItem()->text(), QStringLiteral("First"));
    const auto middle = [saved] {
        return saved->item(1)->icon().pixmap(saved->iconSize()).toImage().pixelColor(40, 50);
    };
    const QColor blank = middle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return middle() != blank; })) << "the stack is shown as a picture";
    QTest::keyClick(saved, Qt::Key_Right);
    QTest::keyClick(saved, Qt::Key_Return);
    EXPECT_EQ(head(), QStringLiteral("Second"));
    press(Act::LoadAtStart);
    EXPECT_EQ(storedPreference(preference::AutoLoadSetting), QStringLiteral("Second"));
    history().undo();
    EXPECT_EQ(head(), QStringLiteral("First")) << "undoing the loading brings the name back too";
}

TEST_F(StackPanel, RowsShowTheMarkAndReadAsOnThePhoto) {
    Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
    text.Text = QStringLiteral("<<IMGNAME>> of <<PHOTOWIDTH>>");
    text.FontFamily = QStringLiteral("DejaVu Sans");
    text.TextColor = Color{0.0F, 0.0F, 1.0F, 1.0F};
    add(text);
    const auto name = [this] { return row(0, WatermarkListModel::NameRole).toString(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return name() == QStringLiteral("photo of 600"); }));
    const auto portrait = row(0, WatermarkListModel::PortraitRole).value<QImage>();
    int blue = 0;
    for (int y = 0; y < portrait.height(); ++y) {
        for (int x = 0; x < portrait.width(); ++x) {
            const QColor pixel = portrait.pixelColor(x, y);
            blue += pixel.blue() > 150 && pixel.red() < 80 ? 1 : 0;
        }
    }
    EXPECT_GT(blue, 10) << "the letters, opaque and in their colour";
    WatermarkListView& list = window.watermarkList();
    window.show();
    list.setFocus();
    press(Act::RenameWatermark);
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Mine"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([&] { return name() == QStringLiteral("Mine"); }));
    EXPECT_EQ(record().LabelName, QStringLiteral("Mine"));
}

TEST_F(StackPanel, TheStripSwitchesAndRemovesWhatBelongsToThePhoto) {
    PhotoEffects effects;
    effects.TopThickness = 40;
    window.watermarks().AddEffects(effects);
    window.watermarks().AddFilter(8);
    const QImage framed = seen();
    const auto press = [this](const char* name) {
        auto* button = window.findChild<QToolButton*>(QLatin1String(name));
        EXPECT_TRUE(button->isVisibleTo(&window)) << name;
        button->click();
    };
    for (const char* eye : {"EffectsEye", "FilterEye"}) {
        press(eye);
        EXPECT_NE(seen(), framed) << eye;
        press(eye);
        EXPECT_EQ(seen(), framed) << eye;
    }
    press("EffectsEye");
    press("EffectsRemove");
    press("FilterRemove");
    EXPECT_EQ(window.document().state(), StackState());
    EXPECT_EQ(seen().size(), PhotoSize);
}

}  // namespace
}  // namespace zelto
