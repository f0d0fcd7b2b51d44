// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_block.h"

#include "render/text_layout.h"
#include "support/ink.h"
#include "support/records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelto {
namespace {

constexpr QSize canvas(300, 200);

TEST(TextBlock, PointSizeFollowsTheChosenSide) {
    struct Row {
        const char* side;
        QSizeF reference;
        double points;
    };
    for (const Row& row : {Row{"Width", {4000, 3000}, 150}, Row{"Height", {4000, 3000}, 112.5},
                           Row{"Longer Side", {3000, 4000}, 150}, Row{"Longer Side", {4000, 3000}, 150},
                           Row{"", {4000, 3000}, 112.5}}) {
        Watermark record = textRecord(QStringLiteral("x"), 5);
        record.IsRelative = true;
        record.FontRelativeSize = QString::fromLatin1(row.side);
        const TextBlock block = makeTextBlock(record, record.Text, row.reference);
        EXPECT_DOUBLE_EQ(block.attributes.font.pointSize, row.points) << row.side;
    }
}

TEST(TextBlock, AnUnknownFamilyIsSetInThePlainDefault) {
    Watermark record = textRecord(QStringLiteral("Hello"), 80);
    record.FontBold = record.FontUnderline = record.Shadow = true;
    record.ShadowColor = record.TextColor = Color{1, 0, 0, 1};
    const QSizeF measured = measuredText(record.Text, withTraits({record.FontFamily, 80}, true, false));
    EXPECT_EQ(makeTextBlock(record, record.Text, canvas).size, measured + QSizeF(10, 0));
    record.FontFamily = QStringLiteral("No such family");
    record.Transparency = 0.25F;
    EXPECT_EQ(makeTextBlock(record, record.Text, canvas).attributes,
              (TextAttributes{.font = {.pointSize = 12},
                              .foreground = Color::black(),
                              .alignment = text_alignment::Natural,
                              .underline = true}));
    EXPECT_FALSE(colorBox(composed(record, plainPhoto(canvas)), Qt::black, 40).isEmpty());
}

TEST(TextBlock, ShadowFallsRightAndUpAndShowsThroughTheText) {
    Watermark record = textRecord(QStringLiteral("\u2588\u0336"), 100, 5);  // ink over ink, without a gap
    record.TextColor = Color{1, 0, 0, 1};
    record.ShadowColor = Color{0, 0, 1, 0.25F};  // its own opacity does not count
    record.Transparency = 0.5F;
    const QImage plain = composed(record, plainPhoto(canvas));
    record.Shadow = true;
    const QImage shadowed = composed(record, plainPhoto(canvas));
    const QRect bare = inkBox(plain, Qt::white, 2);
    const QRect ink = inkBox(shadowed, Qt::white, 2);
    // One level for each rounding: half red over white, and that over half blue.
    EXPECT_LE(largestDifference(plain.pixel(bare.center()), qRgb(255, 128, 128)), 1);
    EXPECT_LE(largestDifference(shadowed.pixel(bare.center()), qRgb(191, 64, 128)), 2);
    EXPECT_EQ(ink.bottomLeft(), bare.bottomLeft());
    EXPECT_NEAR(ink.right() - bare.right(), 9, 1) << "5 aside and about 4 of the blur's 5 can be told";
    EXPECT_NEAR(bare.top() - ink.top(), 9, 1);
    const QColor edge = shadowed.pixelColor(bare.right() + 5, bare.center().y());
    EXPECT_NEAR(edge.red(), 191, 16) << "half as strong in the middle of the blur";
}

// One solid letter on a blue photo, so that the copies are three rectangles. The shadow, which an emboss never has,
// would be green.
QImage embossed(bool hollow, float opacity, std::int64_t size, std::int64_t rotation = 0) {
    Watermark record = textRecord(QStringLiteral("\u25a0"), size);
    record.TextEffect = 3;
    record.TextColor = Color{1, 0, 0, 1};
    record.UseTransparentColor = hollow;
    record.Transparency = opacity;
    record.Rotation = rotation;
    record.Shadow = true;
    record.ShadowColor = Color{0, 1, 0, 1};
    return composed(record, plainPhoto({600, 600}, QColor(0, 0, 200)));
}

// How much of a line of pixels `share` finds, counting parts of pixels on the edges.
template <class Share>
double lengthOf(const QImage& picture, QPoint from, QPoint step, Share share) {
    double length = 0;
    for (QPoint p = from; picture.rect().contains(p); p += step) length += share(picture.pixel(p));
    return length;
}

TEST(TextBlock, EmbossIsWhiteBelowLeftAndBlackAboveRightOfItsFace) {
    // Only white has green; what is neither red nor the photo's blue is black.
    const auto white = [](QRgb pixel) { return qGreen(pixel) / 255.0; };
    const auto black = [](QRgb pixel) { return 1.0 - qRed(pixel) / 255.0 - qBlue(pixel) / 200.0; };
    for (const auto& [size, depth] : {std::pair{40, 1}, {150, 1}, {250, 2}, {399, 3}}) {
        const QImage picture = embossed(false, 1.0F, size);
        const QPoint face = colorBox(picture, Qt::red).center();
        EXPECT_NEAR(lengthOf(picture, face, {-1, 0}, white), depth, 0.1) << size;
        EXPECT_NEAR(lengthOf(picture, face, {0, 1}, white), depth, 0.1) << size;
        EXPECT_NEAR(lengthOf(picture, face, {1, 0}, black), depth, 0.1) << size;
        EXPECT_NEAR(lengthOf(picture, face, {0, -1}, black), depth, 0.1) << size;
    }
}

TEST(TextBlock, HollowEmbossIsOpenTurnsClockwiseAndFadesAsOne) {
    const QRect face = colorBox(embossed(false, 1.0F, 400), Qt::red, 60);
    const QImage hollow = embossed(true, 1.0F, 400);
    EXPECT_EQ(hollow.pixelColor(face.center()), QColor(0, 0, 200));
    EXPECT_EQ(hollow.pixelColor(face.left() - 2, face.center().y()), QColor(Qt::white));
    EXPECT_EQ(hollow.pixelColor(face.right() + 2, face.center().y()), QColor(Qt::black));
    const QImage turned = embossed(false, 1.0F, 400, 90);
    const QRect turnedFace = colorBox(turned, Qt::red, 60);
    EXPECT_EQ(turned.pixelColor(turnedFace.center().x(), turnedFace.top() - 2), QColor(Qt::white));
    EXPECT_EQ(turned.pixelColor(turnedFace.center().x(), turnedFace.bottom() + 2), QColor(Qt::black));
    const QColor faded = embossed(false, 0.5F, 400).pixelColor(face.center());
    EXPECT_NEAR(faded.red(), 128, 1);
    EXPECT_NEAR(faded.blue(), 100, 1) << "nothing of the white and black copies under the face shows";
}

TEST(TextBlock, DegenerateRecordsDrawNothingAndExtremeOnesEnd) {
    constexpr auto Most = std::numeric_limits<std::int64_t>::max();
    const float nan = std::nanf("");
    struct Row {
        std::int64_t size, rotation;
        float opacity;
        bool relative, blank;
    };
    for (const std::int32_t effect : {0, 3}) {
        for (const Row& row :
             {Row{0, 0, 1, false, true}, Row{-Most, 0, 1, true, true}, Row{40, 0, 0, false, true},
              Row{40, 9, nan, false, true}, Row{40, 0, HUGE_VALF, false, false},
              Row{5000, 90, 0.5F, true, false}, Row{Most, 0, 0.5F, true, false}}) {
            Watermark record = textRecord(QString(20'000, u'\u2588'), row.size, 5);
            record.Shadow = true;
            record.ShadowColor = Color::black();
            record.TextEffect = effect;
            record.IsRelative = row.relative;
            record.Rotation = row.rotation;
            record.Transparency = row.opacity;
            EXPECT_EQ(inkBox(composed(record, plainPhoto(canvas))).isEmpty(), row.blank)
                << row.size << row.opacity;
        }
    }
}

}  // namespace
}  // namespace zelto
