// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of lcms2's objects.
#pragma once

#include <lcms2.h>

#include <memory>

namespace zelto {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, CloseProfile>;
using TransformHandle = std::unique_ptr<void, DeleteTransform>;

// Grey as the first component of 32-bit BGRX or 64-bit RGBX pixels whose three are equal.
inline constexpr cmsUInt32Number GreyInBgrx8 =
    COLORSPACE_SH(PT_GRAY) | CHANNELS_SH(1) | EXTRA_SH(3) | BYTES_SH(1);
inline constexpr cmsUInt32Number GreyInRgbx16 =
    COLORSPACE_SH(PT_GRAY) | CHANNELS_SH(1) | EXTRA_SH(3) | BYTES_SH(2);

inline constexpr cmsCIExyYTRIPLE SrgbPrimaries{{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
inline constexpr cmsCIExyYTRIPLE AdobeRgbPrimaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};

// An RGB profile of the D65 white that sRGB and its relatives share.
inline Profile rgbProfile(const cmsCIExyYTRIPLE& primaries, double gamma) {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    cmsToneCurve* const curves[] = {curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(curve);
    return profile;
}

}  // namespace zelto
