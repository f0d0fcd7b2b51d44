// SPDX-License-Identifier: GPL-3.0-or-later
// Colour treatments of a whole picture as chains of standard filter steps. The steps work on linear-light
// sRGB, in floating point, on straight (un-premultiplied) colours and without a clamp between them; the
// result is clamped to 0..1, encoded and rounded once, at the end of the chain. A chain is fused before it
// runs: every picture is read once and written once, however many steps there are. Which photo filter is
// which chain is for the caller to know.
#pragma once

#include <QImage>

#include <array>
#include <optional>
#include <variant>
#include <vector>

namespace zelto {

// Saturation about the luma 0.2125 r + 0.7154 g + 0.0721 b, then contrast about one half, then brightness.
struct ColorControls {
    double contrast = 1.0;
    double brightness = 0.0;
    double saturation = 1.0;
};

// Each output channel as a weighted sum of the input's red, green and blue: the cross polynomial with its
// weights of squares and products at 0, which is all that is asked of it.
struct CrossPolynomial {
    std::array<double, 3> red = {1.0, 0.0, 0.0};
    std::array<double, 3> green = {0.0, 1.0, 0.0};
    std::array<double, 3> blue = {0.0, 0.0, 1.0};
};

using ColorStep = std::variant<ColorControls, CrossPolynomial>;

// Darkens away from the centre: untouched there, half-way down at a distance of half the picture's width, and
// at 1 - intensity of the encoded value (about) from twice that distance on.
struct VignetteEffect {
    double intensity = 0.0;
};

// A white radial gradient laid over the picture (source-over, so a transparent picture gains alpha under it).
// It is clear up to `innerRadius` heights from the centre, opaque from `outerRadius` widths on, its alpha
// linear between; where the inner radius reaches the outer one it is opaque outside the inner radius.
struct WhiteGradientOver {
    double innerRadius = 0.0;
    double outerRadius = 1.0;
};

using PlaceStep = std::variant<VignetteEffect, WhiteGradientOver>;

// The steps in their order. At most one of them depends on the place in the picture, which is what lets a
// chain be fused into one pass.
struct FilterChain {
    bool sepia =
        false;  // the sepia tone on the encoded, premultiplied 8-bit values, each cut to a whole number
    std::vector<ColorStep> before = {};
    std::optional<PlaceStep> place = std::nullopt;
    std::vector<ColorStep> after = {};
};

// `picture` (sRGB; RGB32 or premultiplied ARGB32, others are converted to one of them) treated by `chain`.
// Alpha is kept, but for WhiteGradientOver. Move the picture in: where nobody shares it, it is changed in
// place. Null where memory does not suffice. Any thread; the work is spread over the cores.
QImage applyFilterChain(QImage picture, const FilterChain& chain);

}  // namespace zelto
