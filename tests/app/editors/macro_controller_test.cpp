// SPDX-License-Identifier: GPL-3.0-or-later
// The macro list and the dialogs it opens, driven with mouse and keys.
#include "app/editors/macros/macro_controller.h"

#include "app/editors/macros/auto_number_window_controller.h"
#include "app/editors/macros/date_format_window_controller.h"
#include "app/editors/macros/special_character_window_controller.h"
#include "app/modal_dialog.h"
#include "platform/preferences.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include <gtest/gtest.h>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

class MacroControllerTest : public ::testing::Test {
  public:
    MacroControllerTest() {
        const QString path = folder.filePath(u"shore.jpg"_s);
        drawnScene({60, 40}).save(path);
        EXPECT_TRUE(writeTags({u"-EXIF:FNumber=2.8"_s, u"-IPTC:DateCreated=2014:05:03"_s}, {path}));
        macros = std::make_unique<MacroController>(path, 0, text);
        text.setPlainText(u"ab"_s);
        text.moveCursor(QTextCursor::Right);
        macros->show();
        EXPECT_TRUE(QTest::qWaitFor([this] { return macros->isComplete(); }, 10000));
    }

    void search(const QString& words) {
        auto* field = macros->findChild<QLineEdit*>(u"searchMacros"_s);
        field->selectAll();
        QTest::keyClicks(field, words);
    }
    QTreeView& list() { return *macros->findChild<QTreeView*>(u"macros"_s); }
    QString valueOfFirst() { return list().model()->index(0, 1).data().toString(); }

    void pressReturn() { QTest::keyClick(macros->findChild<QLineEdit*>(u"searchMacros"_s), Qt::Key_Return); }
    void pressInsert() {
        QTest::mouseClick(macros->findChild<QPushButton*>(u"InsertMacro"_s), Qt::LeftButton);
    }
    void doubleClick() {
        const QPoint first = list().visualRect(list().model()->index(0, 0)).center();
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, first);
        QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, first);
    }

    QTemporaryDir folder;
    QPlainTextEdit text;
    std::unique_ptr<MacroController> macros;
};

TEST_F(MacroControllerTest, ChosenMacrosGoToTheCursor) {
    using Choose = void (MacroControllerTest::*)();
    struct Row {
        const char* search;
        const char* value;
        Choose choose;
        const char* text;
    };
    const Row rows[] = {
        {"photo w", "60", &MacroControllerTest::pressReturn, "a<<PHOTOWIDTH>>b"},
        {"shore", "shore", &MacroControllerTest::pressInsert, "a<<IMGNAME>>b"},
        {"fnum", "2.8", &MacroControllerTest::doubleClick, "a<<EXIF:FNumber>>b"},
        {"iptc:date", "20140503", &MacroControllerTest::doubleClick, "a<<IPTC:DateCreated>>b"},
    };
    for (const Row& row : rows) {
        text.setPlainText(u"ab"_s);
        text.moveCursor(QTextCursor::Right);
        search(QLatin1String(row.search));
        EXPECT_EQ(valueOfFirst(), QLatin1String(row.value)) << row.search;
        (this->*row.choose)();
        EXPECT_EQ(text.toPlainText(), QLatin1String(row.text)) << row.search;
    }
    QTest::keyClicks(&text, u"!"_s);
    EXPECT_EQ(text.toPlainText(), u"a<<IPTC:DateCreated>>!b"_s) << "typing goes on behind what was inserted";
}

TEST_F(MacroControllerTest, DatesAskForTheirFormatAndRememberIt) {
    const auto insertDate = [this](const QString& words, const QString& typed, QString& sample) {
        search(words);
        const auto came = whenOpened<DateFormatWindowControlller>([&](DateFormatWindowControlller& dialog) {
            auto* field = dialog.findChild<QComboBox*>(u"DateFormat"_s);
            QTest::keyClicks(field, typed);
            sample = dialog.findChild<QLabel*>(u"DateFormatSample"_s)->text();
            QTest::keyClick(field, Qt::Key_Return);
        });
        pressReturn();
        return *came;
    };
    QString sample;
    EXPECT_TRUE(insertDate(u"today"_s, u"[d.m.y]"_s, sample));
    EXPECT_EQ(text.toPlainText(), u"a<<TODAYDATE[d.m.y]>>b"_s) << "brackets cannot be typed";
    EXPECT_EQ(sample, QDate::currentDate().toString(u"dd.MM.yyyy"_s));
    EXPECT_TRUE(insertDate(u"iptc:date"_s, {}, sample));
    EXPECT_EQ(text.toPlainText(), u"a<<TODAYDATE[d.m.y]>><<IPTC:DateCreated[d.m.y]>>b"_s);
}

TEST_F(MacroControllerTest, RunningNumbersAreComposed) {
    setPreference(preference::LastAutoNumber, 57);
    search(u"auto"_s);
    QString shown;
    const auto came = whenOpened<AutoNumberWindowController>([&](AutoNumberWindowController& dialog) {
        const auto type = [&](const QString& name, const QString& typed) {
            auto* field = dialog.findChild<QLineEdit*>(name);
            field->selectAll();
            QTest::keyClicks(field, typed);
            return field->text();
        };
        EXPECT_EQ(type(u"txtIncrement"_s, u"0"_s), u"1"_s);
        EXPECT_EQ(type(u"txtIncrement"_s, u"-"_s), u"1"_s);
        EXPECT_EQ(type(u"txtIncrement"_s, u"5"_s), u"5"_s);
        EXPECT_EQ(type(u"txtDigits"_s, u"4"_s), u"4"_s);
        auto* again = dialog.findChild<QCheckBox*>(u"chkContinue"_s);
        const QString macro = dialog.MacroName();
        QTest::keyClick(again, Qt::Key_Space);
        EXPECT_EQ(dialog.MacroName(), u"<<AUTO:##58+5>>"_s);
        QTest::keyClick(again, Qt::Key_Space);
        EXPECT_EQ(dialog.MacroName(), macro) << "counting starts at 1 again";
        shown = dialog.findChild<QLabel*>(u"lblMacro"_s)->text();
        QTest::mouseClick(dialog.findChild<QPushButton*>(u"btnInsertMacro"_s), Qt::LeftButton);
    });
    pressInsert();
    EXPECT_TRUE(*came);
    EXPECT_EQ(shown, u"Macro Generated:<<AUTO:###1+5>>"_s);
    EXPECT_EQ(text.toPlainText(), u"a<<AUTO:###1+5>>b"_s);
}

TEST_F(MacroControllerTest, SpecialCharactersAreFoundByName) {
    const auto came =
        whenOpened<SpecialCharacterWindowController>([](SpecialCharacterWindowController& dialog) {
            EXPECT_EQ(dialog.character(), u"€"_s) << "the table begins with it";
            auto* field = dialog.findChild<QLineEdit*>(u"search"_s);
            auto* list = dialog.findChild<QListView*>(u"items"_s);
            EXPECT_EQ(list->model()->rowCount(), 128);
            QTest::keyClicks(field, u"grinning face"_s);
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.character() == u"😀"_s; }, 10000));
            QTest::keyClick(field, Qt::Key_Down);
            QTest::keyClick(list, Qt::Key_Right);
            EXPECT_NE(dialog.character(), u"😀"_s);
            QTest::keyClick(list, Qt::Key_Left);
            EXPECT_TRUE(dialog.findChild<QLabel*>(u"name"_s)->text().contains(u"GRINNING FACE\nU+1F600"_s));
            QTest::keyClick(list, Qt::Key_Return);
        });
    QTest::mouseClick(macros->findChild<QPushButton*>(u"SpecialCharacter"_s), Qt::LeftButton);
    EXPECT_TRUE(*came);
    EXPECT_EQ(text.toPlainText(), u"a😀b"_s);
}

}  // namespace
}  // namespace zelto
