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
