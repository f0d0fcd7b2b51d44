// SPDX-License-Identifier: GPL-3.0-or-later
// Everything a setting can hold, put together in the editors, kept, and taken up again.
#include "app/editor_fixture.h"
#include "persistence/setting_file.h"

#include <QListWidget>

namespace zelto {
namespace {

class StackByHand : public EditorTest {
  protected:
    void compose() {
        addLogo(makeLogo(), [](QWidget& editor) {
            click(editor, "CreateBW");
            click(editor, "IsTransparent");
            pickColor(editor, "TransparentColor", QColor(1, 2, 3));
            press(editor, "Transparency", Qt::Key_Home);
            click(editor, "HorizontalTiling");
            type(editor, "HorizontalSpacing", QStringLiteral("12"));
            click(editor, "VerticalTiling");
            type(editor, "VerticalSpacing", QStringLiteral("9"));
        });
        edit(Act::AddText, [](QWidget& editor) {
            type(editor, "Text", QStringLiteral("<<IMGNAME>> & more"));
            click(editor, "FontBold");
            click(editor, "FontStrikethrough");
            pickColor(editor, "TextColor", QColor(200, 10, 20, 128));
            click(editor, "Shadow");
            type(editor, "Rotation", QStringLiteral("-30"));
            click(editor, "Cell8");
            type(editor, "PaddingBottom", QStringLiteral("17"));
        });
        edit(Act::AddShape, [](QWidget& editor) {
            click(editor, "Polygon");
            type(editor, "Sides", QStringLiteral("7"));
            choose(editor, "Width", 1);
            click(editor, "Gradient");
            pickColor(editor, "SecondColor", Qt::magenta);
            choose(editor, "GradeintType", 3);
            click(editor, "CustomPosition");
            type(editor, "CustomPositionLeft", QStringLiteral("33"));
        });
        edit(Act::AddQrCode, [](QWidget& editor) {
            type(editor, "Text", QStringLiteral("https://example.com/<<AUTONUMBER>>"));
            choose(editor, "Size", 0);
            type(editor, "Size", QStringLiteral("120"));
            click(editor, "Cell3");
        });
        edit(Act::AddFilter, [](QWidget& editor) { press(editor, "Filters", Qt::Key_End); });
        edit(Act::AddEffects, [](QWidget& editor) {
            type(editor, "LeftThickness", QStringLiteral("21"));
            pickColor(editor, "BorderColor", QColor(12, 34, 56));
            click(editor, "ShadowTop");
            click(editor, "ShadowLeft");
            type(editor, "BlurRadius", QStringLiteral("6"));
        });
        edit(Act::AddCopyright, [](QWidget& editor) {
            type(editor, "CopyrightText", QStringLiteral("\u00a9 someone"));
            choose(editor, "CopyrightTextStatus", 1);
        });
    }

    const StackState& state() { return window.document().state(); }
};

TEST_F(StackByHand, IsKeptReadBackAndEditedAgainWithoutLoss) {
    compose();
    ASSERT_TRUE(waitForPreview());
    const StackState composed = state();
    ASSERT_EQ(composed.Stack.Watermarks.size(), 4U);
    EXPECT_EQ(composed.Stack.SelectedFilter, 13);
    EXPECT_EQ(composed.Stack.Effects->Direction, 315);
    EXPECT_TRUE(composed.Stack.Metadata);
    const QImage photo = seen();

    const QString file = folder.filePath(QStringLiteral("by-hand.zcs"));
    ASSERT_TRUE(SaveWatermarkSettings(composed.Stack, file).has_value());
    window.watermarks().RemoveAllWatermarks();
    window.watermarks().AddEffects(std::nullopt);
    ASSERT_TRUE(window.watermarks().LoadWatermarkSetting(file).has_value());
    EXPECT_TRUE(state() == composed);
    EXPECT_TRUE(seen() == photo);

    // Every editor looked into once more, then one thing changed in each.
    const int rows = window.watermarks().model().rowCount();
    ASSERT_EQ(rows, 6);
    for (int row = 0; row < rows; ++row) {
        window.watermarks().selection().setCurrentIndex(window.watermarks().model().index(row),
                                                        QItemSelectionModel::ClearAndSelect);
        edit(Act::EditWatermark, [this](QWidget&) { QTest::keyClick(window.focusWidget(), Qt::Key_Tab); });
    }
    edit(Act::AddEffects, [](QWidget&) {});
    EXPECT_TRUE(state() == composed);

    struct Change {
        int row;
        const char* control;
        std::int64_t Watermark::*field;
        std::int64_t value;
    };
    StackState expected = composed;
    for (const Change& change :
         {Change{2, "PaddingTop", &Watermark::PaddingTop, 5}, Change{3, "Rotation", &Watermark::Rotation, 45},
          Change{4, "Sides", &Watermark::Sides, 9}, Change{5, "PaddingRight", &Watermark::PaddingRight, 8}}) {
        window.watermarks().selectWatermark(change.row - 2);
        edit(Act::EditWatermark,
             [&change](QWidget& editor) { type(editor, change.control, QString::number(change.value)); });
        expected.Stack.Watermarks[static_cast<std::size_t>(change.row - 2)].*change.field = change.value;
        EXPECT_TRUE(state() == expected) << change.control;
    }
}

}  // namespace
}  // namespace zelto
