// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/filter_kernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "pictures/filter_kernels.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zelto {
namespace HWY_NAMESPACE {
namespace {

namespace hn = hwy::HWY_NAMESPACE;

using Floats = hn::ScalableTag<float>;
using Words = hn::RebindToUnsigned<Floats>;
using Integers = hn::RebindToSigned<Floats>;
using Float = hn::Vec<Floats>;
using Word = hn::Vec<Words>;

struct Rgb {
    Float red;
    Float green;
    Float blue;
};

HWY_INLINE Float all(float value) {
    return hn::Set(Floats(), value);
}

// The sRGB curve on 0..1. The powers are polynomials fitted for the least error of the encoded value (Remez
// exchange; in the fourth root for encoding): at worst 0.0004 of one level of 255, so that nearly every
// result is rounded as the exact one would be.
HWY_INLINE Float decoded(Float e) {
    Float power = all(-0.13711190F);
    for (const float coefficient : {0.61398678F, -1.18583718F, 1.33171701F, -1.04934047F, 0.91154879F,
                                    0.47842979F, 0.035759808F, 0.00084397250F}) {
        power = hn::MulAdd(power, e, all(coefficient));
    }
    return hn::IfThenElse(hn::Le(e, all(0.04045F)), hn::Mul(e, all(1.0F / 12.92F)), power);
}

HWY_INLINE Float encoded(Float linear) {
    const Float root = hn::Sqrt(hn::Sqrt(linear));
    Float power = all(0.068207981F);
    for (const float coefficient :
         {-0.31841600F, 0.65718830F, -0.85295746F, 1.36592105F, 0.13960414F, -0.059546609F}) {
        power = hn::MulAdd(power, root, all(coefficient));
    }
    return hn::IfThenElse(hn::Le(linear, all(0.0031308F)), hn::Mul(linear, all(12.92F)), power);
}

HWY_INLINE Float clamped(Float value) {
    return hn::Min(hn::Max(value, hn::Zero(Floats())), all(1.0F));
}

template <int Shift>
HWY_INLINE Float component(Word pixels) {
    const Word bits = hn::And(hn::ShiftRight<Shift>(pixels), hn::Set(Words(), 0xFFU));
    return hn::ConvertTo(Floats(), hn::BitCast(Integers(), bits));
}

// From 0..255 and not below, to the nearest whole number.
template <int Shift>
HWY_INLINE Word bits(Float level) {
    return hn::ShiftLeft<Shift>(hn::BitCast(Words(), hn::ConvertTo(Integers(), hn::Add(level, all(0.5F)))));
}

// Thousandths are summed as whole numbers, which single precision holds exactly; half a thousandth keeps the
// division from falling below a whole result.
HWY_INLINE Rgb sepia(const Rgb& levels) {
    const auto tone = [&levels](float red, float green, float blue) HWY_ATTR {
        const Float sum = hn::MulAdd(levels.red, all(red),
                                     hn::MulAdd(levels.green, all(green), hn::Mul(levels.blue, all(blue))));
        return hn::Min(hn::Floor(hn::MulAdd(sum, all(0.001F), all(0.0005F))), all(255.0F));
    };
    return {tone(393.0F, 769.0F, 189.0F), tone(349.0F, 686.0F, 168.0F), tone(272.0F, 534.0F, 131.0F)};
}

// What a place step gives: the factor of the colour, the share of the veil, and the resulting alpha.
struct Veil {
    Float factor;
    Float share;
    Float alpha;
};

// clamp(d * slope + start, 0, 1) for the pixels at x, x + 1, ... of row y.
class Distance {
  public:
    HWY_INLINE Distance(const FilterPlace& place, int y)
        : place_(place), down_((static_cast<float>(y) + 0.5F - place.centerY)), square_(down_ * down_) {}

    HWY_INLINE Float at(int x) const {
        const Float across = hn::Iota(Floats(), static_cast<float>(x) + 0.5F - place_.centerX);
        const Float distance = hn::Sqrt(hn::MulAdd(across, across, all(square_)));
        return clamped(hn::MulAdd(distance, all(place_.slope), all(place_.start)));
    }

    HWY_INLINE float intensity() const { return place_.intensity; }

  private:
    const FilterPlace& place_;
    const float down_;
    const float square_;
};

struct Nowhere {
    static constexpr bool Veils = false;
    HWY_INLINE static Veil at(const Distance&, int, Float alpha) {
        return {all(1.0F), hn::Zero(Floats()), alpha};
    }
};

struct Vignette {
    static constexpr bool Veils = false;
    HWY_INLINE static Veil at(const Distance& distance, int x, Float alpha) {
        const Float u = distance.at(x);
        const Float fall = hn::MulAdd(u, hn::MulAdd(u, all(6.0F), all(-15.0F)), all(10.0F));
        const Float shade = hn::Mul(hn::Mul(u, hn::Mul(u, u)), hn::Mul(fall, all(distance.intensity())));
        return {decoded(hn::Sub(all(1.0F), shade)), hn::Zero(Floats()), alpha};
    }
};

struct White {
    static constexpr bool Veils = true;
    HWY_INLINE static Veil at(const Distance& distance, int x, Float alpha) {
        const Float white = distance.at(x);
        const Float rest = hn::Mul(alpha, hn::Sub(all(1.0F), white));
        const Float both = hn::Add(white, rest);
        const Float scale = hn::IfThenElseZero(hn::Gt(both, hn::Zero(Floats())), hn::Div(all(1.0F), both));
        return {hn::Mul(rest, scale), hn::Mul(white, scale), both};
    }
};

// What one picture needs of the loop below; every combination in use is compiled on its own.
template <class PlaceStep, bool Sepia, bool Grey, bool Alpha>
struct Loop {
    HWY_INLINE static Float mapped(const FilterPass& pass, std::size_t channel, const Rgb& linear,
                                   const Veil& veil) {
        const auto& row = pass.matrix[channel];
        Float value = hn::MulAdd(linear.red, all(row[0]), all(pass.offset[channel]));
        value = hn::MulAdd(linear.green, all(row[1]), value);
        value = hn::MulAdd(linear.blue, all(row[2]), value);
        value = hn::MulAdd(value, veil.factor, all(pass.shift[channel]));
        if constexpr (PlaceStep::Veils) value = hn::MulAdd(veil.share, all(pass.veil[channel]), value);
        return encoded(clamped(value));
    }

    HWY_INLINE static Word filtered(const FilterPass& pass, const Distance& distance, int x, Word pixels) {
        Rgb color = {component<16>(pixels), component<8>(pixels), component<0>(pixels)};
        if constexpr (Sepia) color = sepia(color);
        Float alpha = all(1.0F);
        if constexpr (Alpha) {
            // Straight colours; above 1 only where a colour exceeded its alpha.
            const Float level = component<24>(pixels);
            const Float scale =
                hn::IfThenElseZero(hn::Gt(level, hn::Zero(Floats())), hn::Div(all(1.0F), level));
            const auto straight = [scale](Float c) HWY_ATTR { return hn::Min(hn::Mul(c, scale), all(1.0F)); };
            color = {straight(color.red), straight(color.green), straight(color.blue)};
            alpha = hn::Mul(level, all(1.0F / 255.0F));
        } else {
            const Float scale = all(1.0F / 255.0F);
            color = {hn::Mul(color.red, scale), hn::Mul(color.green, scale), hn::Mul(color.blue, scale)};
        }
        const Rgb linear = {decoded(color.red), decoded(color.green), decoded(color.blue)};
        const Veil veil = PlaceStep::at(distance, x, alpha);
        const Float scale = hn::Mul(veil.alpha, all(255.0F));
        const Float red = hn::Mul(mapped(pass, 0, linear, veil), scale);
        const Float green = Grey ? red : hn::Mul(mapped(pass, 1, linear, veil), scale);
        const Float blue = Grey ? red : hn::Mul(mapped(pass, 2, linear, veil), scale);
        const Word opaque = hn::Set(Words(), 0xFF00'0000U);
        const Word top = Alpha ? (PlaceStep::Veils ? bits<24>(scale) : hn::And(pixels, opaque)) : opaque;
        return hn::Or(hn::Or(top, bits<16>(red)), hn::Or(bits<8>(green), bits<0>(blue)));
    }

    static HWY_NOINLINE void run(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target,
                                 std::size_t count, int x, int y) {
        const Distance distance(pass.place, y);
        constexpr Words words;
        const std::size_t lanes = hn::Lanes(words);
        std::size_t i = 0;
        for (; i + lanes <= count; i += lanes) {
            const Word pixels = hn::LoadU(words, source + i);
            hn::StoreU(filtered(pass, distance, x + static_cast<int>(i), pixels), words, target + i);
        }
        if (i == count) return;
        HWY_ALIGN std::uint32_t rest[hn::MaxLanes(words)] = {};
        for (std::size_t j = i; j < count; ++j) rest[j - i] = source[j];
        hn::Store(filtered(pass, distance, x + static_cast<int>(i), hn::Load(words, rest)), words, rest);
        for (std::size_t j = i; j < count; ++j) target[j] = rest[j - i];
    }
};

template <class PlaceStep, bool Sepia, bool Grey>
void choose(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target, std::size_t count,
            int x, int y, bool hasAlpha) {
    hasAlpha ? Loop<PlaceStep, Sepia, Grey, true>::run(pass, source, target, count, x, y)
             : Loop<PlaceStep, Sepia, Grey, false>::run(pass, source, target, count, x, y);
}

void run(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target, std::size_t count, int x,
         int y, bool hasAlpha) {
    using Kind = FilterPlace::Kind;
    const auto with = pass.place.kind == Kind::WhiteGradient ? &choose<White, false, false>
                      : pass.place.kind == Kind::Vignette
                          ? (pass.grey ? &choose<Vignette, false, true> : &choose<Vignette, false, false>)
                      : pass.sepia ? &choose<Nowhere, true, false>
                      : pass.grey  ? &choose<Nowhere, false, true>
                                   : &choose<Nowhere, false, false>;
    with(pass, source, target, count, x, y, hasAlpha);
}

}  // namespace
}  // namespace HWY_NAMESPACE
}  // namespace zelto
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace zelto {

HWY_EXPORT(run);

namespace {

void lookUp(const ChannelTables& tables, const std::uint32_t* source, std::uint32_t* target,
            std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t pixel = source[i];
        target[i] = 0xFF00'0000U | tables.red[(pixel >> 16U) & 0xFFU] | tables.green[(pixel >> 8U) & 0xFFU] |
                    tables.blue[pixel & 0xFFU];
    }
}

}  // namespace

void filterPixels(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target,
                  std::size_t count, int x, int y, bool hasAlpha) {
    if (pass.tables && !hasAlpha) {
        lookUp(*pass.tables, source, target, count);
    } else {
        HWY_DYNAMIC_DISPATCH(run)(pass, source, target, count, x, y, hasAlpha);
    }
}

}  // namespace zelto
#endif
