// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_filters.h"

#include "support/ink.h"
#include "support/instruction_sets.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace zelto {
namespace {

// The filters once more, one plain step after the other in double precision, as slow and obvious as can be.
using Linear = std::array<double, 3>;

struct Spot {
    Linear color;  // straight, linear light
    double alpha;
    double x;  // from the picture's centre
    double y;
    QSize size;
};

using Step = std::function<void(Spot&)>;

double decode(double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}
double encode(double c) {
    return c <= 0.0031308 ? c * 12.92 : 1.055 * std::pow(c, 1 / 2.4) - 0.055;
}

Step controls(double contrast, double brightness, double saturation) {
    return [=](Spot& s) {
        const double luma = 0.2125 * s.color[0] + 0.7154 * s.color[1] + 0.0721 * s.color[2];
        for (double& c : s.color) c = (luma + (c - luma) * saturation - 0.5) * contrast + 0.5 + brightness;
    };
}

Step weights(Linear red, Linear green, Linear blue) {
    return [=](Spot& s) {
        const Linear in = s.color;
        const auto sum = [&](const Linear& w) { return w[0] * in[0] + w[1] * in[1] + w[2] * in[2]; };
        s.color = {sum(red), sum(green), sum(blue)};
    };
}

Step gains(double r, double g, double b) {
    return weights({r, 0, 0}, {0, g, 0}, {0, 0, b});
}

void vignette(Spot& s) {
    const double t = std::hypot(s.x, s.y) / (s.size.width() * 0.5);
    const double u = std::clamp(t / 2, 0.0, 1.0);
    const double fall = 6 * std::pow(u, 5) - 15 * std::pow(u, 4) + 10 * std::pow(u, 3);
    for (double& c : s.color) c *= decode(1 - 0.8 * fall);
}

void whiteGradient(Spot& s) {
    const double inner = 0.6 * s.size.height();
    const double outer = s.size.width();
    const double d = std::hypot(s.x, s.y);
    const double white = d <= inner ? 0 : inner >= outer ? 1 : std::min((d - inner) / (outer - inner), 1.0);
    const double alpha = white + s.alpha * (1 - white);
    for (double& c : s.color) c = alpha > 0 ? (white + c * s.alpha * (1 - white)) / alpha : 0;
    s.alpha = alpha;
}

QRgb sepia(QRgb p) {
    const auto part = [p](int r, int g, int b) {
        return std::min((r * qRed(p) + g * qGreen(p) + b * qBlue(p)) / 1000, 255);
    };
    return qRgba(part(393, 769, 189), part(349, 686, 168), part(272, 534, 131), qAlpha(p));
}

struct Expected {
    int number;
    std::vector<Step> steps;  // of filter 11 those behind the sepia
};

std::vector<Expected> references() {
    const Step grey = controls(1, 0, 0);
    const Step matrix = weights({0, 0.5, 0}, {1, 1, 1}, {0, 0.5, 0});
    return {{1, {gains(4, 1, 4)}},
            {2, {gains(3.5, 3.5, 3.5), controls(1, 0.08, 1.08)}},
            {3, {gains(3.5, 3.4, 3.4), grey, vignette}},
            {4, {controls(1, 0.03, 0.99)}},
            {5, {gains(3.5, 3.5, 3.5)}},
            {6, {matrix, matrix}},
            {7, {gains(4.5, 4.5, 4.5), grey, vignette}},
            {8, {grey}},
            {9, {whiteGradient, controls(1.04, 0, 1)}},
            {11, {controls(1.025, 0, 1)}},
            {12, {vignette}},
            {13, {whiteGradient}}};
}

QRgb expectedPixel(const Expected& filter, QRgb pixel, QPoint at, QSize size) {
    if (filter.number == 11) pixel = sepia(pixel);
    const double alpha = qAlpha(pixel) / 255.0;
    const auto light = [&](int v) { return alpha > 0 ? decode(std::min(v / 255.0 / alpha, 1.0)) : 0.0; };
    Spot s{{light(qRed(pixel)), light(qGreen(pixel)), light(qBlue(pixel))},
           alpha,
           at.x() + 0.5 - size.width() / 2.0,
           at.y() + 0.5 - size.height() / 2.0,
           size};
    for (const Step& step : filter.steps) step(s);
    const auto byte = [&](double c) { return qRound(255 * s.alpha * encode(std::clamp(c, 0.0, 1.0))); };
    return qRgba(byte(s.color[0]), byte(s.color[1]), byte(s.color[2]), qRound(255 * s.alpha));
}

// Colours and, where asked for, alphas of every kind: the dark end of the curve, full channels, greys, clear
// pixels, in an order that mixes opaque and half-transparent neighbours.
QImage palette(QSize size, bool withAlpha) {
    static constexpr int Levels[] = {0, 1, 7, 11, 64, 128, 200, 254, 255};
    static constexpr int Alphas[] = {255, 255, 128, 0, 3, 254};
    const auto format = withAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return pictureOf(size, format, [=](int x, int y) {
        const int i = y * size.width() + x;
        const int alpha = withAlpha ? Alphas[(x / 5 + y) % 6] : 255;
        return qPremultiply(qRgba(Levels[i % 9], Levels[i / 9 % 9], Levels[i / 81 % 9], alpha));
    });
}

TEST(PhotoFilters, AgreeWithTheSlowReferenceWithinOneLevel) {
    // Landscape, wide, and so narrow that the white circles meet; no width is a whole number of vectors.
    for (const QSize size : {QSize(67, 41), QSize(1061, 7), QSize(23, 150)}) {
        for (const bool withAlpha : {false, true}) {
            const QImage original = palette(size, withAlpha);
            const QImage values = storedValues(original);
            for (const Expected& filter : references()) {
                const QImage expected = pictureOf(size, original.format(), [&](int x, int y) {
                    return expectedPixel(filter, values.pixel(x, y), {x, y}, size);
                });
                forEachInstructionSet([&] {
                    SCOPED_TRACE(::testing::Message()
                                 << filter.number << ' ' << withAlpha << ' ' << size.width());
                    const QImage picture = ApplyFilter(filter.number, original);
                    ASSERT_EQ(picture.format(), expected.format());
                    EXPECT_LE(largestDifference(storedValues(picture), storedValues(expected)), 1);
                    int unequal = 0;  // hardly any pixel is off at all
                    for (int y = 0; y < size.height(); ++y) {
                        for (int x = 0; x < size.width(); ++x)
                            unequal += picture.pixel(x, y) != expected.pixel(x, y);
                    }
                    EXPECT_LE(unequal, size.width() * size.height() / 200);
                });
            }
        }
    }
}

TEST(PhotoFilters, NumbersWithoutAnOperationLeaveThePictureAlone) {
    const QImage original = palette({9, 5}, true);
    for (const int number : {-1, 0, 10, 14}) {
        EXPECT_EQ(GetFilterName(number), QStringLiteral("None"));
        EXPECT_EQ(ApplyFilter(number, original), original);
    }
    EXPECT_EQ(GetFilterName(13), QStringLiteral("Haze"));
}

TEST(PhotoFilters, ChangeAPictureInPlaceOnlyWhereNobodySharesIt) {
    QImage owned = palette({40, 30}, true);
    const QImage shared = owned.copy();
    const QImage before = shared.copy();
    const uchar* const pixels = owned.constBits();
    const QImage moved = ApplyFilter(12, std::move(owned));
    EXPECT_EQ(moved.constBits(), pixels);
    EXPECT_EQ(ApplyFilter(12, shared), moved);
    EXPECT_EQ(shared, before);
}

}  // namespace
}  // namespace zelto
