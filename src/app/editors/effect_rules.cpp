// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/effect_rules.h"

#include "render/lengths.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelto {
namespace {

struct DirectionRow {
    int right;  // 1 to the right, -1 to the left
    int up;
    std::int64_t direction;
    ShadowSides sides;
};
// Right alone is a whole turn: 0 means all sides.
constexpr std::array Directions = {
    DirectionRow{0, 0, 0, {.top = true, .left = true, .right = true, .bottom = true}},
    DirectionRow{1, 1, 45, {.top = true, .right = true}},
    DirectionRow{0, 1, 90, {.top = true}},
    DirectionRow{-1, 1, 135, {.top = true, .left = true}},
    DirectionRow{-1, 0, 180, {.left = true}},
    DirectionRow{-1, -1, 225, {.left = true, .bottom = true}},
    DirectionRow{0, -1, 270, {.bottom = true}},
    DirectionRow{1, -1, 315, {.right = true, .bottom = true}},
    DirectionRow{1, 0, 360, {.right = true}},
};

}  // namespace

std::int64_t shadowDirection(const ShadowSides& sides) {
    const int right = static_cast<int>(sides.right) - static_cast<int>(sides.left);
    const int up = static_cast<int>(sides.top) - static_cast<int>(sides.bottom);
    for (const DirectionRow& row : Directions) {
        if (row.right == right && row.up == up) return row.direction;
    }
    return 0;
}

ShadowSides shadowSides(std::int64_t direction) {
    for (const DirectionRow& row : Directions) {
        if (row.direction == direction) return row.sides;
    }
    return {};
}

void setShadowSides(PhotoEffects& effects, const ShadowSides& sides) {
    effects.Direction = shadowDirection(sides);
    effects.EnableShadow = sides.any();
}

PhotoEffects startingEffects(QSizeF photo) {
    constexpr float BorderShare = 0.02F;
    PhotoEffects effects;
    for (const length_field::EffectLength& side : length_field::Thicknesses) {
        effects.*side.Share = BorderShare;
        if (!photo.isEmpty())
            effects.*side.Pixels =
                std::llround(relativeLength(BorderShare, std::min(photo.width(), photo.height())));
    }
    return effects;
}

void setSameBorder(PhotoEffects& effects, bool same) {
    effects.SameBorder = same;
    if (same)
        setThickness(effects, length_field::TopThickness, effects.TopThickness, effects.TopThicknessShare);
}

void setThickness(PhotoEffects& effects, const length_field::EffectLength& side, std::int64_t pixels,
                  std::optional<float> share) {
    const auto set = [&](const length_field::EffectLength& field) {
        effects.*field.Pixels = pixels;
        effects.*field.Share = share;
    };
    set(side);
    if (!effects.SameBorder) return;
    for (const length_field::EffectLength& field : length_field::Thicknesses) set(field);
}

}  // namespace zelto
