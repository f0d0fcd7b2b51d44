// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"
#include "app/editors/effect_rules.h"

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

TEST(EffectRules, EverySetOfSidesHasADirection) {
    struct Row {
        const char* sides;
        std::int64_t direction;
        bool isOneOfNine;  // the others count as one of the nine
    };
    constexpr Row Rows[] = {
        {"TLRB", 0, true},  {"TR", 45, true},    {"T", 90, true},     {"TL", 135, true},
        {"L", 180, true},   {"BL", 225, true},   {"B", 270, true},    {"BR", 315, true},
        {"R", 360, true},   {"", 0, false},      {"LR", 0, false},    {"TB", 0, false},
        {"TLR", 90, false}, {"TLB", 180, false}, {"BLR", 270, false}, {"TRB", 360, false},
    };
    for (const Row& row : Rows) {
        const auto has = [&row](char side) { return QLatin1String(row.sides).contains(QLatin1Char(side)); };
        const ShadowSides sides{.top = has('T'), .left = has('L'), .right = has('R'), .bottom = has('B')};
        PhotoEffects effects;
        setShadowSides(effects, sides);
        EXPECT_EQ(effects.Direction, row.direction) << row.sides;
        EXPECT_EQ(effects.EnableShadow, *row.sides != '\0') << row.sides;
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
        Drive drive;
        std::function<void(PhotoEffects&)> expected;
    };
    const Row rows[] = {
        {"nothing", [](QWidget&) {}, [](PhotoEffects&) {}},
        {"sides",
         [](QWidget& d) {
             type(d, "TopThickness", u"1"_s), type(d, "LeftThickness", u"2"_s);
             type(d, "RightThickness", u"3"_s), type(d, "BottomThickness", u"4"_s);
         },
         [](PhotoEffects& e) {
             e.TopThickness = 1, e.LeftThickness = 2, e.RightThickness = 3, e.BottomThickness = 4;
         }},
        {"shares of the photo, which is 600 x 400",
         [](QWidget& d) {
             choose(d, "BorderUnit", 1);
             type(d, "TopThickness", u"5"_s);
             EXPECT_TRUE(says(d, u"= 20 px"_s));
             choose(d, "ShadowUnit", 1);
             type(d, "Distance", u"1.5"_s);
         },
         [](PhotoEffects& e) {
             e.LeftThicknessShare = e.RightThicknessShare = e.BottomThicknessShare = 0.025F;
             e.TopThickness = 20, e.TopThicknessShare = 0.05F;
             e.Distance = 6, e.DistanceShare = 0.015F, e.BlurRadiusShare = 0.0F;
         }},
        {"the same for all",
         [](QWidget& d) {
             type(d, "LeftThickness", u"99"_s);
             click(d, "SameBorder");
             EXPECT_FALSE(control(d, "LeftThickness").isEnabled());
             type(d, "TopThickness", u"25"_s);
         },
         [](PhotoEffects& e) {
             e.SameBorder = true;
             e.TopThickness = e.LeftThickness = e.RightThickness = e.BottomThickness = 25;
         }},
        {"colours",
         [](QWidget& d) { pickColor(d, "BorderColor", Qt::red), pickColor(d, "ShadowColor", Qt::blue); },
         [](PhotoEffects& e) {
             e.BorderColor = Color{1.0F, 0.0F, 0.0F};
             e.ShadowColor = Color{0.0F, 0.0F, 1.0F};
         }},
        {"over the border", [](QWidget& d) { click(d, "ApplyWatermarkOnBorder"); },
         [](PhotoEffects& e) { e.ApplyWatermarkOnBorder = true; }},
        {"shadow",
         [](QWidget& d) {
             click(d, "ShadowTop"), click(d, "ShadowLeft");
             type(d, "BlurRadius", u"8"_s), type(d, "Distance", u"6"_s);
         },
         [](PhotoEffects& e) { e.Direction = 315, e.BlurRadius = 8, e.Distance = 6; }},
        {"all sides again",
         [](QWidget& d) {
             for (const char* side : {"ShadowTop", "ShadowLeft", "ShadowRight"}) click(d, side);
             for (const char* side : {"ShadowRight", "ShadowLeft", "ShadowTop"}) click(d, side);
         },
         [](PhotoEffects&) {}},
        {"no side is no shadow",
         [](QWidget& d) {
             for (const char* side : {"ShadowTop", "ShadowLeft", "ShadowBottom", "ShadowRight"})
                 click(d, side);
             EXPECT_FALSE(control(d, "ShadowRight").isEnabled());
         },
         [](PhotoEffects& e) { e.EnableShadow = false; }},
        {"no shadow for a while",
         [](QWidget& d) { click(d, "ShadowTop"), click(d, "EnableShadow"), click(d, "EnableShadow"); },
         [](PhotoEffects& e) { e.Direction = 270; }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const int before = history().index();
        window.watermarks().AddEffects(PhotoEffects());
        edit(Act::AddEffects, row.drive);
        PhotoEffects expected;
        row.expected(expected);
        EXPECT_TRUE(effects() == expected);
        EXPECT_TRUE(waitForPreview());
        history().setIndex(before);
    }
}

TEST_F(EffectsEditorTest, ThePhotoFollowsAndTheBorderCanBeTakenAway) {
    edit(Act::AddEffects, [this](QWidget& editor) {
        type(editor, "TopThickness", u"10"_s);
        EXPECT_EQ(*effects()->LeftThicknessShare, 0.02F);
    });
    history().undo();
    EXPECT_FALSE(effects().has_value()) << "one step";
    window.watermarks().AddEffects(PhotoEffects());
    edit(Act::AddEffects, [this](QWidget& editor) {
        click(editor, "SameBorder");
        type(editor, "TopThickness", u"30"_s);
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
    edit(Act::AddEffects, [this](QWidget& editor) {
        click(editor, "IsOn");
        click(window.inspector(), "Revert");
        EXPECT_EQ(effects()->LeftThickness, 30);
    });
}

}  // namespace
}  // namespace zelto
