// SPDX-License-Identifier: GPL-3.0-or-later
// Photo filters, borders and shadows on a picture of 24 megapixels, beside a plain copy of the same picture
// as the yardstick. The filters work in place, as they do on a photo that has just been read.
#include "render/photo_effects.h"
#include "render/photo_filters.h"

#include <QImage>

#include <benchmark/benchmark.h>

#include <random>

namespace zelto {
namespace {

constexpr QSize TwentyFourMegapixels(6000, 4000);

// Grain on a slope: no run of pixels is alike. With alpha, every fourth block of columns is half transparent.
QImage grainyPicture(bool withAlpha) {
    QImage picture(TwentyFourMegapixels,
                   withAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    std::minstd_rand random;
    for (int y = 0; y < picture.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const auto grain = static_cast<int>(random() >> 24U);
            const int alpha = withAlpha && x / 64 % 4 == 0 ? 128 : 255;
            row[x] = qPremultiply(qRgba((x / 24 + grain) & 255, (y / 16 + grain) & 255, grain, alpha));
        }
    }
    return picture;
}

const QImage& photo() {
    static const QImage picture = grainyPicture(false);
    return picture;
}

const QImage& photoWithAlpha() {
    static const QImage picture = grainyPicture(true);
    return picture;
}

void plainCopy(benchmark::State& state) {
    const QImage& original = photo();
    for (auto _ : state) {
        QImage copy = original.copy();
        benchmark::DoNotOptimize(copy.constBits());
    }
}

void filterInPlace(benchmark::State& state, const QImage& original) {
    const int number = static_cast<int>(state.range(0));
    state.SetLabel(GetFilterName(number).toStdString());
    for (auto _ : state) {
        state.PauseTiming();
        QImage picture = original.copy();
        state.ResumeTiming();
        picture = ApplyFilter(number, std::move(picture));
        benchmark::DoNotOptimize(picture.constBits());
        state.PauseTiming();
        picture = QImage();
        state.ResumeTiming();
    }
}

void filter(benchmark::State& state) {
    filterInPlace(state, photo());
}
void filterWithAlpha(benchmark::State& state) {
    filterInPlace(state, photoWithAlpha());
}

void effect(benchmark::State& state, const QImage& original, int thickness) {
    PhotoEffects effects;
    effects.LeftThickness = effects.TopThickness = effects.RightThickness = effects.BottomThickness =
        thickness;
    effects.BlurRadius = state.range(0);
    effects.Distance = 20;
    effects.Direction = 315;
    effects.EnableShadow = effects.BlurRadius > 0;
    for (auto _ : state) {
        QRect image;
        QRect border;
        QImage picture = imagewithEffects(original, effects, image, border, true);
        benchmark::DoNotOptimize(picture.constBits());
    }
}

void border(benchmark::State& state) {
    effect(state, photo(), 100);
}
void shadow(benchmark::State& state) {
    effect(state, photo(), 100);
}
void shadowWithAlpha(benchmark::State& state) {
    effect(state, photoWithAlpha(), 0);
}

void filterNumbers(benchmark::internal::Benchmark* benchmark) {
    for (int number = 1; number <= 13; ++number) {
        if (GetFilterName(number) != QStringLiteral("None")) benchmark->Arg(number);
    }
}

BENCHMARK(plainCopy)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Apply(filterNumbers)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filterWithAlpha)->Arg(1)->Arg(8)->Arg(11)->Arg(13)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(border)->Arg(0)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(shadow)->Arg(10)->Arg(50)->Arg(200)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(shadowWithAlpha)->Arg(10)->Arg(50)->Arg(200)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zelto
