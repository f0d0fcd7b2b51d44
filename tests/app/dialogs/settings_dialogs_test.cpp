// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs of the settings library: saving, the list, import and export.
#include "app/dialogs/existing_settings_window_controller.h"
#include "app/dialogs/import_export_window_controller.h"
#include "app/dialogs/save_settings_dialog.h"
#include "app/dialogs/standard_dialogs.h"
#include "app/hands.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/dialog_set.h"
#include "persistence/setting_file.h"
#include "platform/application_folders.h"
#include "platform/preferences.h"
#include "support/testing.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>

namespace zelto {
namespace {

WatermarkStack stackOf(const QString& text) {
    WatermarkStack stack;
    stack.Watermarks.emplace_back(watermark_type::Text).Text = text;
    return stack;
}

class SettingsDialogs : public ::testing::Test {
  protected:
    static void write(const QString& in, const QString& name) {
        EXPECT_TRUE(SaveWatermarkSettings(stackOf(name), in + u'/' + name + u".zcs"_s).has_value());
    }
    QStringList files() const { return QDir(folder).entryList(QDir::Files, QDir::Name); }
    QString textOf(const QString& name) const {
        const auto stack = LoadWatermarkSetting(folder + name + SettingFileExtension);
        return stack ? stack->Watermarks.front().Text : stack.error().message;
    }
    QString shown() const { return document.count() == 0 ? QString() : document.watermarks().front().Text; }

    QString folder = applicationFolder(SettingsFolder).value_or(QString());
    WatermarkDocument document;
    WatermarkController watermarks{document};
    DialogSet dialogs = standardDialogs();
    AnsweredMessages messages;
};

TEST_F(SettingsDialogs, SavingAsksBeforeItOverwrites) {
    const QString question = u"A Setting with the same name Exists.|Do You want to OverWrite it?|OK,Cancel"_s;
    struct Row {
        const char* name;
        const char* text;
        QMessageBox::StandardButton answer;
        bool isAsked;
        const char* saved;  // what the file then holds
    };
    const Row rows[] = {
        {"Mine", "first", QMessageBox::Ok, false, "first"},
        {"Mine", "second", QMessageBox::Cancel, true, "first"},
        {"Mine", "third", QMessageBox::Ok, true, "third"},
    };
    dialogs.saveSettings(nullptr, watermarks);
    EXPECT_EQ(messages.take().size(), 1) << "there is nothing to save, and no name is asked for";
    QSignalSpy kept(&watermarks, &WatermarkController::keptAs);
    for (const Row& row : rows) {
        watermarks.replaceStack(stackOf(QLatin1String(row.text)), {}, {});
        messages.answerWith(row.answer);
        whenOpened<SaveSettingsDialog>([&](SaveSettingsDialog& dialog) {
            auto& name = control<QLineEdit>(dialog, "Name of the setting");
            EXPECT_FALSE(button(dialog, "Save").isEnabled()) << "an empty name does nothing";
            retype(name, u"a/b"_s);
            EXPECT_FALSE(button(dialog, "Save").isEnabled()) << "a name that leads elsewhere";
            name.setText(QString::fromUtf8(row.name));
            click(dialog, "Save");
            EXPECT_EQ(dialog.isVisible(), row.answer == QMessageBox::Cancel);
            if (dialog.isVisible()) dialog.reject();
        });
        dialogs.saveSettings(nullptr, watermarks);
        EXPECT_EQ(messages.take(), row.isAsked ? QStringList(question) : QStringList());
        EXPECT_EQ(textOf(QString::fromUtf8(row.name)), QLatin1String(row.saved));
    }
    EXPECT_EQ(kept.count(), 2);
}

class SettingsList : public SettingsDialogs {
  protected:
    SettingsList() {
        for (const QString& name : {u"Anna"_s, u"Bert"_s, u"Cara"_s, u"Last Watermark"_s})
            write(folder, name);
    }

    void open(const std::function<void(ExistingSettingsWindowController&)>& act) {
        whenOpened<ExistingSettingsWindowController>([&act](ExistingSettingsWindowController& dialog) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return !dialog.selectedName().isEmpty(); }));
            act(dialog);
            if (dialog.isVisible()) dialog.reject();
        });
        dialogs.openSettings(nullptr, watermarks);
    }
    static QListWidget& list(const QWidget& dialog) { return control<QListWidget>(dialog, "Saved settings"); }
};

TEST_F(SettingsList, LoadsWithTheMouseAndWithTheKeyboard) {
    open([](auto& dialog) {
        QListWidget& names = list(dialog);
        const QPoint bert = names.visualItemRect(names.item(1)).center();
        QTest::mouseClick(names.viewport(), Qt::LeftButton, {}, bert);
        QTest::mouseDClick(names.viewport(), Qt::LeftButton, {}, bert);
    });
    EXPECT_EQ(shown(), u"Bert"_s);
    EXPECT_EQ(document.history().undoText(), u"Load Setting"_s);
    open([](auto& dialog) {
        auto& search = control<QLineEdit>(dialog, "Search");
        QTest::keyClicks(&search, u"AR"_s);
        EXPECT_EQ(dialog.selectedName(), u"Cara"_s);
        QTest::keyClick(&search, Qt::Key_Down);
        EXPECT_EQ(dialog.selectedName(), u"Last Watermark"_s) << "\"ar\" is in it, too";
        QTest::keyClick(&search, Qt::Key_Return);
    });
    EXPECT_EQ(shown(), u"Last Watermark"_s);
    open([](auto&) {});
    EXPECT_EQ(shown(), u"Last Watermark"_s) << "nothing is loaded when the list is closed";
}

TEST_F(SettingsList, MarksOneSettingForTheStart) {
    open([](auto& dialog) {
        list(dialog).setCurrentRow(1);
        click(dialog, "Set Autoload");
        EXPECT_EQ(storedPreference(preference::AutoLoadSetting), u"Bert"_s);
        EXPECT_EQ(list(dialog).item(1)->text(), u"Bert (autoload)"_s);
        QTest::keyClick(&list(dialog), Qt::Key_Down);
        click(dialog, "Set Autoload");
        EXPECT_EQ(storedPreference(preference::AutoLoadSetting), u"Cara"_s);
        click(dialog, "Remove Autoload");
        EXPECT_FALSE(storedPreference(preference::AutoLoadSetting));
        EXPECT_TRUE(button(dialog, "Set Autoload").isEnabled());
    });
}

TEST_F(SettingsList, DeletesAfterAQuestionAndForgetsTheMark) {
    setPreference(preference::AutoLoadSetting, u"Bert"_s);
    open([this](auto& dialog) {
        list(dialog).setCurrentRow(1);
        messages.answerWith(QMessageBox::Cancel);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        list(dialog).setFocus();
        QTest::keyClick(&list(dialog), Qt::Key_Delete);
        EXPECT_EQ(files().size(), 4);
        messages.answerWith(QMessageBox::Ok);
        click(dialog, "Delete...");
        const QString question =
            u"Delete the Selected Setting?|Deleted Setting cannot be restored.|OK,Cancel"_s;
        EXPECT_THAT(messages.take(), ElementsAre(question, question));
        EXPECT_FALSE(dialog.selectedName().isEmpty()) << "another one is selected";
    });
    EXPECT_THAT(files(), ElementsAre(u"Anna.zcs"_s, u"Cara.zcs"_s, u"Last Watermark.zcs"_s));
    EXPECT_FALSE(storedPreference(preference::AutoLoadSetting));
}

TEST_F(SettingsList, SaysWhatASettingHoldsAndWhatIsWrong) {
    WatermarkStack stack = stackOf(u"© Anna"_s);
    stack.Watermarks.emplace_back(watermark_type::Image).ImagePath = u"/logos/mine.png"_s;
    for (int i = 0; i < 3; ++i) stack.Watermarks.emplace_back(watermark_type::Shape);
    stack.SelectedFilter = 8;
    stack.Effects = PhotoEffects();
    ASSERT_TRUE(SaveWatermarkSettings(stack, folder + u"Anna.zcs"_s).has_value());
    ASSERT_TRUE(QFile(folder + u"Bert.zcs"_s).resize(3));
    open([this](auto& dialog) {
        const auto comesToSay = [&dialog](const QString& text) {
            return QTest::qWaitFor([&] { return says(dialog, text); });
        };
        EXPECT_TRUE(
            comesToSay(u"“© Anna”, mine.png, Shape - Rectangle and 2 more · Filter Paris · Border"_s));
        list(dialog).setCurrentRow(1);
        EXPECT_TRUE(comesToSay(textOf(u"Bert"_s)));
        click(dialog, "Load");
    });
    const QStringList alerts = messages.take();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0], u"Setting Load Error|"_s + textOf(u"Bert"_s) + u"|OK"_s);
    const SettingsLibrary nowhere(u"/no/such"_s);
    ExistingSettingsWindowController dialog(nowhere);
    dialog.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !messages.take().filter(u"Setting Load Error|"_s).isEmpty(); }));
}

TEST_F(SettingsDialogs, ImportAndExportCopyAFolderAndTellHowItWent) {
    const QTemporaryDir other;
    write(other.path(), u"a"_s);
    const auto copy = [this](CopyMode mode, const QString& path) {
        whenOpened<ImportExportWindowController>([&](ImportExportWindowController& dialog) {
            const char* text = mode == CopyMode::Import ? "Import" : "Export";
            EXPECT_TRUE(says(dialog, u"Please browse and select the folder "_s));
            EXPECT_FALSE(button(dialog, text).isEnabled()) << "no folder";
            control<QLineEdit>(dialog, "Folder").setText(path);
            click(dialog, text);
            if (dialog.isVisible()) dialog.reject();
        });
        (mode == CopyMode::Import ? dialogs.importSettings : dialogs.exportSettings)(nullptr);
        removePreference(preference::LastSettingsFolder);
    };
    copy(CopyMode::Import, other.path());
    copy(CopyMode::Import, folder);
    EXPECT_THAT(files(), ElementsAre(u"a.zcs"_s));
    copy(CopyMode::Export, other.path());
    copy(CopyMode::Export, folder);
    EXPECT_EQ(QDir(other.path()).entryList(QDir::Files), QStringList({u"a.zcs"_s, u"a1.zcs"_s}));
    EXPECT_THAT(messages.take(),
                ElementsAre(u"Import Settings|Settings have been imported into Zelto|OK"_s,
                            u"Import Error|Error in importing settings. Please try again later.|OK"_s,
                            u"Export Settings|Settings have been exported|OK"_s,
                            u"Export Error|Error in exporting settings. Please try again later.|OK"_s));
}

}  // namespace
}  // namespace zelto
