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

TEST(PhotoFilters, AgreeWithTheirFormulasInDoublePrecisionWithinOneLevel) {
    // A middle colour, a dark one, and the middle one half transparent, each premultiplied.
    constexpr QRgb Middle = 0xffc86428, Dark = 0xff0b0701, Half = 0x80643214;
    constexpr QSize Size(61, 41);
    constexpr QPoint Centre(30, 20);
    const std::pair<QRgb, QPoint> spots[] = {
        {Middle, Centre}, {Dark, Centre}, {Half, Centre}, {Middle, {2, 3}}, {Half, {58, 37}}};
    struct Row {
        int filter;
        QRgb expected[std::size(spots)];
    };
    for (const Row& row : {Row{1, {0xffff6452, 0xff1f0704, 0x80803229, 0xffff6452, 0x80803229}},
                           Row{2, {0xffffbc59, 0xff565350, 0x80805e2d, 0xffffbc59, 0x80805e2d}},
                           Row{3, {0xffe0e0e0, 0xff151515, 0x80707070, 0xff797979, 0x803d3d3d}},
                           Row{4, {0xffcc6f41, 0xff333231, 0x80663721, 0xffcc6f41, 0x80663721}},
                           Row{5, {0xffffb24d, 0xff1c1504, 0x80805927, 0xffffb24d, 0x80805927}},
                           Row{6, {0xffa2eea2, 0xff0a160a, 0x80517751, 0xffa2eea2, 0x80517751}},
                           Row{7, {0xfffcfcfc, 0xff1a1a1a, 0x807e7e7e, 0xff898989, 0x80444444}},
                           Row{8, {0xff808080, 0xff070707, 0x80404040, 0xff808080, 0x80404040}},
                           Row{9, {0xffc85e07, 0xff000000, 0x80642f03, 0xffd79884, 0x9c896d65}},
                           Row{11, {0xffa2906e, 0xff000000, 0x80514737, 0xffa2906e, 0x80514737}},
                           Row{12, {0xffc86428, 0xff0b0701, 0x80643214, 0xff6c3311, 0x80361908}},
                           Row{13, {0xffc86428, 0xff0b0701, 0x80643214, 0xffd69a87, 0x9c886d66}}}) {
        for (std::size_t i = 0; i < std::size(spots); ++i) {
            const auto& [color, at] = spots[i];
            const QImage plain =
                pictureOf(Size, QImage::Format_ARGB32_Premultiplied, [&](int, int) { return color; });
            const QRgb found = storedValues(ApplyFilter(row.filter, plain)).pixel(at);
            EXPECT_LE(largestDifference(found, row.expected[i]), 1) << row.filter << " spot " << i;
        }
    }
}

TEST(PhotoFilters, LookAtEveryPixelAloneOnEveryInstructionSet) {
    // Landscape, wide, and so narrow that the white circles meet; no width is a whole number of vectors.
    for (const QSize size : {QSize(67, 41), QSize(1061, 7), QSize(23, 150)}) {
        for (const bool withAlpha : {false, true}) {
            const QImage original = palette(size, withAlpha);
            for (int filter = 1; filter <= 13; ++filter) {
                const QImage best = storedValues(ApplyFilter(filter, original));
                forEachInstructionSet([&] {
                    // Mirrored, every pixel has other neighbours and another place in its vector.
                    const QImage mirrored = ApplyFilter(filter, original.mirrored(true, true));
                    EXPECT_EQ(mirrored.format(), ApplyFilter(filter, original).format());
                    EXPECT_LE(largestDifference(storedValues(mirrored.mirrored(true, true)), best), 1)
                        << filter << ' ' << withAlpha << ' ' << size.width();
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
