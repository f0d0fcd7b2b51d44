// SPDX-License-Identifier: GPL-3.0-or-later
// Photo filters, borders and shadows on a picture of 24 megapixels, each also in plain copies of the same
// picture, which are the yardstick. The filters work in place, as they do on a photo that has just been read.
#include "render/photo_effects.h"
#include "render/photo_filters.h"

#include <QImage>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
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

template <class Work>
double secondsTaken(Work work) {
    const auto start = std::chrono::steady_clock::now();
    const QImage result = work();
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    benchmark::DoNotOptimize(result.constBits());
    return taken.count();
}

double copySeconds() {
    static const double median = [] {
        std::array<double, 9> seconds{};
        for (double& one : seconds) one = secondsTaken([] { return photo().copy(); });
        std::ranges::sort(seconds);
        return seconds[seconds.size() / 2];
    }();
    return median;
}

// `work` on a copy of its own, which is not timed.
template <class Work>
void inCopies(benchmark::State& state, const QImage& original, Work work) {
    const double copy = copySeconds();
    double total = 0.0;
    for (auto _ : state) {
        QImage picture = original.copy();
        const double seconds = secondsTaken([&] { return work(std::move(picture)); });
        state.SetIterationTime(seconds);
        total += seconds;
    }
    state.counters["copies"] = total / static_cast<double>(state.iterations()) / copy;
}

void plainCopy(benchmark::State& state) {
    inCopies(state, photo(), [](const QImage& picture) { return picture.copy(); });
}

void filterInPlace(benchmark::State& state, const QImage& original) {
    const int number = static_cast<int>(state.range(0));
    state.SetLabel(GetFilterName(number).toStdString());
    inCopies(state, original, [=](QImage picture) { return ApplyFilter(number, std::move(picture)); });
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
    inCopies(state, original, [&](QImage picture) {
        QRect image;
        QRect border;
        return imagewithEffects(std::move(picture), effects, image, border, true);
    });
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

BENCHMARK(plainCopy)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filter)->Apply(filterNumbers)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(filterWithAlpha)->Arg(1)->Arg(8)->Arg(11)->Arg(13)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(border)->Arg(0)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(shadow)->Arg(10)->Arg(50)->Arg(200)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(shadowWithAlpha)->Arg(10)->Arg(50)->Arg(200)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zelto
