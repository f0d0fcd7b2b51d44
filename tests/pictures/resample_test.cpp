// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/resample.h"

#include "support/ink.h"
#include "support/instruction_sets.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace zelto {
namespace {

constexpr double Pi = std::numbers::pi;

// Grey pictures of a function of a pixel's centre, in levels.
QImage grey(QSize size, const std::function<double(double, double)>& level) {
    return pictureOf(size, QImage::Format_RGB32, [&](int x, int y) {
        const int value = static_cast<int>(std::lround(level(x + 0.5, y + 0.5)));
        return qRgb(value, value, value);
    });
}

TEST(ResizedImage, NothingToDoIsNoCopyAndNoSizeIsNoPicture) {
    const QImage picture = grey({8, 4}, [](double x, double) { return x; });
    EXPECT_EQ(resizedImage(picture, {8, 4}).constBits(), picture.constBits());
    for (const QSize size : {QSize(0, 4), QSize(8, 0), QSize(-1, 5), QSize()}) {
        EXPECT_TRUE(resizedImage(picture, size).isNull());
    }
    EXPECT_TRUE(resizedImage(QImage(), {8, 4}).isNull());
}

TEST(ResizedImage, FlatColourStaysExactlyFlat) {
    constexpr auto Clear = QImage::Format_ARGB32_Premultiplied;
    const std::pair<QImage::Format, QRgb> colours[] = {{QImage::Format_RGB32, 0xffffffffU},
                                                       {QImage::Format_RGB32, 0xff0180feU},
                                                       {Clear, 0x80402001U},
                                                       {Clear, 0xff00ff7fU}};
    const QSize sizes[][2] = {{{64, 48}, {31, 17}}, {{61, 47}, {200, 150}}, {{640, 480}, {3, 480}},
                              {{5, 3}, {1, 1}},     {{1, 1}, {7, 9}},       {{1200, 900}, {801, 1201}},
                              {{2, 300}, {2, 7}}};
    for (const auto& [format, pixel] : colours) {
        for (const auto& size : sizes) {
            QImage picture(size[0], format);
            picture.fill(pixel);
            QImage expected(size[1], format);
            expected.fill(pixel);
            EXPECT_EQ(resizedImage(picture, size[1]), expected) << pixel << ' ' << size[1].width();
        }
    }
}

// Waves that both sizes can hold come out as the same waves: nothing is shifted, stretched or lost at a
// band's edge.
TEST(ResizedImage, KeepsWavesThatBothSizesCanHold) {
    const QSize sizes[][2] = {{{600, 400}, {300, 200}}, {{603, 401}, {161, 107}},
                              {{200, 133}, {400, 266}}, {{200, 133}, {333, 133}},
                              {{211, 300}, {211, 97}},  {{1501, 1003}, {1101, 1207}},
                              {{3000, 200}, {75, 20}}};
    for (const auto& size : sizes) {
        const auto wave = [](QSize s) {
            return grey(s, [s](double x, double y) {
                return 127.5 + 60 * std::cos(6 * Pi * x / s.width()) + 60 * std::cos(4 * Pi * y / s.height());
            });
        };
        // A level for the two roundings, another where a cut-off filter lifts the outermost pixels.
        EXPECT_LE(largestDifference(resizedImage(wave(size[0]), size[1]), wave(size[1])), 2)
            << size[0].width() << " to " << size[1].width();
    }
}

TEST(ResizedImage, LeavesNoRingsOfWhatTheNewSizeCannotHold) {
    constexpr int Half = 256;
    const QImage rings = grey({2 * Half, 2 * Half}, [](double x, double y) {
        return 127.5 + 127.5 * std::cos(Pi * (std::pow(x - Half, 2) + std::pow(y - Half, 2)) / (2 * Half));
    });
    const QImage result = resizedImage(rings, {Half, Half});
    double squares = 0.0;
    int count = 0;
    for (int y = 0; y < Half; ++y) {
        for (int x = 0; x < Half; ++x) {
            const double fineness = std::max(std::abs(x + 0.5 - Half / 2.0), std::abs(y + 0.5 - Half / 2.0));
            if (fineness < 0.65 * Half / 2 || fineness > 0.95 * Half / 2) continue;
            squares += std::pow(qGreen(result.pixel(x, y)) - 127.5, 2);
            ++count;
        }
    }
    // Averaging the pixels under each new one leaves 23 levels of rings, cubics 3 to 5.
    EXPECT_LT(std::sqrt(squares / count), 2.0);
}

TEST(ResizedImage, TransparencyNeitherDarkensNorColoursAnEdge) {
    const QImage picture = pictureOf({90, 90}, QImage::Format_ARGB32_Premultiplied, [](int x, int y) {
        if (!QRect(20, 20, 50, 50).contains(x, y)) return 0U;
        return x < 45 ? 0xffff8000U : 0x60603000U;
    });
    for (const QSize size : {QSize(37, 53), QSize(240, 200)}) {
        const QImage result = storedValues(resizedImage(picture, size));
        EXPECT_EQ(result.pixel(0, 0), 0U);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb pixel = result.pixel(x, y);
                ASSERT_EQ(qRed(pixel), qAlpha(pixel));
                ASSERT_NEAR(qGreen(pixel), qAlpha(pixel) / 2.0, 1.0);
                ASSERT_EQ(qBlue(pixel), 0);
            }
        }
    }
}

TEST(ResizedImage, EveryInstructionSetGivesTheSamePicture) {
    quint32 random = 1;
    const QImage picture = pictureOf({203, 151}, QImage::Format_ARGB32_Premultiplied, [&](int, int) {
        random = random * 1664525U + 1013904223U;
        return qPremultiply(random);
    });
    for (const QImage::Format format : {QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32}) {
        const QImage converted = picture.convertToFormat(format);
        for (const QSize size : {QSize(97, 64), QSize(334, 303)}) {
            const QImage widest = storedValues(resizedImage(converted, size));
            forEachInstructionSet([&] {
                // Sums in another order may round the other way.
                EXPECT_LE(largestDifference(storedValues(resizedImage(converted, size)), widest), 1);
            });
        }
    }
}

}  // namespace
}  // namespace zelto
