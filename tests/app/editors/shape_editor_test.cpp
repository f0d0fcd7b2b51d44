// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/editor_test.h"

#include <functional>

namespace zelto {
namespace {

class ShapeEditorTest : public EditorTest {
  protected:
    static Watermark start() { return WatermarkController::startingWatermark(watermark_type::Shape); }
};

TEST_F(ShapeEditorTest, EveryControlSetsItsFieldsAndNoOthers) {
    struct Row {
        const char* what;
        std::function<void(QWidget&)> drive;
        std::function<void(Watermark&)> expected;
    };
    const Row rows[] = {
        {"kind", [](QWidget& d) { click(d, "Ellipse"); },
         [](Watermark& w) { w.ShapeType = shape_type::Ellipse; }},
        {"kind by keyboard", [](QWidget& d) { press(d, "Rectangle", Qt::Key_Right); },
         [](Watermark& w) { w.ShapeType = shape_type::Ellipse; }},
        {"polygon", [](QWidget& d) { click(d, "Polygon"); },
         [](Watermark& w) {
             w.ShapeType = shape_type::Polygon;
             w.Sides = 3;
         }},
        {"no sides",
         [](QWidget& d) {
             click(d, "Polygon");
             type(d, "Sides", QStringLiteral("5"));
             type(d, "Sides", {});
             press(d, "Sides", Qt::Key_Tab);
         },
         [](Watermark& w) {
             w.ShapeType = shape_type::Polygon;
             w.Sides = 3;
         }},
        {"width", [](QWidget& d) { type(d, "Width", QStringLiteral("150")); },
         [](Watermark& w) { w.Width = 150.0F; }},
        {"the same height as a share", [](QWidget& d) { choose(d, "Height", 1); },
         [](Watermark& w) {
             w.ResizeHeightByPercent = true;
             w.ResizeHeight = 0.5F;
         }},
        {"width as a share and back",
         [](QWidget& d) {
             choose(d, "Width", 1);
             type(d, "Width", QStringLiteral("25"));
             choose(d, "Width", 0);
         },
         [](Watermark& w) {
             w.ResizeWidth = 0.25F;
             w.Width = 150.0F;
         }},
        {"colour", [](QWidget& d) { pickColor(d, "SolidColor", QColor(255, 0, 0, 51)); },
         [](Watermark& w) {
             w.SolidColor = Color{1.0F, 0.0F, 0.0F, 0.2F};
         }},
        {"gradient",
         [](QWidget& d) {
             click(d, "Gradient");
             pickColor(d, "FirstColor", Qt::blue);
             pickColor(d, "SecondColor", Qt::red);
             choose(d, "GradeintType", 4);
         },
         [](Watermark& w) {
             w.SolidBackground = false;
             w.FirstColor = Color{0.0F, 0.0F, 1.0F};
             w.SecondColor = Color{1.0F, 0.0F, 0.0F};
             w.GradeintType = 5;
         }},
        {"rotation", [](QWidget& d) { type(d, "Rotation", QStringLiteral("-30")); },
         [](Watermark& w) { w.Rotation = -30; }},
        {"transparency", [](QWidget& d) { press(d, "Transparency", Qt::Key_Home); },
         [](Watermark& w) { w.Transparency = 1.0F; }},
        {"cell and paddings",
         [](QWidget& d) {
             click(d, "Cell9");
             type(d, "PaddingRight", QStringLiteral("7"));
             type(d, "PaddingBottom", QStringLiteral("-8"));
         },
         [](Watermark& w) {
             w.Position = 9;
             w.PaddingRight = 7;
             w.PaddingBottom = -8;
         }},
        {"a place of its own",
         [](QWidget& d) {
             click(d, "CustomPosition");
             type(d, "CustomPositionLeft", QStringLiteral("40"));
             type(d, "CustomPositionTop", QStringLiteral("30"));
         },
         [](Watermark& w) {
             w.Position = CustomPosition;
             w.CustomPositionLeft = 40;
             w.CustomPositionTop = 30;
         }},
        {"and back to the cell",
         [](QWidget& d) {
             click(d, "Cell6");
             click(d, "CustomPosition");
             click(d, "PresetPosition");
         },
         [](Watermark& w) { w.Position = 6; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        edit(Act::AddShape, row.drive);
        Watermark expected = start();
        row.expected(expected);
        ASSERT_EQ(records().size(), 1U);
        EXPECT_TRUE(records()[0] == expected);
        EXPECT_TRUE(waitForPreview());
        history().undo();
        EXPECT_TRUE(records().empty()) << "one step";
    }
}

TEST_F(ShapeEditorTest, ThePhotoFollowsWhileTheEditorIsOpen) {
    edit(Act::AddShape, [this](QDialog& editor) {
        press(editor, "Transparency", Qt::Key_Home);
        pickColor(editor, "SolidColor", Qt::red);
        EXPECT_EQ(seen().pixelColor(100, 100), QColor(Qt::red));
        EXPECT_EQ(seen().pixel(300, 100), PhotoColor);
        type(editor, "Width", QStringLiteral("400"));
        EXPECT_EQ(seen().pixelColor(300, 100), QColor(Qt::red));
        pickColor(editor, "SolidColor", Qt::yellow, Qt::Key_Escape);
        EXPECT_EQ(seen().pixelColor(300, 100), QColor(Qt::red)) << "a cancelled colour";
    });
}

TEST_F(ShapeEditorTest, RevertTakesTheSessionBack) {
    edit(Act::AddShape, [this](QDialog& editor) {
        type(editor, "Width", QStringLiteral("90"));
        click(editor, "Revert");
        EXPECT_TRUE(records().empty());
        EXPECT_FALSE(control(editor, "Revert").isEnabled());
        EXPECT_TRUE(history().canRedo());
    });
    EXPECT_TRUE(records().empty());

    edit(Act::AddShape, [](QDialog& editor) { type(editor, "Width", QStringLiteral("90")); });
    const Watermark before = records()[0];
    edit(Act::EditWatermark, [this, &before](QDialog& editor) {
        type(editor, "Height", QStringLiteral("80"));
        click(editor, "Cell5");
        click(editor, "Revert");
        EXPECT_TRUE(records()[0] == before);
        type(editor, "Height", QStringLiteral("70"));
    });
    EXPECT_EQ(records()[0].Height, 70.0F);
    history().undo();
    EXPECT_TRUE(records()[0] == before);
}

TEST_F(ShapeEditorTest, LookingAtARecordChangesNothing) {
    Watermark odd = start();
    odd.Transparency = 0.333F;
    odd.Rotation = 1000;
    odd.ResizeWidthByPercent = true;
    odd.ResizeWidth = 0.12345F;
    odd.Height = 33.3F;
    odd.CustomPositionLeft = -5;
    odd.PaddingTop = 1'000'000'000;
    odd.SolidColor.reset();
    odd.GradeintType = 9;
    window.watermarks().AddNewWatermark(odd);
    window.watermarks().selectWatermark(0);
    const int steps = history().count();
    edit(
        Act::EditWatermark,
        [](QDialog& /*editor*/) {
            for (int i = 0; i < 40; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        },
        Qt::Key_Return);
    EXPECT_TRUE(records()[0] == odd);
    EXPECT_EQ(history().count(), steps);
}

}  // namespace
}  // namespace zelto
