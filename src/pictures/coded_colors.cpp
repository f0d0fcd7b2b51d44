// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/coded_colors.h"

#include "pictures/lcms.h"
#include "pictures/srgb_transfer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zelto {
namespace {

constexpr double PaperWhite = 203.0;  // cd/m², ITU-R BT.2408

// SMPTE ST 2084: cd/m² of a signal, as a part of paper white.
double pqLight(double signal) {
    constexpr double M1 = 0.1593017578125;
    constexpr double M2 = 78.84375;
    constexpr double C1 = 0.8359375;
    constexpr double C2 = 18.8515625;
    constexpr double C3 = 18.6875;
    constexpr double Peak = 10000.0;
    const double power = std::pow(signal, 1.0 / M2);
    return Peak / PaperWhite * std::pow(std::max(power - C1, 0.0) / (C2 - C3 * power), 1.0 / M1);
}

// ITU-R BT.2100, the scene's light, with the signal of paper white (0.75) as 1.
double hlgLight(double signal) {
    constexpr double A = 0.17883277;
    constexpr double B = 0.28466892;
    constexpr double C = 0.55991073;
    const auto scene = [](double v) { return v <= 0.5 ? v * v / 3.0 : (std::exp((v - C) / A) + B) / 12.0; };
    return scene(signal) / scene(0.75);
}

double lightOf(double signal, int transfer) {
    switch (transfer) {
        case 4:
            return std::pow(signal, 2.2);
        case 5:
            return std::pow(signal, 2.8);
        case 8:
            return signal;
        case 16:
            return pqLight(signal);
        case 17:
            return std::pow(signal, 2.6) * 52.37 / 48.0;
        case 18:
            return hlgLight(signal);
        default:
            return linearFromSrgb(signal);
    }
}

cmsCIExyY xyY(QPointF xy) {
    return {xy.x(), xy.y(), 1.0};
}

struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};

}  // namespace

QByteArray codedColorsProfile(const CodedPrimaries& primaries, int transfer) {
    const LcmsMemory memory;
    std::array<float, 4096> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double signal = static_cast<double>(i) / static_cast<double>(table.size() - 1);
        table[i] = static_cast<float>(std::clamp(lightOf(signal, transfer), 0.0, 1.0));
    }
    const std::unique_ptr<cmsToneCurve, FreeCurve> curve(
        cmsBuildTabulatedToneCurveFloat(nullptr, static_cast<cmsUInt32Number>(table.size()), table.data()));
    cmsToneCurve* const curves[] = {curve.get(), curve.get(), curve.get()};
    const cmsCIExyY white = xyY(primaries.white);
    const cmsCIExyYTRIPLE rgb{xyY(primaries.red), xyY(primaries.green), xyY(primaries.blue)};
    const Profile profile(curve ? cmsCreateRGBProfile(&white, &rgb, curves) : nullptr);
    cmsUInt32Number size = 0;
    QByteArray bytes;
    if (profile && cmsSaveProfileToMem(profile.get(), nullptr, &size)) {
        bytes.resize(size);
        if (!cmsSaveProfileToMem(profile.get(), bytes.data(), &size)) bytes.clear();
    }
    memory.check();
    return bytes;
}

}  // namespace zelto
