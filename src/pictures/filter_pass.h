// SPDX-License-Identifier: GPL-3.0-or-later
// A filter chain boiled down to what one pass computes for a pixel. With x its straight linear colour, and m
// and k what the chain's place step gives where it lies (1 and 0 without such a step), the linear result is
//     m * (matrix * x + offset) + k * veil + shift
// The vignette gives its factor as m; the white gradient of alpha a gives m = 1 - a and k = a, which is
// source-over.
#pragma once

#include "pictures/image_filters.h"

#include <QSize>

#include <array>
#include <cstdint>
#include <optional>

namespace zelto {

// Both place steps depend on the distance d from the picture's centre through clamp(d * slope + start, 0, 1).
struct FilterPlace {
    enum class Kind { Nowhere, Vignette, WhiteGradient };
    Kind kind = Kind::Nowhere;
    float centerX = 0.0F;  // pixels, from the left
    float centerY = 0.0F;  // pixels, from the top
    float slope = 0.0F;
    float start = 0.0F;
    float intensity = 0.0F;  // of the vignette
};

// The results of a pass in which no channel depends on another or on the place, for the 256 values of each
// channel of an opaque pixel and shifted to where the pixel holds it.
struct ChannelTables {
    std::array<std::uint32_t, 256> red;
    std::array<std::uint32_t, 256> green;
    std::array<std::uint32_t, 256> blue;
};

struct FilterPass {
    bool sepia = false;
    std::array<std::array<float, 3>, 3> matrix;
    std::array<float, 3> offset;
    std::array<float, 3> veil;
    std::array<float, 3> shift;
    FilterPlace place;
    bool grey = false;  // the three results are one value
    std::optional<ChannelTables> tables;
};

// The pass of `chain` over a picture of `size` pixels.
FilterPass fuse(const FilterChain& chain, QSize size);

}  // namespace zelto
