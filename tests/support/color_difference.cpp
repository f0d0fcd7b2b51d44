// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/color_difference.h"

#include <QColor>

#include <lcms2.h>

#include <array>

namespace zelto {
namespace {

cmsCIELab labOf(QRgb color) {
    static const cmsHTRANSFORM transform =
        cmsCreateTransform(cmsCreate_sRGBProfile(), TYPE_RGB_8, cmsCreateLab4Profile(nullptr), TYPE_Lab_DBL,
                           INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE | cmsFLAGS_NOCACHE);
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
