// SPDX-License-Identifier: GPL-3.0-or-later
// What a resampling filter is worth and what it costs: the candidates' distance from an ideal filter on a
// zone plate and on a scene, what they leave of detail that the new size cannot hold, how far they overshoot
// beside an edge, and their time on a 24-megapixel photo. docs/resampling.md holds the table and what was
// made of it.
#include "pictures/resample.h"
#include "support/test_pictures.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

namespace {

using namespace zelto;

// One channel of a picture, in levels of 0 to 255.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<double> values;

    double& at(int x, int y) {
        return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
    double at(int x, int y) const { return const_cast<Plane*>(this)->at(x, y); }
};

Plane planeOf(int width, int height, const std::function<double(int, int)>& value) {
    Plane plane{width, height,
                std::vector<double>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) plane.at(x, y) = value(x, y);
    }
    return plane;
}

Plane greenOf(const QImage& picture) {
    return planeOf(picture.width(), picture.height(),
                   [&](int x, int y) { return qGreen(picture.pixel(x, y)); });
}

QImage greyPicture(const Plane& plane) {
    QImage picture(plane.width, plane.height, QImage::Format_RGB32);
    for (int y = 0; y < plane.height; ++y) {
        for (int x = 0; x < plane.width; ++x) {
            const int grey = static_cast<int>(std::lround(plane.at(x, y)));
            picture.setPixel(x, y, qRgb(grey, grey, grey));
        }
    }
    return picture;
}

// Resampling as the formula has it, in double precision.
Plane exactlyResampled(const Plane& plane, QSize size, const ResampleFilter& filter) {
    const auto alongRows = [&filter](const Plane& from, int newWidth) {
        const double ratio = static_cast<double>(from.width) / newWidth;
        const double widening = std::max(1.0, ratio);
        Plane to{
            from.height, newWidth,
            std::vector<double>(static_cast<std::size_t>(from.height) * static_cast<std::size_t>(newWidth))};
        std::vector<double> weights;
        for (int x = 0; x < newWidth; ++x) {
            const double centre = (x + 0.5) * ratio - 0.5;
            const int first = std::max(0, static_cast<int>(std::ceil(centre - filter.radius * widening)));
            const int end =
                std::min(from.width, static_cast<int>(std::floor(centre + filter.radius * widening)) + 1);
            weights.clear();
            double sum = 0.0;
            for (int k = first; k < end; ++k)
                sum += weights.emplace_back(filter.weight((k - centre) / widening));
            for (int y = 0; y < from.height; ++y) {
                double value = 0.0;
                for (int k = first; k < end; ++k)
                    value += weights[static_cast<std::size_t>(k - first)] * from.at(k, y);
                to.at(y, x) = value / sum;  // turned over, so that the second pass turns it back
            }
        }
        return to;
    };
    return alongRows(alongRows(plane, size.width()), size.height());
}

double sinc(double x) {
    const double angle = std::numbers::pi * x;
    return x == 0.0 ? 1.0 : std::sin(angle) / angle;
}

double lanczos(double x, double lobes) {
    return std::abs(x) < lobes ? sinc(x) * sinc(x / lobes) : 0.0;
}

// The two-parameter cubics of Mitchell and Netravali, "Reconstruction Filters in Computer Graphics" (1988).
double cubic(double x, double b, double c) {
    const double t = std::abs(x);
    if (t < 1.0) return ((12 - 9 * b - 6 * c) * t * t * t + (-18 + 12 * b + 6 * c) * t * t + (6 - 2 * b)) / 6;
    if (t < 2.0)
        return ((-b - 6 * c) * t * t * t + (6 * b + 30 * c) * t * t + (-12 * b - 48 * c) * t +
                (8 * b + 24 * c)) /
               6;
    return 0.0;
}

// The sinc that a filter of bounded width can only come near to: 32 lobes, ended gently.
const ResampleFilter Ideal = {32.0, [](double x) { return lanczos(x, 32.0); }};

struct Candidate {
    const char* name;
    ResampleFilter filter;  // without a weight: Qt's smooth scaling
};

const std::array Candidates = {
    Candidate{"Qt smooth", {0.0, nullptr}},
    Candidate{"box", {0.5, [](double x) { return x >= -0.5 && x < 0.5 ? 1.0 : 0.0; }}},
    Candidate{"triangle", {1.0, [](double x) { return std::max(0.0, 1.0 - std::abs(x)); }}},
    Candidate{"Mitchell", {2.0, [](double x) { return cubic(x, 1.0 / 3.0, 1.0 / 3.0); }}},
    Candidate{"Catmull-Rom", {2.0, [](double x) { return cubic(x, 0.0, 0.5); }}},
    Candidate{"Lanczos-2", {2.0, [](double x) { return lanczos(x, 2.0); }}},
    Candidate{"Lanczos-3", Lanczos3},
    Candidate{"Lanczos-4", {4.0, [](double x) { return lanczos(x, 4.0); }}},
};

QImage resized(const Candidate& candidate, const QImage& picture, QSize size) {
    if (candidate.filter.weight == nullptr) {
        return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return resizedImage(picture, size, candidate.filter);
}

// Rings that grow finer outwards, up to the finest that pixels can hold at the middle of the sides.
Plane zonePlate(int side) {
    return planeOf(side, side, [side](int x, int y) {
        const double dx = x - side / 2.0;
        const double dy = y - side / 2.0;
        return 127.5 + 127.5 * std::cos(std::numbers::pi * (dx * dx + dy * dy) / side);
    });
}

double rms(const std::vector<double>& differences) {
    double sum = 0.0;
    for (const double difference : differences) sum += difference * difference;
    return std::sqrt(sum / static_cast<double>(differences.size()));
}

// Away from the borders, where there is no agreed continuation of a picture.
double errorAgainstIdeal(const Candidate& candidate, const Plane& plane, QSize size) {
    const Plane ideal = exactlyResampled(plane, size, Ideal);
    const Plane result = greenOf(resized(candidate, greyPicture(plane), size));
    std::vector<double> differences;
    for (int y = size.height() / 16; y < size.height() * 15 / 16; ++y) {
        for (int x = size.width() / 16; x < size.width() * 15 / 16; ++x) {
            differences.push_back(result.at(x, y) - std::clamp(ideal.at(x, y), 0.0, 255.0));
        }
    }
    return rms(differences);
}

// What is left of rings well beyond what half the size can hold, where an even grey should be.
double aliasing(const Candidate& candidate) {
    constexpr int Side = 1024;
    const Plane result = greenOf(resized(candidate, greyPicture(zonePlate(Side)), QSize(Side / 2, Side / 2)));
    std::vector<double> differences;
    for (int y = 0; y < Side / 2; ++y) {
        for (int x = 0; x < Side / 2; ++x) {
            // In parts of the finest ring frequency along each axis; a half is the new size's limit.
            const double fx = std::abs(x - Side / 4) / (Side / 4.0);
            const double fy = std::abs(y - Side / 4) / (Side / 4.0);
            if (std::max(fx, fy) > 0.65 && std::max(fx, fy) < 0.95)
                differences.push_back(result.at(x, y) - 127.5);
        }
    }
    return rms(differences);
}

struct Overshoot {
    double dark;
    double light;
};

// Levels beyond the two greys of an upright edge, at half and at double size the worse.
Overshoot overshoot(const std::function<Plane(const Plane&, QSize)>& resize) {
    const Plane edge = planeOf(128, 8, [](int x, int) { return x < 64 ? 64.0 : 192.0; });
    Overshoot worst{0.0, 0.0};
    for (const QSize size : {QSize(64, 8), QSize(61, 8), QSize(256, 8)}) {
        const Plane result = resize(edge, size);
        const auto [low, high] = std::minmax_element(result.values.begin(), result.values.end());
        worst = {std::max(worst.dark, 64.0 - *low), std::max(worst.light, *high - 192.0)};
    }
    return worst;
}

double linearFromEncoded(double level) {
    const double c = level / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double encodedFromLinear(double value) {
    const double c = std::clamp(value, 0.0, 1.0);
    return 255.0 * (c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1 / 2.4) - 0.055);
}

Plane resizedInLinearLight(Plane plane, QSize size) {
    for (double& value : plane.values) value = linearFromEncoded(value);
    Plane result = exactlyResampled(plane, size, Lanczos3);
    for (double& value : result.values) value = encodedFromLinear(value);
    return result;
}

void quality(benchmark::State& state, const Candidate& candidate) {
    const Plane scene = greenOf(drawnScene({1536, 1024}));
    const Plane zone = zonePlate(1024);
    for (auto _ : state) {
        state.counters["zone 1:2"] = errorAgainstIdeal(candidate, zone, {512, 512});
        state.counters["scene 1:2"] = errorAgainstIdeal(candidate, scene, {768, 512});
        state.counters["scene 1:3.75"] = errorAgainstIdeal(candidate, scene, {410, 273});
        state.counters["scene 2:1"] = errorAgainstIdeal(candidate, scene, {3072, 2048});
    }
    state.counters["aliasing"] = aliasing(candidate);
    const Overshoot edge = overshoot([&](const Plane& plane, QSize size) {
        return greenOf(resized(candidate, greyPicture(plane), size));
    });
    state.counters["dark side"] = edge.dark;
    state.counters["light side"] = edge.light;
}

void linearLightQuality(benchmark::State& state) {
    Overshoot edge{};
    for (auto _ : state) edge = overshoot(resizedInLinearLight);
    state.counters["dark side"] = edge.dark;
    state.counters["light side"] = edge.light;
}

void speed(benchmark::State& state, const Candidate& candidate, QSize from, QSize to, bool alpha) {
    const QImage picture = alpha ? drawnSceneWithAlpha(from) : drawnScene(from);
    for (auto _ : state) benchmark::DoNotOptimize(resized(candidate, picture, to).constBits());
}

struct Task {
    const char* name;
    QSize from, to;
    bool alpha;
};

const std::array Tasks = {
    Task{"24 to 6 megapixels", {6000, 4000}, {3000, 2000}, false},
    Task{"24 megapixels to 1600 pixels", {6000, 4000}, {1600, 1067}, false},
    Task{"6 to 24 megapixels", {3000, 2000}, {6000, 4000}, false},
    Task{"24 to 6 megapixels with alpha", {6000, 4000}, {3000, 2000}, true},
};

const bool registered = [] {
    const auto name = [](const std::string& kind, const char* what) { return kind + "/" + what; };
    for (const Candidate& candidate : Candidates) {
        benchmark::RegisterBenchmark(name("resample quality", candidate.name).c_str(), quality, candidate)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("resample quality/Lanczos-3 in linear light", linearLightQuality)
        ->Iterations(1);
    for (const Task& task : Tasks) {
        for (const Candidate& candidate : Candidates) {
            benchmark::RegisterBenchmark((name("resample", task.name) + "/" + candidate.name).c_str(), speed,
                                         candidate, task.from, task.to, task.alpha)
                ->MeasureProcessCPUTime()
                ->UseRealTime()
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}();

}  // namespace
