// SPDX-License-Identifier: GPL-3.0-or-later
// What the controls of the effects editor do to its record. Pure functions of records; no widgets.
#pragma once

#include "records/length_field.h"

#include <QSizeF>

#include <cstdint>

namespace zelto {

// The sides of the photo on which its shadow is seen.
struct ShadowSides {
    bool top = false;
    bool left = false;
    bool right = false;
    bool bottom = false;

    bool any() const { return top || left || right || bottom; }
    bool operator==(const ShadowSides&) const = default;
};

// `PhotoEffects::Direction` for a choice of sides; opposite sides outweigh each other.
std::int64_t shadowDirection(const ShadowSides& sides);

// The sides a direction stands for; none for a number that is not a direction.
ShadowSides shadowSides(std::int64_t direction);

// Chooses the sides; a shadow on no side is switched off.
void setShadowSides(PhotoEffects& effects, const ShadowSides& sides);

// A border that can be seen on every photo; `photo` is the one it is begun on, in pixels, and may be empty.
PhotoEffects startingEffects(QSizeF photo);

// Whether one width holds for all sides. Switched on, that is the width of the top.
void setSameBorder(PhotoEffects& effects, bool same);
// The width of one side, or of all where they are the same; `share` where it follows the photo.
void setThickness(PhotoEffects& effects, const length_field::EffectLength& side, std::int64_t pixels,
                  std::optional<float> share);

}  // namespace zelto
