// SPDX-License-Identifier: GPL-3.0-or-later
// The border and the shadow put around a whole photo. Lengths are photo pixels.
#pragma once

#include "records/color.h"

#include <cstdint>
#include <optional>

namespace zelto {

struct PhotoEffects {
    std::int64_t TopThickness = 10;
    std::int64_t LeftThickness = 10;
    std::int64_t RightThickness = 10;
    std::int64_t BottomThickness = 10;
    std::optional<Color> BorderColor = Color::black();
    std::optional<Color> ShadowColor = Color::black();
    std::int64_t BlurRadius = 0;
    std::int64_t Distance = 0;
    // Where the shadow falls, degrees counter-clockwise from the right: 0 is an even glow on all sides and
    // 360 the right side alone; 45, 90, ... 315 as usual.
    std::int64_t Direction = 0;
    bool SameBorder = false;
    bool ApplyWatermarkOnBorder = false;
    bool EnableShadow = true;
    // The lengths above as shares; see length_field.h.
    std::optional<float> TopThicknessShare;
    std::optional<float> LeftThicknessShare;
    std::optional<float> RightThicknessShare;
    std::optional<float> BottomThicknessShare;
    std::optional<float> BlurRadiusShare;
    std::optional<float> DistanceShare;

    bool operator==(const PhotoEffects&) const = default;
};

}  // namespace zelto
