// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/editor_test.h"
#include "app/editors/macros/macro_controller.h"
#include "support/qr_reader.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace zelto {
namespace {

using QrCodeEditorTest = EditorTest;

// Whether the editor comes to say something about the code.
bool says(QWidget& editor, const QString& words) {
    const auto* label = editor.findChild<QLabel*>(QStringLiteral("Judgement"));
    return QTest::qWaitFor([&] { return label->text().contains(words); }, 5000);
}

TEST_F(QrCodeEditorTest, WhatIsTypedCanBeReadFromThePhoto) {
    edit(Act::AddQrCode, [this](QDialog& editor) {
        EXPECT_TRUE(records().empty()) << "a code of nothing";
        QTest::keyClicks(&control(editor, "Text"), QStringLiteral("https://example.com/<<IMGNAME>>"));
        EXPECT_EQ(readQrCodes(seen()), QStringList(QStringLiteral("https://example.com/photo")));
        EXPECT_TRUE(says(editor, QStringLiteral("squares")));
        type(editor, "Size", QStringLiteral("10"));
        EXPECT_TRUE(says(editor, QStringLiteral("Too small")));
        choose(editor, "Size", 0);
        type(editor, "Size", QStringLiteral("250"));
        click(editor, "Cell5");
        pickColor(editor, "ShadowColor", Qt::yellow);
        const QImage photo = seen();
        EXPECT_EQ(readQrCodes(photo), QStringList(QStringLiteral("https://example.com/photo")));
        EXPECT_EQ(photo.pixelColor(180, 200), QColor(Qt::yellow));
        click(editor, "HasBackground");
        EXPECT_EQ(seen().pixel(180, 200), PhotoColor);
    });
    ASSERT_EQ(records().size(), 1U);
    EXPECT_EQ(records()[0].ResizeFormat, 1);
    EXPECT_EQ(records()[0].ResizeWidth, 250.0F);
    EXPECT_FALSE(records()[0].ShadowColor.has_value());
    history().undo();
    EXPECT_TRUE(records().empty());
}

TEST_F(QrCodeEditorTest, AnEmptiedCodeKeepsItsPlaceUntilTheEditorIsClosed) {
    for (const char* text : {"first", "second"}) {
        edit(Act::AddQrCode,
             [text](QDialog& editor) { QTest::keyClicks(&control(editor, "Text"), QLatin1String(text)); });
    }
    window.watermarks().selectWatermark(0);
    edit(Act::EditWatermark, [this](QDialog& editor) {
        type(editor, "Text", {});
        EXPECT_EQ(records().size(), 2U);
        QTest::keyClicks(&control(editor, "Text"), QStringLiteral("third"));
    });
    ASSERT_EQ(records().size(), 2U);
    EXPECT_EQ(records()[0].Text, QStringLiteral("third"));
    edit(Act::EditWatermark, [](QDialog& editor) { type(editor, "Text", {}); });
    ASSERT_EQ(records().size(), 1U);
    EXPECT_EQ(records()[0].Text, QStringLiteral("second"));
    history().undo();
    ASSERT_EQ(records().size(), 2U);
    EXPECT_EQ(records()[0].Text, QStringLiteral("third"));
}

TEST_F(QrCodeEditorTest, MacrosAreInsertedAtTheCursor) {
    edit(Act::AddQrCode, [](QDialog& editor) {
        QTest::keyClicks(&control(editor, "Text"), QStringLiteral("ab"));
        press(editor, "Text", Qt::Key_Left);
        click(editor, "Macros");
        auto* macros = editor.findChild<MacroController*>();
        ASSERT_NE(macros, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([macros] { return macros->isComplete(); }, 10000));
        auto* search = macros->findChild<QLineEdit*>(QStringLiteral("searchMacros"));
        QTest::keyClicks(search, QStringLiteral("photo.png"));
        QTest::keyClick(search, Qt::Key_Return);
        EXPECT_EQ(editor.findChild<QPlainTextEdit*>(QStringLiteral("Text"))->toPlainText(),
                  QStringLiteral("a<<IMGNAMEEXT>>b"));
        macros->window()->close();
    });
}

}  // namespace
}  // namespace zelto
