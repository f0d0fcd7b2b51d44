// SPDX-License-Identifier: GPL-3.0-or-later
// A quick way through the profiles that nearly all photos have (Adobe RGB, Display P3 and every other one of
// three curves and a matrix). Such a profile is additive: the light of a colour is the sum of the lights of
// its components. So three tables of what each component's 256 values contribute, and one that turns the sums
// into sRGB bytes, convert a pixel with three vector loads and two additions. All figures come from lcms2,
// and a table is only used where its results agree with lcms2's.
#pragma once

#include <QImage>

#include <lcms2.h>

#include <array>
#include <optional>
#include <vector>

namespace zelto {

class AdditiveTransform {
  public:
    // `transform` is the conversion to stand in for, TYPE_BGRA_8 to sRGB in TYPE_BGRA_8. Nothing where
    // `profile` is not additive.
    static std::optional<AdditiveTransform> standIn(cmsHPROFILE profile, cmsHTRANSFORM transform);

    // Converts RGB32 or unpremultiplied ARGB32 in place. Any thread.
    void apply(QImage& picture) const;

  private:
    AdditiveTransform() = default;
    bool fill(cmsHPROFILE profile);
    bool agreesWith(cmsHTRANSFORM transform) const;
    QRgb converted(QRgb pixel) const;

    // Linear sRGB light, red, green, blue and an unused fourth that makes it one vector.
    struct alignas(16) Light {
        std::array<std::int32_t, 4> parts{};
    };
    using Contributions = std::array<Light, 256>;

    Contributions red_{};  // includes the light of black and the offset into encoded_
    Contributions green_{};
    Contributions blue_{};
    std::vector<uchar> encoded_;
};

}  // namespace zelto
