// SPDX-License-Identifier: GPL-3.0-or-later
// A quick way through the profiles that nearly all photos have: grey ones, and RGB ones of three curves and a matrix,
// such as Adobe RGB and Display P3. They are additive: the light of a colour is the sum of the lights of its components.
// One table for each component holds what its values contribute, and one more turns sums into sRGB bytes, so a pixel
// takes three vector loads and two additions. All figures come from lcms2. The tables are used only where samples from
// all over the colour space come within one level of lcms2's exact results; about 2 % of pixels are that one level off.
#pragma once

#include <QImage>

#include <lcms2.h>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace zelto {

class AdditiveTransform {
  public:
    // What the pixels to convert are made of: 32-bit BGRX, or 64-bit RGBX of 16 bits a component.
    enum class Depth { Bits8, Bits16 };

    // Nothing where `profile` is not additive.
    static std::optional<AdditiveTransform> make(cmsHPROFILE profile, Depth depth);

    // Writes red, green and blue of every pixel of `target` (32 bits per pixel), whose fourth byte stays. Pixels of 8
    // bits may be converted in place. Any thread.
    void apply(const uchar* source, qsizetype stride, QImage& target) const;

    // One colour, components from 0 to 255.
    QRgb converted(QRgb color) const;

  private:
    // Linear sRGB light, red, green, blue, and a fourth part that makes it one vector.
    struct alignas(16) Light {
        std::array<std::int32_t, 4> parts{};
    };
    using Contributions = std::vector<Light>;  // by the component's value

    explicit AdditiveTransform(Depth depth);
    bool fill(cmsHPROFILE profile);
    bool agreesWith(cmsHPROFILE profile) const;
    QRgb encodedSum(const Light& red, const Light& green, const Light& blue) const;

    Depth depth_;
    Contributions red_;  // includes the light of black and the offset into encoded_
    Contributions green_;
    Contributions blue_;
    std::vector<uchar> encoded_;
};

}  // namespace zelto
