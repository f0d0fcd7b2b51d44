// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/additive_transform.h"

#include "platform/lcms.h"
#include "platform/srgb_transfer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace zelto {
namespace {

constexpr int TableSteps =
    1 << 14;  // between no light and full light: a fifth of a byte's level in the darkest tones
constexpr int FractionBits = 8;  // of a sum, below a step of the table
constexpr double UnitLight = double{TableSteps} * (1 << FractionBits);

using LightValues = std::array<double, 3>;

}  // namespace

std::optional<AdditiveTransform> AdditiveTransform::standIn(cmsHPROFILE profile, cmsHTRANSFORM transform) {
    AdditiveTransform tables;
    if (cmsIsMatrixShaper(profile) == 0 || !tables.fill(profile) || !tables.agreesWith(transform))
        return std::nullopt;
    return tables;
}

bool AdditiveTransform::fill(cmsHPROFILE profile) {
    const cmsCIExyYTRIPLE srgbPrimaries{{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
    const Profile linear = rgbProfile(srgbPrimaries, 1.0);
    const TransformHandle toLight(cmsCreateTransform(profile, TYPE_RGB_DBL, linear.get(), TYPE_RGB_DBL,
                                                     INTENT_PERCEPTUAL,
                                                     cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
    if (!toLight) return false;
    const auto lightOf = [&](const LightValues& color) {
        LightValues light{};
        cmsDoTransform(toLight.get(), color.data(), light.data(), 1);
        return light;
    };

    const LightValues black = lightOf({0.0, 0.0, 0.0});
    LightValues lowest = black;
    LightValues highest = black;
    std::array<Contributions*, 3> tables{&red_, &green_, &blue_};
    for (std::size_t component = 0; component < 3; ++component) {
        LightValues least{};
        LightValues most{};
        for (std::size_t value = 0; value < 256; ++value) {
            LightValues color{};
            color[component] = static_cast<double>(value) / 255.0;
            const LightValues light = lightOf(color);
            for (std::size_t part = 0; part < 3; ++part) {
                const double share = light[part] - black[part];
                if (!(std::abs(share) < 4.0)) return false;  // no colour of this world
                (*tables[component])[value].parts[part] =
                    static_cast<std::int32_t>(std::lround(share * UnitLight));
                least[part] = std::min(least[part], share);
                most[part] = std::max(most[part], share);
            }
        }
        for (std::size_t part = 0; part < 3; ++part) {
            lowest[part] += least[part];
            highest[part] += most[part];
        }
    }

    // The table reaches as far as any sum does, so that no sum has to be clamped.
    const auto first = static_cast<int>(std::floor(std::ranges::min(lowest) * TableSteps)) - 2;
    const auto last = static_cast<int>(std::ceil(std::ranges::max(highest) * TableSteps)) + 2;
    encoded_.reserve(static_cast<std::size_t>(last - first + 1));
    for (int step = first; step <= last; ++step) {
        const double light = std::clamp((step + 0.5) / TableSteps, 0.0, 1.0);
        encoded_.push_back(static_cast<uchar>(std::lround(srgbFromLinear(light) * 255.0)));
    }
    for (Light& light : red_) {
        for (std::size_t part = 0; part < 3; ++part) {
            light.parts[part] +=
                static_cast<std::int32_t>(std::lround(black[part] * UnitLight)) - first * (1 << FractionBits);
        }
    }
    return true;
}

QRgb AdditiveTransform::converted(QRgb pixel) const {
    const Light& red = red_[(pixel >> 16) & 0xFF];
    const Light& green = green_[(pixel >> 8) & 0xFF];
    const Light& blue = blue_[pixel & 0xFF];
    std::array<std::int32_t, 4> sums;
    for (std::size_t i = 0; i < 4; ++i)
        sums[i] = (red.parts[i] + green.parts[i] + blue.parts[i]) >> FractionBits;
    const uchar* encoded = encoded_.data();
    return (pixel & 0xFF000000U) | QRgb{encoded[sums[0]]} << 16 | QRgb{encoded[sums[1]]} << 8 |
           encoded[sums[2]];
}

bool AdditiveTransform::agreesWith(cmsHTRANSFORM transform) const {
    constexpr int Step = 15;
    for (int red = 0; red <= 255; red += Step) {
        for (int green = 0; green <= 255; green += Step) {
            for (int blue = 0; blue <= 255; blue += Step) {
                const QRgb color = qRgb(red, green, blue);
                const QRgb mine = converted(color);
                QRgb theirs = 0xFF000000U;
                cmsDoTransform(transform, &color, &theirs, 1);
                if (std::abs(qRed(mine) - qRed(theirs)) > 1 || std::abs(qGreen(mine) - qGreen(theirs)) > 1 ||
                    std::abs(qBlue(mine) - qBlue(theirs)) > 1) {
                    return false;
                }
            }
        }
    }
    return true;
}

void AdditiveTransform::apply(QImage& picture) const {
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::transform(line, line + picture.width(), line, [this](QRgb pixel) { return converted(pixel); });
    }
}

}  // namespace zelto
