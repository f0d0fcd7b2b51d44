// SPDX-License-Identifier: GPL-3.0-or-later
// The text editor, driven with mouse and keys.
#include "app/editors/controls/position_grid.h"
#include "app/editors/editor_window.h"

#include <QFontDatabase>
#include <QInputMethodEvent>
#include <QLabel>
#include <QTabWidget>

#include <functional>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

Watermark sampleText() {
    Watermark text = WatermarkController::startingWatermark(watermark_type::Text);
    text.Text = u"Shore"_s;
    text.FontFamily = u"DejaVu Sans"_s;
    text.IsRelative = true;
    text.FontSize = 8;
    text.FontRelativeSize = u"Width"_s;
    text.TextColor = Color::white();
    text.ShadowColor = Color{1.0F, 0.0F, 0.0F, 1.0F};
    text.Position = 7;
    return text;
}

using TextEditorTest = EditorWindowTest;

TEST_F(TextEditorTest, EachControlChangesItsFieldsThePreviewAndOneUndoStep) {
    struct Row {
        const char* what;
        std::function<void(QWidget&)> drive;
        std::function<void(Watermark&)> expected;
        std::function<void(Watermark&)> start = [](Watermark&) {};
    };
    const auto embossed = [](Watermark& text) { text.TextEffect = 3; };
    const auto fixed = [](Watermark& text) { text.IsRelative = false; };
    const Row rows[] = {
        {"text",
         [](QWidget& e) {
             type(e, "Text", u"a"_s), press(e, "Text", Qt::Key_Return),
                 QTest::keyClicks(&control(e, "Text"), u"b"_s);
         },
         [](Watermark& w) { w.Text = u"a\nb"_s; }},
        {"font",
         [](QWidget& e) { type(e, "searchFonts", u"sans mono"_s), press(e, "searchFonts", Qt::Key_Return); },
         [](Watermark& w) { w.FontFamily = u"DejaVu Sans Mono"_s; }},
        {"next font", [](QWidget& e) { press(e, "searchFonts", Qt::Key_Down); },
         [](Watermark& w) {
             const QStringList families = QFontDatabase::families();
             w.FontFamily = families.value(families.indexOf(w.FontFamily) + 1);
         }},
        {"size", [](QWidget& e) { type(e, "RelativeFontSize", u"12"_s); },
         [](Watermark& w) { w.FontSize = 12; }},
        {"side", [](QWidget& e) { press(e, "FontRelativeSize", Qt::Key_End); },
         [](Watermark& w) { w.FontRelativeSize = u"Longer Side"_s; }},
        {"size type", [](QWidget& e) { press(e, "FontSizeType", Qt::Key_Down); },
         [](Watermark& w) { w.IsRelative = false, w.FontSize = 72; }},
        {"pixels", [](QWidget& e) { type(e, "FontSize", u"31"_s); }, [](Watermark& w) { w.FontSize = 31; },
         fixed},
        {"usual size", [](QWidget& e) { press(e, "UsualSizes", Qt::Key_Home); },
         [](Watermark& w) { w.FontSize = 12; }, fixed},
        {"bold", [](QWidget& e) { click(e, "FontBold"); }, [](Watermark& w) { w.FontBold = true; }},
        {"italic", [](QWidget& e) { click(e, "FontItalic"); }, [](Watermark& w) { w.FontItalic = true; }},
        {"underline", [](QWidget& e) { click(e, "FontUnderline"); },
         [](Watermark& w) { w.FontUnderline = true; }},
        {"strike", [](QWidget& e) { click(e, "FontStrikethrough"); },
         [](Watermark& w) { w.FontStrikethrough = true; }},
        {"centre", [](QWidget& e) { click(e, "align-center"); }, [](Watermark& w) { w.Alignment = 2; }},
        {"right", [](QWidget& e) { click(e, "align-right"); }, [](Watermark& w) { w.Alignment = 1; }},
        {"shadow", [](QWidget& e) { click(e, "Shadow"); }, [](Watermark& w) { w.Shadow = true; }},
        {"shadow in the well's colour", [](QWidget& e) { click(e, "Shadow"); },
         [](Watermark& w) { w.Shadow = true, w.ShadowColor = Color::black(); },
         [](Watermark& w) { w.ShadowColor.reset(); }},
        {"emboss", [](QWidget& e) { press(e, "TextEffect", Qt::Key_Down); }, embossed},
        {"plain", [](QWidget& e) { press(e, "TextEffect", Qt::Key_Up); },
         [](Watermark& w) { w.TextEffect = 0; }, embossed},
        {"hollow", [](QWidget& e) { click(e, "IsTextTransparent"); },
         [](Watermark& w) { w.UseTransparentColor = true; }, embossed},
        {"transparency", [](QWidget& e) { press(e, "Transparency", Qt::Key_PageUp); },
         [](Watermark& w) { w.Transparency = 0.4F; }},
        {"rotation", [](QWidget& e) { type(e, "Rotation", u"-30"_s); },
         [](Watermark& w) { w.Rotation = -30; }},
        {"cell",
         [](QWidget& e) { QTest::mouseClick(&e.findChild<PositionGrid*>()->cell(5), Qt::LeftButton); },
         [](Watermark& w) { w.Position = 5, w.Alignment = 2; }},
        {"padding", [](QWidget& e) { type(e, "PaddingBottom", u"17"_s); },
         [](Watermark& w) { w.PaddingBottom = 17; }},
        {"own place", [](QWidget& e) { click(e, "CustomPosition"), type(e, "CustomPositionTop", u"40"_s); },
         [](Watermark& w) { w.Position = 10, w.CustomPositionTop = 40; }},
        {"tiling", [](QWidget& e) { click(e, "HorizontalTiling"), type(e, "HorizontalSpacing", u"25"_s); },
         [](Watermark& w) { w.HorizontalTiling = true, w.HorizontalSpacing = 25, w.Position = 2; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        Watermark before = sampleText();
        row.start(before);
        Watermark after = before;
        row.expected(after);
        add(before);
        editRow(0, [&](QWidget& editor) {
            EXPECT_EQ(record(), before) << "opening changes nothing";
            for (int page : {2, 0}) editor.findChild<QTabWidget*>()->setCurrentIndex(page);
            row.drive(editor);
            EXPECT_EQ(record(), after);
            EXPECT_TRUE(showsWhatIsWritten());
        });
        EXPECT_EQ(record(), after) << "closing keeps it";
        window.document().history().undo();
        EXPECT_EQ(record(), before);
        EXPECT_TRUE(showsWhatIsWritten());
        window.watermarks().RemoveAllWatermarks();
    }
}

TEST_F(TextEditorTest, FastTypingLosesNothing) {
    QString typed;
    for (int i = 0; i < 40; ++i) typed += u"quick %1, "_s.arg(i);
    edit(Act::AddText, [&](QWidget& editor) {
        EXPECT_EQ(count(), 0U) << "a new text is in the list once it says something";
        QTest::keyClicks(&control(editor, "Text"), typed);
        EXPECT_EQ(count(), 1U);
        EXPECT_EQ(record().Text, typed);
        EXPECT_TRUE(showsWhatIsWritten());
    });
    EXPECT_EQ(count(), 1U);
    window.document().history().undo();
    EXPECT_EQ(count(), 0U) << "the session is one step";
    window.document().history().redo();
    EXPECT_EQ(record().Text, typed);
}

TEST_F(TextEditorTest, KeepsEveryKindOfCharacter) {
    const QString text = u"\u00A9 a\u00A0b \U0001F600 \u0634\u0627\u0637\u0626 <<IMGNAME>>#"_s;
    edit(Act::AddText, [&](QWidget& editor) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&control(editor, "Text"), &event);
    });
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(record().Text, text);
    editRow(0, [&](QWidget&) { EXPECT_EQ(record().Text, text); });
    EXPECT_EQ(record().Text, text) << "opening the editor again rewrites nothing";
}

TEST_F(TextEditorTest, AnEmptiedTextKeepsItsPlaceUntilTheEditorCloses) {
    Watermark other = sampleText();
    other.Text = u"Other"_s;
    const auto empty = [](QWidget& editor) { type(editor, "Text", {}); };
    add(sampleText());
    add(other);
    editRow(0, [&](QWidget& editor) {
        empty(editor);
        QTest::keyClicks(&control(editor, "Text"), u"New"_s);
    });
    ASSERT_EQ(count(), 2U);
    EXPECT_EQ(record(0).Text, u"New"_s);
    editRow(0, empty);
    ASSERT_EQ(count(), 1U);
    EXPECT_EQ(record(0).Text, u"Other"_s);
}

TEST_F(TextEditorTest, ControlsThatDoNothingCannotBeUsed) {
    struct Row {
        std::function<void(Watermark&)> start;
        QStringList usable;
        QStringList notUsable;
    };
    const Row rows[] = {
        {[](Watermark&) {}, {u"Shadow"_s}, {u"ShadowColor"_s, u"IsTextTransparent"_s}},
        {[](Watermark& w) { w.Shadow = true; }, {u"Shadow"_s, u"ShadowColor"_s}, {u"IsTextTransparent"_s}},
        {[](Watermark& w) { w.TextEffect = 3, w.Shadow = true; },
         {u"IsTextTransparent"_s},
         {u"Shadow"_s, u"ShadowColor"_s}},
        {[](Watermark& w) { w.Position = 9; },
         {u"PaddingBottom"_s, u"PaddingRight"_s},
         {u"PaddingTop"_s, u"PaddingLeft"_s, u"CustomPositionLeft"_s}},
        {[](Watermark& w) { w.VerticalTiling = true; },
         {u"PaddingTop"_s, u"PaddingRight"_s, u"VerticalSpacing"_s},
         {u"CustomPosition"_s}},
    };
    for (const Row& row : rows) {
        Watermark text = sampleText();
        row.start(text);
        add(text);
        editRow(0, [&](QWidget& editor) {
            for (const QString& name : row.usable) {
                EXPECT_TRUE(control(editor, qPrintable(name)).isEnabled()) << qPrintable(name);
            }
            for (const QString& name : row.notUsable) {
                EXPECT_FALSE(control(editor, qPrintable(name)).isEnabled()) << qPrintable(name);
            }
        });
        window.watermarks().RemoveAllWatermarks();
    }
}

TEST_F(TextEditorTest, AFontThatIsNotInstalledIsNamedAndKept) {
    Watermark text = sampleText();
    text.FontFamily = u"Nobody Has This"_s;
    add(text);
    editRow(0, [&](QWidget& editor) {
        const auto labels = editor.findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->isVisible() && label->text().contains(u"Nobody Has This"_s);
        }));
        type(editor, "searchFonts", u"serif"_s);
        EXPECT_EQ(record().FontFamily, text.FontFamily) << "looking for a font chooses none";
    });
    EXPECT_EQ(record(), text);
}

TEST_F(TextEditorTest, TabFollowsTheEye) {
    add(sampleText());
    editRow(0, [&](QWidget& editor) {
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
