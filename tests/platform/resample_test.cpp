// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/resample.h"

#include "support/ink.h"
#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace zelto {
namespace {

constexpr double Pi = std::numbers::pi;

QRgb pixelAt(const QImage& picture, int x, int y) {
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y))[x];
}

// Grey pictures of a function of a pixel's centre, in levels.
QImage grey(QSize size, const std::function<double(double, double)>& level) {
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int value = static_cast<int>(std::lround(level(x + 0.5, y + 0.5)));
            picture.setPixel(x, y, qRgb(value, value, value));
        }
    }
    return picture;
}

// The pixels' bytes as they are, so that differences are not blown up where alpha is small.
QImage bytesOf(QImage picture) {
    picture.reinterpretAsFormat(QImage::Format_ARGB32);
    return picture;
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
    const struct {
        QImage::Format format;
        QRgb pixel;
    } colours[] = {{QImage::Format_RGB32, 0xffffffffU},
                   {QImage::Format_RGB32, 0xff0180feU},
                   {QImage::Format_ARGB32_Premultiplied, 0x80402001U},
                   {QImage::Format_ARGB32_Premultiplied, 0xff00ff7fU}};
    const QSize sizes[][2] = {{{64, 48}, {31, 17}}, {{61, 47}, {200, 150}}, {{640, 480}, {3, 480}},
                              {{5, 3}, {1, 1}},     {{1, 1}, {7, 9}},       {{1200, 900}, {801, 1201}},
                              {{2, 300}, {2, 7}}};
    for (const auto& colour : colours) {
        for (const auto& size : sizes) {
            QImage picture(size[0], colour.format);
            picture.fill(colour.pixel);
            QImage expected(size[1], colour.format);
            expected.fill(colour.pixel);
            EXPECT_EQ(resizedImage(picture, size[1]), expected)
                << std::hex << colour.pixel << std::dec << ' ' << size[0].width() << " to "
                << size[1].width();
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
    const auto rings = [](int side, double finest) {
        return grey({side, side}, [=](double x, double y) {
            const double squared = (x - side / 2.0) * (x - side / 2.0) + (y - side / 2.0) * (y - side / 2.0);
            return 127.5 + 127.5 * std::cos(finest * Pi * squared / side);
        });
    };
    constexpr int Half = 256;
    const QImage result = resizedImage(rings(2 * Half, 1.0), {Half, Half});
    const QImage ideal = rings(Half, 2.0);  // right for as long as the pixels can hold it
    double leftSquares = 0.0;
    double keptSquares = 0.0;
    int left = 0;
    int kept = 0;
    for (int y = 0; y < Half; ++y) {
        for (int x = 0; x < Half; ++x) {
            const double fineness =
                std::max(std::abs(x + 0.5 - Half / 2.0), std::abs(y + 0.5 - Half / 2.0)) / (Half / 2.0);
            const int level = qGreen(pixelAt(result, x, y));
            if (fineness > 0.65 && fineness < 0.95) {
                leftSquares += (level - 127.5) * (level - 127.5);
                ++left;
            } else if (fineness < 0.3) {
                const int difference = level - qGreen(pixelAt(ideal, x, y));
                keptSquares += difference * difference;
                ++kept;
            }
        }
    }
    // Averaging the pixels under each new one leaves 23 levels of rings, cubics 3 to 5.
    // be kept.
    EXPECT_LT(std::sqrt(leftSquares / left), 2.0);
    EXPECT_LT(std::sqrt(keptSquares / kept), 3.0);
}

TEST(ResizedImage, EdgesStayInPlaceAndHaveFaintHalosOnly) {
    for (const int newWidth : {32, 61, 64, 99, 127, 256, 500}) {
        const QImage edge = grey({128, 6}, [](double x, double) { return x < 64 ? 64.0 : 192.0; });
        const QImage result = resizedImage(edge, {newWidth, 6});
        double sum = 0.0;
        for (int x = 0; x < newWidth; ++x) {
            const int level = qGreen(pixelAt(result, x, 3));
            EXPECT_NEAR(level, 128, 64 + 15) << newWidth;
            EXPECT_NEAR(level + qGreen(pixelAt(result, newWidth - 1 - x, 3)), 256, 1)
                << newWidth << " at " << x;
            sum += level;
        }
        EXPECT_NEAR(sum / newWidth, 128.0, 0.5) << newWidth;
    }
}

TEST(ResizedImage, TransparencyNeitherDarkensNorColoursAnEdge) {
    QImage picture(90, 90, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    for (int y = 20; y < 70; ++y) {
        for (int x = 20; x < 70; ++x) picture.setPixel(x, y, x < 45 ? 0xffff8000U : 0x60603000U);
    }
    for (const QSize size : {QSize(37, 53), QSize(240, 200)}) {
        const QImage result = resizedImage(picture, size);
        ASSERT_EQ(result.format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_EQ(pixelAt(result, 0, 0), 0U);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                const QRgb pixel = pixelAt(result, x, y);
                ASSERT_EQ(qRed(pixel), qAlpha(pixel));
                ASSERT_NEAR(qGreen(pixel), qAlpha(pixel) / 2.0, 1.0);
                ASSERT_EQ(qBlue(pixel), 0);
            }
        }
    }
}

TEST(ResizedImage, EveryInstructionSetGivesTheSamePicture) {
    QImage picture(203, 151, QImage::Format_ARGB32_Premultiplied);
    quint32 random = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            random = random * 1664525U + 1013904223U;
            reinterpret_cast<QRgb*>(picture.scanLine(y))[x] = qPremultiply(random);
        }
    }
    for (const QImage::Format format : {QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB32}) {
        const QImage converted = picture.convertToFormat(format);
        for (const QSize size : {QSize(97, 64), QSize(334, 303)}) {
            const QImage widest = bytesOf(resizedImage(converted, size));
            forEachInstructionSet([&] {
                // Sums in another order may round the other way.
                EXPECT_LE(largestDifference(bytesOf(resizedImage(converted, size)), widest), 1);
            });
        }
    }
}

}  // namespace
}  // namespace zelto
