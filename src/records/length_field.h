// SPDX-License-Identifier: GPL-3.0-or-later
// Lengths that a record holds in photo pixels and, if the user wants that, also as a share of the photo's shorter side
// (1 = the whole side). Where there is a share it counts. The pixels beside it are then what it came to on the photo it
// was chosen on: versions of the program that know no shares go by them.
#pragma once

#include "records/photo_effects.h"
#include "records/watermark.h"

#include <array>
#include <cstdint>
#include <optional>

namespace zelto {

template <class Record>
struct LengthField {
    std::int64_t Record::*Pixels;
    std::optional<float> Record::*Share;
};

namespace length_field {

using WatermarkLength = LengthField<Watermark>;
inline constexpr WatermarkLength PaddingLeft{&Watermark::PaddingLeft, &Watermark::PaddingLeftShare};
inline constexpr WatermarkLength PaddingTop{&Watermark::PaddingTop, &Watermark::PaddingTopShare};
inline constexpr WatermarkLength PaddingRight{&Watermark::PaddingRight, &Watermark::PaddingRightShare};
inline constexpr WatermarkLength PaddingBottom{&Watermark::PaddingBottom, &Watermark::PaddingBottomShare};
inline constexpr WatermarkLength HorizontalSpacing{&Watermark::HorizontalSpacing,
                                                   &Watermark::HorizontalSpacingShare};
inline constexpr WatermarkLength VerticalSpacing{&Watermark::VerticalSpacing,
                                                 &Watermark::VerticalSpacingShare};
inline constexpr std::array Paddings = {PaddingLeft, PaddingTop, PaddingRight, PaddingBottom};
inline constexpr std::array Spacings = {HorizontalSpacing, VerticalSpacing};

using EffectLength = LengthField<PhotoEffects>;
inline constexpr EffectLength TopThickness{&PhotoEffects::TopThickness, &PhotoEffects::TopThicknessShare};
inline constexpr EffectLength LeftThickness{&PhotoEffects::LeftThickness, &PhotoEffects::LeftThicknessShare};
inline constexpr EffectLength RightThickness{&PhotoEffects::RightThickness,
                                             &PhotoEffects::RightThicknessShare};
inline constexpr EffectLength BottomThickness{&PhotoEffects::BottomThickness,
                                              &PhotoEffects::BottomThicknessShare};
inline constexpr EffectLength BlurRadius{&PhotoEffects::BlurRadius, &PhotoEffects::BlurRadiusShare};
inline constexpr EffectLength Distance{&PhotoEffects::Distance, &PhotoEffects::DistanceShare};
inline constexpr std::array Thicknesses = {TopThickness, LeftThickness, RightThickness, BottomThickness};
inline constexpr std::array ShadowLengths = {BlurRadius, Distance};

}  // namespace length_field
}  // namespace zelto
