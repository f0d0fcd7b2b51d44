// SPDX-License-Identifier: GPL-3.0-or-later
// The text editor, driven with mouse and keys.
#include "app/editor_fixture.h"
#include "platform/preferences.h"

#include <QFontDatabase>
#include <QInputMethodEvent>

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
    const auto embossed = set(&W::TextEffect, 3);
    const auto fixed = set(&W::IsRelative, false);
    const QStringList families = QFontDatabase::families();
    const QString nextFamily = families.value(families.indexOf(sampleText().FontFamily) + 1);
    checkControls(sampleText(),
                  {
                      {"lines",
                       [](QWidget& e) {
                           type(e, "Text", u"a"_s), press(e, "Text", Qt::Key_Return);
                           QTest::keyClicks(&control(e, "Text"), u"b"_s);
                       },
                       set(&W::Text, u"a\nb"_s)},
                      {"font",
                       [](QWidget& e) {
                           type(e, "searchFonts", u"sans mono"_s), press(e, "searchFonts", Qt::Key_Return);
                       },
                       set(&W::FontFamily, u"DejaVu Sans Mono"_s)},
                      {"shadow in the well's colour", [](QWidget& e) { click(e, "Shadow"); },
                       [](W& w) { w.Shadow = true, w.ShadowColor = Color::black(); },
                       [](W& w) { w.ShadowColor.reset(); }},
                      {"tiling", [](QWidget& e) { click(e, "HorizontalTiling"); },
                       [](W& w) { w.HorizontalTiling = true, w.Position = 2; }},
                      pressed("searchFonts", Qt::Key_Down, &W::FontFamily, nextFamily),
                      typed("FontSize", u"12"_s, &W::FontSize, 12),
                      {"half a per cent", [](QWidget& e) { type(e, "FontSize", u"8.5"_s); },
                       set(&W::FontSizeFraction, 0.5F)},
                      typed("FontSize", u"3100"_s, &W::FontSize, 3100, fixed),
                      pressed("UsualSizes", Qt::Key_Home, &W::FontSize, 12, fixed),
                      pressed("FontRelativeSize", Qt::Key_End, &W::FontRelativeSize, u"Longer Side"_s),
                      pressed("FontSizeType", Qt::Key_Down, &W::IsRelative, false),
                      pressed("FontSizeType", Qt::Key_Up, &W::IsRelative, true, fixed),
                      clicked("FontBold", &W::FontBold),
                      clicked("FontItalic", &W::FontItalic),
                      clicked("FontUnderline", &W::FontUnderline),
                      clicked("FontStrikethrough", &W::FontStrikethrough),
                      clicked("align-center", &W::Alignment, 2),
                      clicked("align-right", &W::Alignment, 1),
                      clicked("Shadow", &W::Shadow),
                      pressed("TextEffect", Qt::Key_Down, &W::TextEffect, 3),
                      pressed("TextEffect", Qt::Key_Up, &W::TextEffect, 0, embossed),
                      clicked("IsTextTransparent", &W::UseTransparentColor, true, embossed),
                      pressed("Transparency", Qt::Key_Right, &W::Transparency, 0.49F),
                  });
}

TEST_F(TextEditorTest, ANewTextLooksLikeTheLastOne) {
    const auto write = [](QWidget& editor) { type(editor, "Text", u"a"_s); };
    edit(Act::AddText, write);
    EXPECT_EQ(record(0).FontSize, 5);
    EXPECT_EQ(record(0).TextColor, Color::white());
    editRecord(0, [](QWidget& editor) {
        click(editor, "FontBold");
        choose(editor, "FontSizeType", 1);
        type(editor, "FontSize", u"64"_s);
        pickColor(editor, "TextColor", QColor(255, 0, 0, 51));
        type(editor, "searchFonts", u"sans mono"_s);
        press(editor, "searchFonts", Qt::Key_Return);
    });
    add(sampleText());
    editRecord(1, [](QWidget&) {});  // looked at, not used
    edit(Act::AddText, write);
    Watermark expected = record(0);
    expected.FontBold = false;
    // Each stands where it can be seen, in another corner.
    EXPECT_EQ(record(0).Position, 9);
    EXPECT_EQ(record(2).Position, 3);
    for (auto field : {&Watermark::PaddingTop, &Watermark::PaddingBottom}) expected.*field = record(2).*field;
    expected.Position = 3;
    std::swap(expected.PaddingTopShare, expected.PaddingBottomShare);
    EXPECT_EQ(record(2), expected);
}

TEST_F(TextEditorTest, FastTypingLosesNothingAndKeepsEveryKindOfCharacter) {
    const QString odd = u"\u00A9 a\u00A0b \U0001F600 \u0634\u0627\u0637\u0626 <<IMGNAME>>#"_s;
    QString typed;
    for (int i = 0; i < 40; ++i) typed += u"quick %1, "_s.arg(i);
    edit(Act::AddText, [&](QWidget& editor) {
        EXPECT_EQ(record().Text, u"Your text"_s) << "which is typed over";
        QInputMethodEvent event;
        event.setCommitString(odd);
        QApplication::sendEvent(&control(editor, "Text"), &event);
        QTest::keyClicks(&control(editor, "Text"), typed);
        EXPECT_EQ(records().size(), 1U);
        EXPECT_EQ(record().Text, odd + typed);
        EXPECT_TRUE(showsWhatIsWritten());
    });
    editRecord(0, [](QWidget&) {});
    EXPECT_EQ(record().Text, odd + typed) << "opening the editor again rewrites nothing";
    history().undo();
    EXPECT_EQ(records().size(), 0U) << "the session is one step";
    history().redo();
    EXPECT_EQ(record().Text, odd + typed);
}

TEST_F(TextEditorTest, AnEmptiedTextKeepsItsPlaceUntilItIsLeft) {
    const auto empty = [](QWidget& editor) { type(editor, "Text", {}); };
    add(sampleText());
    add(sampleText(u"Other"_s));
    editRecord(0, [&](QWidget& editor) {
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
        editRecord(0, [&](QWidget& editor) {
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
    editRecord(0, [&](QWidget& editor) {
        EXPECT_TRUE(says(editor, u"“Nobody Has This”"_s));
        type(editor, "searchFonts", u"serif"_s);
        EXPECT_EQ(record().FontFamily, text.FontFamily) << "looking for a font chooses none";
    });
    EXPECT_EQ(record(), text);
}

TEST_F(TextEditorTest, TabFollowsTheEye) {
    add(sampleText());
    editRecord(0, [&](QWidget& editor) {
        QWidget& page = *window.inspector().page();
        auto& first = control(editor, "Text");
        QPoint last;
        int steps = 0;
        first.setFocus();
        do {
            const QPoint place = window.focusWidget()->mapTo(&page, QPoint());
            // Rows of controls of different heights are a little out of line.
            constexpr int OneRow = 40;
            EXPECT_TRUE(place.y() > last.y() - OneRow) << qPrintable(window.focusWidget()->objectName());
            last = place;
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        } while (page.isAncestorOf(window.focusWidget()) && ++steps < 80);
        EXPECT_LT(steps, 80);
        EXPECT_GT(steps, 25);
    });
}

}  // namespace
}  // namespace zelto
