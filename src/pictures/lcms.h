// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of lcms2's objects, and how to know why it failed.
#pragma once

#include <lcms2.h>

#include <memory>
#include <new>

namespace zelto {

// lcms2 fails in the same way for a broken profile, which is ignored, and for want of memory, which may not be. One of
// these, made before, tells the two apart.
class LcmsMemory {
  public:
    LcmsMemory();
    // Throws std::bad_alloc where lcms2 has run out of memory on this thread since this was made.
    void check() const;
};

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

// An RGB profile of the D65 white that sRGB and its relatives share. Throws std::bad_alloc.
inline Profile rgbProfile(const cmsCIExyYTRIPLE& primaries, double gamma) {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    cmsToneCurve* curve = cmsBuildGamma(nullptr, gamma);
    if (curve == nullptr) throw std::bad_alloc();
    cmsToneCurve* const curves[] = {curve, curve, curve};
    Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
    cmsFreeToneCurve(curve);
    if (!profile) throw std::bad_alloc();
    return profile;
}

// Throws std::bad_alloc.
inline Profile srgbProfile() {
    Profile profile(cmsCreate_sRGBProfile());
    if (!profile) throw std::bad_alloc();
    return profile;
}

}  // namespace zelto
