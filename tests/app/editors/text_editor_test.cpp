// SPDX-License-Identifier: GPL-3.0-or-later
// The text editor, driven with mouse and keys.
#include "app/editor_fixture.h"
#include "platform/preferences.h"

#include <QFontDatabase>
#include <QInputMethodEvent>
#include <QTabWidget>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

class TextEditorTest : public EditorTest {
  protected:
    TextEditorTest() { removePreference(preference::LastTextStyle); }

    static Watermark sampleText(const QString& words = u"Shore"_s) {
        Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
        text.Text = words;
        text.FontFamily = u"DejaVu Sans"_s;
        text.IsRelative = true;
        text.FontSize = 8;
        text.FontRelativeSize = u"Width"_s;
        text.TextColor = Color::white();
        text.ShadowColor = Color{1.0F, 0.0F, 0.0F, 1.0F};
        text.Position = 7;
        return text;
    }
};

TEST_F(TextEditorTest, EachControlChangesItsFieldsThePreviewAndOneUndoStep) {
    using W = Watermark;
    const auto embossed = [](W& text) { text.TextEffect = 3; };
    const auto fixed = [](W& text) { text.IsRelative = false; };
    checkControls(
        sampleText(),
        {
            {"text",
             [](QWidget& e) {
                 type(e, "Text", u"a"_s), press(e, "Text", Qt::Key_Return);
                 QTest::keyClicks(&control(e, "Text"), u"b"_s);
             },
             [](W& w) { w.Text = u"a\nb"_s; }},
            {"font",
             [](QWidget& e) {
                 type(e, "searchFonts", u"sans mono"_s), press(e, "searchFonts", Qt::Key_Return);
             },
             [](W& w) { w.FontFamily = u"DejaVu Sans Mono"_s; }},
            {"next font", [](QWidget& e) { press(e, "searchFonts", Qt::Key_Down); },
             [](W& w) {
                 const QStringList families = QFontDatabase::families();
                 w.FontFamily = families.value(families.indexOf(w.FontFamily) + 1);
             }},
            {"size", [](QWidget& e) { type(e, "FontSize", u"12"_s); }, [](W& w) { w.FontSize = 12; }},
            {"side", [](QWidget& e) { press(e, "FontRelativeSize", Qt::Key_End); },
             [](W& w) { w.FontRelativeSize = u"Longer Side"_s; }},
            {"kind of size", [](QWidget& e) { press(e, "FontSizeType", Qt::Key_Down); },
             [](W& w) { w.IsRelative = false; }},
            {"the other kind", [](QWidget& e) { press(e, "FontSizeType", Qt::Key_Up); },
             [](W& w) { w.IsRelative = true; }, fixed},
            {"pixels", [](QWidget& e) { type(e, "FontSize", u"3100"_s); }, [](W& w) { w.FontSize = 3100; },
             fixed},
            {"usual size", [](QWidget& e) { press(e, "UsualSizes", Qt::Key_Home); },
             [](W& w) { w.FontSize = 12; }, fixed},
            {"bold", [](QWidget& e) { click(e, "FontBold"); }, [](W& w) { w.FontBold = true; }},
            {"italic", [](QWidget& e) { click(e, "FontItalic"); }, [](W& w) { w.FontItalic = true; }},
            {"underline", [](QWidget& e) { click(e, "FontUnderline"); },
             [](W& w) { w.FontUnderline = true; }},
            {"strike", [](QWidget& e) { click(e, "FontStrikethrough"); },
             [](W& w) { w.FontStrikethrough = true; }},
            {"centre", [](QWidget& e) { click(e, "align-center"); }, [](W& w) { w.Alignment = 2; }},
            {"right", [](QWidget& e) { click(e, "align-right"); }, [](W& w) { w.Alignment = 1; }},
            {"shadow", [](QWidget& e) { click(e, "Shadow"); }, [](W& w) { w.Shadow = true; }},
            {"shadow in the well's colour", [](QWidget& e) { click(e, "Shadow"); },
             [](W& w) { w.Shadow = true, w.ShadowColor = Color::black(); },
             [](W& w) { w.ShadowColor.reset(); }},
            {"emboss", [](QWidget& e) { press(e, "TextEffect", Qt::Key_Down); }, embossed},
            {"plain", [](QWidget& e) { press(e, "TextEffect", Qt::Key_Up); }, [](W& w) { w.TextEffect = 0; },
             embossed},
            {"hollow", [](QWidget& e) { click(e, "IsTextTransparent"); },
             [](W& w) { w.UseTransparentColor = true; }, embossed},
            {"transparency", [](QWidget& e) { press(e, "Transparency", Qt::Key_PageUp); },
             [](W& w) { w.Transparency = 0.4F; }},
            {"place",
             [](QWidget& e) {
                 e.findChild<QTabWidget*>()->setCurrentIndex(2);
                 click(e, "HorizontalTiling"), type(e, "HorizontalSpacing", u"25"_s);
             },
             [](W& w) { w.HorizontalTiling = true, w.HorizontalSpacing = 25, w.Position = 2; }},
        });
}

TEST_F(TextEditorTest, ANewTextLooksLikeTheLastOne) {
    const auto write = [](QDialog& editor) { type(editor, "Text", u"a"_s); };
    edit(Act::AddText, write);
    EXPECT_EQ(record(0).FontSize, 5);
    EXPECT_EQ(record(0).TextColor, Color::white());
    editRecord(0, [](QDialog& editor) {
        click(editor, "FontBold");
        choose(editor, "FontSizeType", 1);
        type(editor, "FontSize", u"64"_s);
        pickColor(editor, "TextColor", QColor(255, 0, 0, 51));
        type(editor, "searchFonts", u"sans mono"_s);
        press(editor, "searchFonts", Qt::Key_Return);
    });
    add(sampleText());
    editRecord(1, [](QDialog&) {});  // looked at, not used
    edit(Act::AddText, write);
    Watermark expected = record(0);
    expected.FontBold = false;
    EXPECT_EQ(record(2), expected);
}

TEST_F(TextEditorTest, FastTypingLosesNothing) {
    QString typed;
    for (int i = 0; i < 40; ++i) typed += u"quick %1, "_s.arg(i);
    edit(Act::AddText, [&](QDialog& editor) {
        EXPECT_EQ(records().size(), 0U) << "a new text is in the list once it says something";
        QTest::keyClicks(&control(editor, "Text"), typed);
        EXPECT_EQ(records().size(), 1U);
        EXPECT_EQ(record().Text, typed);
        EXPECT_TRUE(showsWhatIsWritten());
    });
    EXPECT_EQ(records().size(), 1U);
    history().undo();
    EXPECT_EQ(records().size(), 0U) << "the session is one step";
    history().redo();
    EXPECT_EQ(record().Text, typed);
}

TEST_F(TextEditorTest, KeepsEveryKindOfCharacter) {
    const QString text = u"\u00A9 a\u00A0b \U0001F600 \u0634\u0627\u0637\u0626 <<IMGNAME>>#"_s;
    edit(Act::AddText, [&](QDialog& editor) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&control(editor, "Text"), &event);
    });
    ASSERT_EQ(records().size(), 1U);
    EXPECT_EQ(record().Text, text);
    editRecord(0, [&](QDialog&) { EXPECT_EQ(record().Text, text); });
    EXPECT_EQ(record().Text, text) << "opening the editor again rewrites nothing";
}

TEST_F(TextEditorTest, AnEmptiedTextKeepsItsPlaceUntilTheEditorCloses) {
    const auto empty = [](QDialog& editor) { type(editor, "Text", {}); };
    add(sampleText());
    add(sampleText(u"Other"_s));
    editRecord(0, [&](QDialog& editor) {
        empty(editor);
        QTest::keyClicks(&control(editor, "Text"), u"New"_s);
    });
    ASSERT_EQ(records().size(), 2U);
    EXPECT_EQ(record(0).Text, u"New"_s);
    editRecord(0, empty);
    ASSERT_EQ(records().size(), 1U);
    EXPECT_EQ(record(0).Text, u"Other"_s);
}

TEST_F(TextEditorTest, ControlsThatDoNothingCannotBeUsed) {
    struct Row {
        bool isEmbossed, hasShadow, shadow, shadowColor, hollow;
    };
    for (const Row& row : {Row{false, false, true, false, false}, Row{false, true, true, true, false},
                           Row{true, true, false, false, true}}) {
        Watermark text = sampleText();
        text.TextEffect = row.isEmbossed ? 3 : 0;
        text.Shadow = row.hasShadow;
        add(text);
        editRecord(0, [&](QDialog& editor) {
            EXPECT_EQ(control(editor, "Shadow").isEnabled(), row.shadow);
            EXPECT_EQ(control(editor, "ShadowColor").isEnabled(), row.shadowColor);
            EXPECT_EQ(control(editor, "IsTextTransparent").isEnabled(), row.hollow);
        });
        window.watermarks().RemoveAllWatermarks();
    }
}

TEST_F(TextEditorTest, AFontThatIsNotInstalledIsNamedAndKept) {
    Watermark text = sampleText();
    text.FontFamily = u"Nobody Has This"_s;
    add(text);
    editRecord(0, [&](QDialog& editor) {
        EXPECT_TRUE(says(editor, u"“Nobody Has This”"_s));
        type(editor, "searchFonts", u"serif"_s);
        EXPECT_EQ(record().FontFamily, text.FontFamily) << "looking for a font chooses none";
    });
    EXPECT_EQ(record(), text);
}

TEST_F(TextEditorTest, TabFollowsTheEye) {
    add(sampleText());
    editRecord(0, [&](QDialog& editor) {
        for (int page = 0; page < 3; ++page) {
            editor.findChild<QTabWidget*>()->setCurrentIndex(page);
            auto& first = control(editor, "Text");
            first.setFocus();
            QPoint last;
            int steps = 0;
            do {
                const QPoint place = editor.focusWidget()->mapTo(&editor, QPoint());
                // Rows of controls of different heights are a little out of line.
                constexpr int OneRow = 40;
                EXPECT_TRUE(place.y() > last.y() - OneRow)
                    << "page " << page << ": " << qPrintable(editor.focusWidget()->objectName());
                last = place;
                QTest::keyClick(editor.focusWidget(), Qt::Key_Tab);
            } while (editor.focusWidget() != &first && ++steps < 60);
            EXPECT_LT(steps, 60);
            EXPECT_GT(steps, 5);
        }
    });
}

}  // namespace
}  // namespace zelto
