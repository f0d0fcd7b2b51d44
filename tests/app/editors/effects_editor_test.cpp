// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/editor_test.h"
#include "app/editors/effect_rules.h"

#include <QCheckBox>

#include <functional>

namespace zelto {
namespace {

TEST(EffectRules, EverySetOfSidesHasADirection) {
    constexpr unsigned Top = 1;
    constexpr unsigned Left = 2;
    constexpr unsigned Right = 4;
    constexpr unsigned Bottom = 8;
    struct Row {
        unsigned sides;
        std::int64_t direction;
        bool isOneOfNine;  // the others count as one of the nine
    };
    constexpr Row Rows[] = {
        {Top | Left | Right | Bottom, 0, true},
        {Top | Right, 45, true},
        {Top, 90, true},
        {Top | Left, 135, true},
        {Left, 180, true},
        {Bottom | Left, 225, true},
        {Bottom, 270, true},
        {Bottom | Right, 315, true},
        {Right, 360, true},
        {0, 0, false},
        {Left | Right, 0, false},
        {Top | Bottom, 0, false},
        {Top | Left | Right, 90, false},
        {Top | Left | Bottom, 180, false},
        {Bottom | Left | Right, 270, false},
        {Top | Right | Bottom, 360, false},
    };
    for (const Row& row : Rows) {
        const auto has = [&row](unsigned side) { return (row.sides & side) != 0; };
        const ShadowSides sides{has(Top), has(Left), has(Right), has(Bottom)};
        PhotoEffects effects;
        setShadowSides(effects, sides);
        EXPECT_EQ(effects.Direction, row.direction) << row.sides;
        EXPECT_EQ(effects.EnableShadow, row.sides != 0) << row.sides;
        EXPECT_EQ(shadowSides(row.direction) == sides, row.isOneOfNine) << row.sides;
    }
    EXPECT_FALSE(shadowSides(30).any());
}

class EffectsEditorTest : public EditorTest {
  protected:
    const std::optional<PhotoEffects>& effects() { return window.watermarks().GetEffect(); }
};

TEST_F(EffectsEditorTest, EveryControlSetsItsFieldsAndNoOthers) {
    struct Row {
        const char* what;
        std::function<void(QWidget&)> drive;
        std::function<void(PhotoEffects&)> expected;
    };
    const Row rows[] = {
        {"nothing", [](QWidget&) {}, [](PhotoEffects&) {}},
        {"sides",
         [](QWidget& d) {
             type(d, "TopThickness", QStringLiteral("1"));
             type(d, "LeftThickness", QStringLiteral("2"));
             type(d, "RightThickness", QStringLiteral("3"));
             type(d, "BottomThickness", QStringLiteral("4"));
         },
         [](PhotoEffects& e) {
             e.TopThickness = 1;
             e.LeftThickness = 2;
             e.RightThickness = 3;
             e.BottomThickness = 4;
         }},
        {"the same for all",
         [](QWidget& d) {
             type(d, "LeftThickness", QStringLiteral("99"));
             click(d, "SameBorder");
             EXPECT_FALSE(control(d, "LeftThickness").isEnabled());
             type(d, "TopThickness", QStringLiteral("25"));
         },
         [](PhotoEffects& e) {
             e.SameBorder = true;
             e.TopThickness = e.LeftThickness = e.RightThickness = e.BottomThickness = 25;
         }},
        {"colours",
         [](QWidget& d) {
             pickColor(d, "BorderColor", Qt::red);
             pickColor(d, "ShadowColor", Qt::blue);
         },
         [](PhotoEffects& e) {
             e.BorderColor = Color{1.0F, 0.0F, 0.0F};
             e.ShadowColor = Color{0.0F, 0.0F, 1.0F};
         }},
        {"over the border", [](QWidget& d) { click(d, "ApplyWatermarkOnBorder"); },
         [](PhotoEffects& e) { e.ApplyWatermarkOnBorder = true; }},
        {"shadow",
         [](QWidget& d) {
             click(d, "ShadowTop");
             click(d, "ShadowLeft");
             type(d, "BlurRadius", QStringLiteral("8"));
             type(d, "Distance", QStringLiteral("6"));
         },
         [](PhotoEffects& e) {
             e.Direction = 315;
             e.BlurRadius = 8;
             e.Distance = 6;
         }},
        {"all sides again",
         [](QWidget& d) {
             for (const char* side : {"ShadowTop", "ShadowLeft", "ShadowRight"}) click(d, side);
             for (const char* side : {"ShadowRight", "ShadowLeft", "ShadowTop"}) click(d, side);
         },
         [](PhotoEffects&) {}},
        {"no side is no shadow",
         [](QWidget& d) {
             for (const char* side : {"ShadowTop", "ShadowLeft", "ShadowBottom", "ShadowRight"}) {
                 click(d, side);
             }
             EXPECT_FALSE(control(d, "ShadowRight").isEnabled());
         },
         [](PhotoEffects& e) { e.EnableShadow = false; }},
        {"no shadow for a while",
         [](QWidget& d) {
             click(d, "ShadowTop");
             click(d, "EnableShadow");
             click(d, "EnableShadow");
         },
         [](PhotoEffects& e) { e.Direction = 270; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        edit(Act::AddEffects, row.drive);
        PhotoEffects expected;
        row.expected(expected);
        EXPECT_TRUE(effects() == expected);
        EXPECT_TRUE(waitForPreview());
        history().undo();
        EXPECT_FALSE(effects().has_value()) << "one step";
    }
}

TEST_F(EffectsEditorTest, ThePhotoFollowsAndTheBorderCanBeTakenAway) {
    edit(Act::AddEffects, [this](QDialog& editor) {
        click(editor, "SameBorder");
        type(editor, "TopThickness", QStringLiteral("30"));
        pickColor(editor, "BorderColor", Qt::red);
        EXPECT_EQ(seen().pixelColor(29, 29), QColor(Qt::red));
        EXPECT_EQ(seen().pixel(30, 30), PhotoColor);
        click(editor, "IsOn");
        EXPECT_EQ(seen().pixel(0, 0), PhotoColor);
        EXPECT_FALSE(effects().has_value());
        EXPECT_FALSE(control(editor, "TopThickness").isEnabled());
        click(editor, "IsOn");
        EXPECT_EQ(effects()->LeftThickness, 30);
    });
    edit(Act::AddEffects, [this](QDialog& editor) {
        click(editor, "IsOn");
        click(editor, "Revert");
        EXPECT_EQ(effects()->LeftThickness, 30);
    });
}

}  // namespace
}  // namespace zelto
