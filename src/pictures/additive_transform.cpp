// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/additive_transform.h"

#include "pictures/lcms.h"
#include "pictures/parallel_rows.h"
#include "pictures/srgb_transfer.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

namespace zelto {
namespace {

// 16-bit components are looked up by their upper 12 bits: a thirtieth of a level of the 8-bit result.
constexpr std::size_t Levels8 = 1 << 8;
constexpr std::size_t Levels16 = 1 << 12;
// Of encoded_, from no light to full light: a fifth of a level of the result in the darkest tones.
constexpr int TableSteps = 1 << 14;
constexpr int FractionBits = 8;  // of a sum, below a step of encoded_
constexpr double UnitLight = double{TableSteps} * (1 << FractionBits);

// No colour has more, in parts of white's: a profile that says so is broken, and its numbers may fit no integer.
constexpr double MostLight = 4.0;

using LightValues = std::array<double, 3>;

std::size_t levelOf8(int value, std::size_t levels) {
    return (static_cast<std::size_t>(value) * (levels - 1) + 127) / 255;
}

std::size_t levelOf16(quint16 value) {
    return static_cast<std::size_t>(value - (value >> 12) + 8) >> 4;
}

std::int32_t fixedPoint(double light) {
    return static_cast<std::int32_t>(std::lround(light * UnitLight));
}

// A colour's components into linear sRGB light, which may be negative.
class ToLight {
  public:
    explicit ToLight(cmsHPROFILE profile) : isGrey_(cmsGetColorSpace(profile) == cmsSigGrayData) {
        const Profile linear = rgbProfile(SrgbPrimaries, 1.0);
        transform_.reset(cmsCreateTransform(profile, isGrey_ ? TYPE_GRAY_DBL : TYPE_RGB_DBL, linear.get(),
                                            TYPE_RGB_DBL, INTENT_PERCEPTUAL,
                                            cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
    }
    bool isValid() const { return transform_ != nullptr; }
    std::size_t components() const { return isGrey_ ? 1 : 3; }

    LightValues operator()(const LightValues& color) const {
        LightValues light{};
        cmsDoTransform(transform_.get(), color.data(), light.data(), 1);
        return light;
    }

  private:
    bool isGrey_;
    TransformHandle transform_;
};

}  // namespace

AdditiveTransform::AdditiveTransform(Depth depth) : depth_(depth) {
    for (Contributions* table : {&red_, &green_, &blue_})
        table->resize(depth == Depth::Bits8 ? Levels8 : Levels16);
}

std::optional<AdditiveTransform> AdditiveTransform::make(cmsHPROFILE profile, Depth depth) {
    AdditiveTransform tables(depth);
    if (cmsIsMatrixShaper(profile) == 0 || !tables.fill(profile) || !tables.agreesWith(profile))
        return std::nullopt;
    return tables;
}

bool AdditiveTransform::fill(cmsHPROFILE profile) {
    const ToLight lightOf(profile);
    if (!lightOf.isValid()) return false;
    const LightValues black = lightOf({});
    for (const double part : black) {
        if (!(std::abs(part) < MostLight)) return false;
    }
    LightValues lowest = black;
    LightValues highest = black;
    const std::array<Contributions*, 3> tables{&red_, &green_, &blue_};
    for (std::size_t component = 0; component < lightOf.components(); ++component) {
        Contributions& table = *tables[component];
        LightValues least{};
        LightValues most{};
        for (std::size_t level = 0; level < table.size(); ++level) {
            LightValues color{};
            color[component] = static_cast<double>(level) / static_cast<double>(table.size() - 1);
            const LightValues light = lightOf(color);
            for (std::size_t part = 0; part < 3; ++part) {
                const double share = light[part] - black[part];
                if (!(std::abs(share) < MostLight)) return false;
                table[level].parts[part] = fixedPoint(share);
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
    for (int step = first; step <= last; ++step) {
        const double light = std::clamp((step + 0.5) / TableSteps, 0.0, 1.0);
        encoded_.push_back(static_cast<uchar>(std::lround(srgbFromLinear(light) * 255.0)));
    }
    for (Light& light : red_) {
        for (std::size_t part = 0; part < 3; ++part) {
            light.parts[part] += fixedPoint(black[part]) - first * (1 << FractionBits);
        }
    }
    return true;
}

bool AdditiveTransform::agreesWith(cmsHPROFILE profile) const {
    const bool isGrey = cmsGetColorSpace(profile) == cmsSigGrayData;
    const Profile srgb = srgbProfile();
    const TransformHandle exact(cmsCreateTransform(profile, isGrey ? GreyInBgrx8 : TYPE_BGRA_8, srgb.get(),
                                                   TYPE_BGRA_8, INTENT_PERCEPTUAL,
                                                   cmsFLAGS_NOCACHE | cmsFLAGS_NOOPTIMIZE));
    if (!exact) return false;
    const auto agrees = [&](QRgb color) {
        const QRgb mine = converted(color);
        QRgb theirs = 0;
        cmsDoTransform(exact.get(), &color, &theirs, 1);
        return std::abs(qRed(mine) - qRed(theirs)) <= 1 && std::abs(qGreen(mine) - qGreen(theirs)) <= 1 &&
               std::abs(qBlue(mine) - qBlue(theirs)) <= 1;
    };
    constexpr int Step = 17;
    for (int red = 0; red <= 255; red += Step) {
        for (int green = 0; green <= 255; green += Step) {
            for (int blue = 0; blue <= 255; blue += Step) {
                if (!agrees(isGrey ? qRgb(red, red, red) : qRgb(red, green, blue))) return false;
            }
        }
    }
    return true;
}

inline QRgb AdditiveTransform::encodedSum(const Light& red, const Light& green, const Light& blue) const {
    std::array<std::int32_t, 4> sums;
    for (std::size_t i = 0; i < 4; ++i)
        sums[i] = (red.parts[i] + green.parts[i] + blue.parts[i]) >> FractionBits;
    const uchar* encoded = encoded_.data();
    return QRgb{encoded[sums[0]]} << 16 | QRgb{encoded[sums[1]]} << 8 | encoded[sums[2]];
}

QRgb AdditiveTransform::converted(QRgb color) const {
    const std::size_t levels = red_.size();
    return encodedSum(red_[levelOf8(qRed(color), levels)], green_[levelOf8(qGreen(color), levels)],
                      blue_[levelOf8(qBlue(color), levels)]);
}

void AdditiveTransform::apply(const uchar* source, qsizetype stride, QImage& target) const {
    uchar* bits = target.bits();
    const qsizetype targetStride = target.bytesPerLine();
    const auto width = static_cast<std::size_t>(target.width());
    const Light* red = red_.data();
    const Light* green = green_.data();
    const Light* blue = blue_.data();
    parallelRows(target.height(), target.width(), [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            const std::span out(reinterpret_cast<QRgb*>(bits + targetStride * y), width);
            if (depth_ == Depth::Bits8) {
                const auto* in = reinterpret_cast<const QRgb*>(source + stride * y);
                for (QRgb& pixel : out) {
                    const QRgb color = *in++;
                    pixel =
                        (pixel & 0xFF000000U) |
                        encodedSum(red[(color >> 16) & 0xFF], green[(color >> 8) & 0xFF], blue[color & 0xFF]);
                }
            } else {
                const auto* in = reinterpret_cast<const quint16*>(source + stride * y);
                for (QRgb& pixel : out) {
                    pixel = (pixel & 0xFF000000U) | encodedSum(red[levelOf16(in[0])], green[levelOf16(in[1])],
                                                               blue[levelOf16(in[2])]);
                    in += 4;
                }
            }
        }
    });
}

}  // namespace zelto
