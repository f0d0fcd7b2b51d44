// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

class ShapeEditorTest : public EditorTest {
  protected:
    static Watermark start() { return WatermarkController::startingWatermark(watermark_type::Shape); }
};

TEST_F(ShapeEditorTest, EveryControlSetsItsFieldsAndNoOthers) {
    using W = Watermark;
    const auto polygon = [](W& w) { w.ShapeType = shape_type::Polygon, w.Sides = 3; };
    checkControls(
        start(),
        {
            clicked("Ellipse", &W::ShapeType, shape_type::Ellipse),
            pressed("Rectangle", Qt::Key_Right, &W::ShapeType, shape_type::Ellipse),
            {"polygon", [](QWidget& d) { click(d, "Polygon"); }, polygon},
            {"no sides",
             [](QWidget& d) {
                 click(d, "Polygon"), type(d, "Sides", u"5"_s), type(d, "Sides", {}),
                     press(d, "Sides", Qt::Key_Tab);
             },
             polygon},
            typed("Width", u"150"_s, &W::Width, 150.0F),
            {"the same height as a share", [](QWidget& d) { choose(d, "Height", 1); },
             [](W& w) { w.ResizeHeightByPercent = true, w.ResizeHeight = 0.5F; }},
            {"width as a share and back",
             [](QWidget& d) { choose(d, "Width", 1), type(d, "Width", u"25"_s), choose(d, "Width", 0); },
             [](W& w) { w.ResizeWidth = 0.25F, w.Width = 150.0F; }},
            {"colour", [](QWidget& d) { pickColor(d, "SolidColor", QColor(255, 0, 0, 51)); },
             set(&W::SolidColor, Color{1.0F, 0.0F, 0.0F, 0.2F})},
            {"gradient",
             [](QWidget& d) {
                 click(d, "Gradient"), choose(d, "GradeintType", 4);
                 pickColor(d, "FirstColor", Qt::blue), pickColor(d, "SecondColor", Qt::red);
             },
             [](W& w) {
                 w.SolidBackground = false, w.GradeintType = 5;
                 w.FirstColor = Color{0.0F, 0.0F, 1.0F}, w.SecondColor = Color{1.0F, 0.0F, 0.0F};
             }},
            clicked("Cell9", &W::Position, 9),
            typed("Rotation", u"-30"_s, &W::Rotation, -30),
        });
}

TEST_F(ShapeEditorTest, ThePhotoFollowsWhileTheEditorIsOpen) {
    edit(Act::AddShape, [this](QWidget& editor) {
        press(editor, "Transparency", Qt::Key_Home);
        pickColor(editor, "SolidColor", Qt::red);
        EXPECT_EQ(seen().pixelColor(580, 380), QColor(Qt::red)) << "it starts in the corner";
        EXPECT_EQ(seen().pixel(300, 380), PhotoColor);
        type(editor, "Width", u"70"_s);
        EXPECT_EQ(seen().pixelColor(300, 380), QColor(Qt::red));
        pickColor(editor, "SolidColor", Qt::yellow, Qt::Key_Escape);
        EXPECT_EQ(seen().pixelColor(300, 380), QColor(Qt::red)) << "a cancelled colour";
    });
}

TEST_F(ShapeEditorTest, RevertTakesTheVisitBackAndNothingElse) {
    edit(Act::AddShape, [](QWidget& editor) { type(editor, "Width", u"90"_s); });
    const Watermark before = record();
    editRecord(0, [this, &before](QWidget& editor) {
        EXPECT_FALSE(control(window.inspector(), "Revert").isEnabled());
        type(editor, "Height", u"80"_s);
        click(editor, "Cell5");
        click(window.inspector(), "Revert");
        EXPECT_TRUE(record() == before);
        EXPECT_FALSE(control(window.inspector(), "Revert").isEnabled());
        type(editor, "Height", u"80"_s);
        window.photos().AddImages({makeLogo()});
        click(window.inspector(), "Revert");
        EXPECT_TRUE(record() == before);
        EXPECT_EQ(window.photos().count(), 2) << "what was done elsewhere meanwhile";
        history().undo();
        history().undo();
        history().undo();
        type(editor, "Height", u"70"_s);
    });
    EXPECT_EQ(record().ResizeHeight, 0.7F);
    history().undo();
    EXPECT_TRUE(record() == before);
}

}  // namespace
}  // namespace zelto
