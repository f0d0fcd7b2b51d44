// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/color_difference.h"

#include <QColor>

#include <lcms2.h>

#include <array>

namespace zelto {
namespace {

cmsCIELab labOf(QRgb color) {
    static const cmsHTRANSFORM transform = [] {
        const cmsHPROFILE srgb = cmsCreate_sRGBProfile();
        const cmsHPROFILE labProfile = cmsCreateLab4Profile(nullptr);
        const cmsHTRANSFORM made =
            cmsCreateTransform(srgb, TYPE_RGB_8, labProfile, TYPE_Lab_DBL, INTENT_RELATIVE_COLORIMETRIC,
                               cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE);
        cmsCloseProfile(srgb);
        cmsCloseProfile(labProfile);
        return made;
    }();
    const std::array<quint8, 3> bytes{static_cast<quint8>(qRed(color)), static_cast<quint8>(qGreen(color)),
                                      static_cast<quint8>(qBlue(color))};
    cmsCIELab lab{};
    cmsDoTransform(transform, bytes.data(), &lab, 1);
    return lab;
}

}  // namespace

double ciede2000(QRgb one, QRgb other) {
    const cmsCIELab a = labOf(one);
    const cmsCIELab b = labOf(other);
    return cmsCIE2000DeltaE(&a, &b, 1.0, 1.0, 1.0);
}

}  // namespace zelto
