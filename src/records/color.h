// SPDX-License-Identifier: GPL-3.0-or-later
// The colour every record carries. Reading and writing it as text is the persistence folder's work.
#pragma once

namespace zelto {

// An sRGB colour with straight (not premultiplied) alpha; each component lies between 0 and 1. Single
// precision is part of the contract: a colour that has been through a file compares equal to the one that was
// written.
struct Color {
    float Red = 0.0F;
    float Green = 0.0F;
    float Blue = 0.0F;
    float Alpha = 1.0F;

    bool operator==(const Color&) const = default;

    static constexpr Color black() { return {0.0F, 0.0F, 0.0F, 1.0F}; }
    static constexpr Color white() { return {1.0F, 1.0F, 1.0F, 1.0F}; }
};

}  // namespace zelto
