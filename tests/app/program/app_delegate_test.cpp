// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/app_delegate.h"

#include "app/dialogs/standard_dialogs.h"
#include "app/hands.h"
#include "app/program/one_window.h"
#include "persistence/setting_file.h"
#include "platform/application_folders.h"
#include "platform/preferences.h"
#include "support/testing.h"

#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>

#include <future>

namespace zelto {
namespace {

WatermarkStack stackOf(const QString& text) {
    WatermarkStack stack;
    Watermark watermark(watermark_type::Text);
    watermark.Text = text;
    stack.Watermarks.push_back(watermark);
    return stack;
}

// Starts the program with a tips dialog that notes when it was shown.
class StartUp : public ::testing::Test {
  protected:
    StartUp() {
        settings = applicationFolder(SettingsFolder).value_or(QString());
        dialogs = standardDialogs();
        dialogs.tips = [this](QWidget* parent, MyGlobalInstance& shared) {
            ++tipsShown;
            tipSeen = shared.GetCurrentTip(shared.CurrentTip);
            wasVisible = parent->isVisible();
            rowsThen = delegate->window().document().count();
        };
    }

    void start(const StartRequest& request = {}) {
        delegate = std::make_unique<AppDelegate>(dialogs, EditorSet());
        delegate->start(request);
    }

    void save(const QString& name, const WatermarkStack& stack) {
        ASSERT_TRUE(SaveWatermarkSettings(stack, settings + name + SettingFileExtension).has_value());
    }

    QStringList texts() {
        QStringList texts;
        for (const Watermark& watermark : delegate->window().document().watermarks())
            texts.append(watermark.Text);
        return texts;
    }

    QString settings;
    DialogSet dialogs;
    std::unique_ptr<AppDelegate> delegate;
    int tipsShown = 0;
    QString tipSeen;
    bool wasVisible = false;
    int rowsThen = -1;
};

TEST_F(StartUp, TheFirstStartMakesTheSettingsFolderAndTipsLieOverNothing) {
    start();
    const auto* tip = delegate->window().welcome().findChild<QLabel*>(QStringLiteral("Tip"));
    EXPECT_TRUE(tip->isVisible() && !tip->text().isEmpty());
    EXPECT_EQ(tipsShown, 0) << "the welcome is not covered";
    EXPECT_TRUE(delegate->CurrentInstance().FirstRun);
    EXPECT_TRUE(QFileInfo(settings).isDir());
    EXPECT_EQ(storedPreference(preference::SettingDirectory), settings);
    EXPECT_EQ(storedPreference(preference::FirstRun), false);
    start();
    EXPECT_EQ(tipsShown, 1);
    EXPECT_FALSE(tipSeen.isEmpty());
    EXPECT_TRUE(wasVisible);
    setPreference(preference::ShowTips, false);
    start();
    EXPECT_FALSE(delegate->CurrentInstance().FirstRun);
    EXPECT_EQ(tipsShown, 1);
}

TEST_F(StartUp, TheAutoloadSettingIsLoadedAfterTheTipsAndCannotBeUndone) {
    WatermarkStack stack = stackOf(QStringLiteral("hello"));
    stack.Metadata = true;
    save(QStringLiteral("Mine"), stack);
    setPreference(preference::AutoLoadSetting, QStringLiteral("Mine"));
    setPreference(preference::FirstRun, false);
    setPreference(preference::ShowTips, true);
    start();
    EXPECT_EQ(rowsThen, 0);
    EXPECT_THAT(texts(), ElementsAre(QStringLiteral("hello")));
    EXPECT_TRUE(delegate->window().watermarks().Metadata())
        << "what the setting asks for is taken from its file";
    EXPECT_EQ(delegate->window().watermarks().CurrentWatermark(), -1);
    EXPECT_FALSE(delegate->window().document().history().canUndo());
    setPreference(preference::AutoLoadSetting, QStringLiteral("Gone"));
    start();
    EXPECT_TRUE(texts().isEmpty());
}

TEST_F(StartUp, TheCommandLineNamesASettingAndPhotos) {
    save(QStringLiteral("Mine"), stackOf(QStringLiteral("by name")));
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("other.zcs"));
    ASSERT_TRUE(SaveWatermarkSettings(stackOf(QStringLiteral("by path")), file).has_value());
    for (const char* name : {"b.jpg", "a.png", "note.txt"}) {
        QFile photo(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(photo.open(QFile::WriteOnly));
    }
    setPreference(preference::FirstRun, false);
    setPreference(preference::ShowTips, true);
    start({QStringLiteral("Mine"), {}});
    EXPECT_THAT(texts(), ElementsAre(QStringLiteral("by name")));
    EXPECT_EQ(rowsThen, 1) << "no tip holds up what was asked for";
    start({.photos = {file}});
    EXPECT_THAT(texts(), ElementsAre(QStringLiteral("by path")));
    EXPECT_FALSE(delegate->window().document().history().canUndo());
    start({file, {folder.path(), QStringLiteral("/elsewhere/c.bmp")}});
    EXPECT_THAT(texts(), ElementsAre(QStringLiteral("by path")));
    EXPECT_TRUE(QTest::qWaitFor([this] { return delegate->window().photos().count() == 3; }));
    QStringList photos;
    for (const Image& photo : delegate->window().photos().images()) photos.append(photo.ImagePath);
    EXPECT_THAT(photos,
                ElementsAre(folder.filePath(QStringLiteral("a.png")),
                            folder.filePath(QStringLiteral("b.jpg")), QStringLiteral("/elsewhere/c.bmp")));
}

TEST_F(StartUp, ALaterStartHandsItsFilesToTheWindowOnceNoDialogIsInTheWay) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("other.ZCS"));
    ASSERT_TRUE(SaveWatermarkSettings(stackOf(QStringLiteral("by path")), file).has_value());
    OneWindow first;
    ASSERT_FALSE(first.handOver({})) << "there is no window yet";
    start();
    QObject::connect(&first, &OneWindow::asked, [this](const StartRequest& asked) { delegate->open(asked); });
    QDialog dialog(&delegate->window());
    dialog.setModal(true);
    dialog.show();
    const auto second = std::async(std::launch::async, [&] {
        return OneWindow().handOver({.photos = {file, QStringLiteral("/elsewhere/c.bmp")}});
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !delegate->window().statusBar()->currentMessage().isEmpty(); }));
    EXPECT_TRUE(texts().isEmpty());
    dialog.close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return delegate->window().photos().count() == 1; }));
    EXPECT_THAT(texts(), ElementsAre(QStringLiteral("by path")));
    delegate->window().document().history().undo();
    delegate->window().document().history().undo();
    EXPECT_TRUE(texts().isEmpty()) << "it can be undone";
}

TEST_F(StartUp, WhatWasOnScreenIsBackAtTheNextStart) {
    start();
    const std::function<void(WatermarkController&)> changes[] = {
        [](auto& stack) { stack.AddNewWatermark(stackOf(QStringLiteral("a")).Watermarks[0]); },
        [](auto& stack) {
            Watermark placed = stack.GetWatermarkAtRow(0);
            placed.PaddingLeftShare = 0.25F;
            stack.placeWatermark(0, placed, QStringLiteral("Place"));
        },
        [](auto& stack) { stack.AddEffects(PhotoEffects()); },
        [](auto& stack) { stack.AddFilter(3); },
        [](auto& stack) { stack.EnableDisableWatermark(1); },
        [](auto& stack) { stack.RemoveWatermark(1); },
        [](auto& stack) { stack.setEffectsEnabled(false); },
        [](auto& stack) { stack.AddEffects({}); },
        [](auto& stack) { stack.RemoveAllWatermarks(); },
    };
    for (const auto& change : changes) {
        change(delegate->window().watermarks());
        const WatermarkStack left = delegate->window().document().state().Stack;
        ASSERT_TRUE(delegate->window().close());
        start();
        EXPECT_EQ(writeSettingDocument(delegate->window().document().state().Stack),
                  writeSettingDocument(left));
        EXPECT_EQ(delegate->window().statusBar()->currentMessage().isEmpty(), left == WatermarkStack());
    }
}

TEST_F(StartUp, AChangedSettingIsNeitherLostNorReplacedUnasked) {
    struct Row {
        const char* button;
        bool closes;
        const char* saved;  // what the setting then holds
        const char* next;   // and what the next start shows
    };
    for (const Row& row :
         {Row{"Cancel", false, "saved", "saved"}, Row{"Keep for Next Time", true, "saved", "new"},
          Row{"Save", true, "new", "new"}}) {
        save(QStringLiteral("Mine"), stackOf(QStringLiteral("saved")));
        start({QStringLiteral("Mine"), {}});
        delegate->window().close();
        EXPECT_FALSE(delegate->window().isVisible()) << "as it is saved there is nothing to ask";
        delegate->window().show();
        delegate->window().watermarks().replaceStack(stackOf(QStringLiteral("new")), {}, {},
                                                     delegate->window().document().setting());
        const auto asked = whenOpened<QMessageBox>([&](const QMessageBox& box) {
            for (QAbstractButton* each : box.buttons()) {
                if (each->text() == QLatin1String(row.button)) each->click();
            }
        });
        delegate->window().close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return *asked; }));
        EXPECT_EQ(delegate->window().isVisible(), !row.closes) << row.button;
        const auto saved = LoadWatermarkSetting(settings + QStringLiteral("Mine.zcs"));
        EXPECT_EQ(saved->Watermarks[0].Text, QLatin1String(row.saved)) << row.button;
        start();
        EXPECT_THAT(texts(), ElementsAre(QLatin1String(row.next))) << row.button;
    }
}

TEST_F(StartUp, AStackThatCannotBeKeptHoldsTheWindowUntilTheUserGivesItUp) {
    start();
    delegate->window().watermarks().replaceStack(stackOf(QStringLiteral("a")), {}, {});
    ASSERT_TRUE(QDir().mkpath(settings + QStringLiteral("Last Watermark.zcs/in the way")));
    for (const bool givesUp : {false, true}) {
        const auto asked = whenOpened<QMessageBox>([&](QMessageBox& box) {
            if (givesUp) {
                box.buttons().first()->click();
            } else {
                QTest::keyClick(&box, Qt::Key_Return);
            }
        });
        delegate->window().close();
        EXPECT_TRUE(QTest::qWaitFor([&] { return *asked; }));
        EXPECT_EQ(delegate->window().isVisible(), !givesUp);
    }
}

TEST_F(StartUp, ASettingThatIsNotThereIsSaidSo) {
    QString text;
    const auto told = whenOpened<QMessageBox>([&](QMessageBox& box) {
        text = box.informativeText();
        box.accept();
    });
    start({QStringLiteral("Nowhere"), {}});
    EXPECT_TRUE(*told);
    EXPECT_TRUE(text.contains(QStringLiteral("“Nowhere”")));
}

}  // namespace
}  // namespace zelto
