// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"
#include "app/editors/macros/macro_controller.h"
#include "support/qr_reader.h"

#include <QInputMethodEvent>
#include <QLineEdit>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

using QrCodeEditorTest = EditorTest;

TEST_F(QrCodeEditorTest, WhatIsTypedCanBeReadFromThePhoto) {
    edit(Act::AddQrCode, [this](QWidget& editor) {
        EXPECT_EQ(readQrCodes(seen()), QStringList(record().Text))
            << "one that can be seen, to be typed over";
        QTest::keyClicks(&control(editor, "Text"), u"https://example.com/<<IMGNAME>>"_s);
        EXPECT_EQ(readQrCodes(seen()), QStringList(u"https://example.com/photo"_s));
        const auto comesToSay = [&editor](const QString& words) {
            return QTest::qWaitFor([&] { return says(editor, words); }, 5000);
        };
        EXPECT_TRUE(comesToSay(u"25 × 25 squares"_s));
        type(editor, "Size", u"10"_s);
        EXPECT_TRUE(comesToSay(u"Too small"_s));
        choose(editor, "Size", 0);
        type(editor, "Size", u"250"_s);
        click(editor, "Cell5");
        pickColor(editor, "ShadowColor", Qt::yellow);
        const QImage photo = seen();
        EXPECT_EQ(readQrCodes(photo), QStringList(u"https://example.com/photo"_s));
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

TEST_F(QrCodeEditorTest, HardBlanksAndMacrosGoToTheCursor) {
    edit(Act::AddQrCode, [this](QWidget& editor) {
        QInputMethodEvent typed;
        typed.setCommitString(u"a\u00A0b"_s);
        QApplication::sendEvent(&control(editor, "Text"), &typed);
        press(editor, "Text", Qt::Key_Left);
        click(editor, "MacrosTitle");
        auto* macros = editor.findChild<MacroController*>();
        ASSERT_NE(macros, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([macros] { return macros->isComplete(); }, 10000));
        auto& search = control<QLineEdit>(*macros, "searchMacros");
        QTest::keyClicks(&search, u"photo.png"_s);
        QTest::keyClick(&search, Qt::Key_Return);
        EXPECT_EQ(record().Text, u"a\u00A0<<IMGNAMEEXT>>b"_s);
    });
}

}  // namespace
}  // namespace zelto
