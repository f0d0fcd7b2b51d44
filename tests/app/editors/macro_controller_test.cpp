// SPDX-License-Identifier: GPL-3.0-or-later
// The macro list and the dialogs it opens, driven with mouse and keys.
#include "app/editors/macros/macro_controller.h"

#include "app/editors/macros/auto_number_window_controller.h"
#include "app/editors/macros/date_format_window_controller.h"
#include "app/editors/macros/special_character_window_controller.h"
#include "app/hands.h"
#include "platform/dates.h"
#include "platform/preferences.h"
#include "platform/whole_file.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeView>

namespace zelto {
namespace {

class MacroControllerTest : public ::testing::Test {
  public:
    MacroControllerTest() {
        const QString path = folder.filePath(u"shore.jpg"_s);
        EXPECT_TRUE(
            writeWholeFile(path, jpegBytes(drawnScene({60, 40}), {.orientation = 6, .exifDpi = 300})));
        EXPECT_TRUE(writeTags({u"-EXIF:FNumber=2.8"_s, u"-IPTC:DateCreated=2014:05:03"_s}, {path}));
        macros = std::make_unique<MacroController>(text);
        macros->showFor({path, 0});
        text.setPlainText(u"ab"_s);
        text.moveCursor(QTextCursor::Right);
        macros->show();
        EXPECT_TRUE(QTest::qWaitFor([this] { return macros->isComplete(); }, 10000));
    }

    void search(const QString& words) { type(*macros, "searchMacros", words); }
    QTreeView& list() { return *macros->findChild<QTreeView*>(u"macros"_s); }
    QString valueOfFirst() { return list().model()->index(0, 1).data().toString(); }

    void pressReturn() { press(*macros, "searchMacros", Qt::Key_Return); }
    void pressInsert() { click(*macros, "InsertMacro"); }
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
        {"dpi h", "300", &MacroControllerTest::pressInsert, "a<<PHOTODPIY>>b"},
        {"photo w", "40", &MacroControllerTest::pressReturn, "a<<PHOTOWIDTH>>b"},
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
            auto& field = control<QComboBox>(dialog, "DateFormat");
            typed.isNull() ? void() : retype(*field.lineEdit(), typed);
            sample = control<QLabel>(dialog, "DateFormatSample").text();
            QTest::keyClick(&field, Qt::Key_Return);
        });
        pressReturn();
        return QTest::qWaitFor([came] { return *came; });
    };
    QString sample;
    EXPECT_TRUE(insertDate(u"today"_s, u"[d.m.y]"_s, sample));
    EXPECT_EQ(text.toPlainText(), u"a<<TODAYDATE[d.m.y]>>b"_s) << "brackets cannot be typed";
    EXPECT_EQ(sample, QDate::currentDate().toString(u"dd.MM.yyyy"_s));
    EXPECT_TRUE(insertDate(u"iptc:date"_s, {}, sample));
    EXPECT_EQ(text.toPlainText(), u"a<<TODAYDATE[d.m.y]>><<IPTC:DateCreated[d.m.y]>>b"_s);
    // Without a format the sample, too, is what the macro prints.
    EXPECT_TRUE(insertDate(u"iptc:date"_s, u""_s, sample));
    EXPECT_EQ(sample, QString());
    EXPECT_TRUE(insertDate(u"today"_s, u""_s, sample));
    EXPECT_EQ(sample, formatShortDate(QDateTime::currentDateTime(), userDateLocale()));
}

TEST_F(MacroControllerTest, RunningNumbersAreComposed) {
    setPreference(preference::LastAutoNumber, 57);
    search(u"auto"_s);
    QString shown;
    const auto came = whenOpened<AutoNumberWindowController>([&](AutoNumberWindowController& dialog) {
        for (const auto& [name, typed, shows] : {std::tuple("txtIncrement", u"0"_s, u"1"_s),
                                                 {"txtIncrement", u"5"_s, u"5"_s},
                                                 {"txtStartingNumber", u"+7"_s, u"7"_s},
                                                 {"txtStartingNumber", u"1"_s, u"1"_s},
                                                 {"txtDigits", u"101"_s, u"100"_s},
                                                 {"txtDigits", u"4"_s, u"4"_s}}) {
            auto& field = control<QLineEdit>(dialog, name);
            field.selectAll();
            QTest::keyClicks(&field, typed);
            EXPECT_EQ(field.text(), shows) << name;
        }
        const QString macro = dialog.MacroName();
        press(dialog, "chkContinue", Qt::Key_Space);
        EXPECT_EQ(dialog.MacroName(), u"<<AUTO:##58+5>>"_s);
        press(dialog, "chkContinue", Qt::Key_Space);
        EXPECT_EQ(dialog.MacroName(), macro) << "counting starts at 1 again";
        shown = control<QLabel>(dialog, "lblMacro").text();
        click(dialog, "btnInsertMacro");
    });
    pressInsert();
    EXPECT_TRUE(QTest::qWaitFor([came] { return *came; }));
    EXPECT_EQ(shown, u"Macro Generated:<<AUTO:###1+5>>"_s);
    EXPECT_EQ(text.toPlainText(), u"a<<AUTO:###1+5>>b"_s);
}

TEST_F(MacroControllerTest, SpecialCharactersAreFoundByName) {
    const auto came =
        whenOpened<SpecialCharacterWindowController>([](SpecialCharacterWindowController& dialog) {
            EXPECT_EQ(dialog.character(), u"€"_s) << "the table begins with it";
            auto& list = control<QListView>(dialog, "items");
            EXPECT_EQ(list.model()->rowCount(), 128);
            type(dialog, "search", u"grinning face"_s);
            EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.character() == u"😀"_s; }, 10000));
            press(dialog, "search", Qt::Key_Down);
            QTest::keyClick(&list, Qt::Key_Right);
            EXPECT_NE(dialog.character(), u"😀"_s);
            QTest::keyClick(&list, Qt::Key_Left);
            EXPECT_TRUE(says(dialog, u"GRINNING FACE\nU+1F600"_s));
            QTest::keyClick(&list, Qt::Key_Return);
        });
    click(*macros, "SpecialCharacter");
    EXPECT_TRUE(QTest::qWaitFor([came] { return *came; }));
    EXPECT_EQ(text.toPlainText(), u"a😀b"_s);
}

}  // namespace
}  // namespace zelto
