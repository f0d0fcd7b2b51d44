// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_block.h"

#include "composed.h"
#include "render/text_layout.h"
#include "support/ink.h"

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
                           Row{"Fixed", {4000, 3000}, 112.5}, Row{"", {4000, 3000}, 112.5}}) {
        Watermark record = textRecord(QStringLiteral("x"), 5);
        record.IsRelative = true;
        record.FontRelativeSize = QString::fromLatin1(row.side);
        EXPECT_DOUBLE_EQ(makeTextBlock(record, record.Text, row.reference).attributes.font.pointSize,
                         row.points)
            << row.side;
    }
}

TEST(TextBlock, IsTenWiderThanItsTextWhateverIsDrawnAroundIt) {
    Watermark record = textRecord(QStringLiteral("Hello\nwide world"), 40);
    const QSizeF measured = measuredText(record.Text, {.family = record.FontFamily, .pointSize = 40});
    record.FontUnderline = record.FontStrikethrough = record.Shadow = true;
    record.ShadowColor = Color::black();
    EXPECT_TRUE(makeTextBlock(record, record.Text, canvas).size == measured + QSizeF(10, 0));
}

TEST(TextBlock, AnUnknownFamilyIsSetInThePlainDefault) {
    Watermark record = textRecord(QStringLiteral("Hello"), 80);
    record.FontFamily = QStringLiteral("No such family");
    record.TextColor = Color{1, 0, 0, 1};
    record.Transparency = 0.25F;
    record.Alignment = 2;
    record.FontBold = record.FontUnderline = record.Shadow = true;
    record.ShadowColor = Color{0, 0, 1, 1};
    EXPECT_EQ(makeTextBlock(record, record.Text, canvas).attributes,
              (TextAttributes{.font = {.pointSize = 12}, .foreground = Color::black(), .alignment = 4}));
    const QImage picture = composed(record, plainPhoto(canvas));
    EXPECT_FALSE(colorBox(picture, Qt::black, 40).isEmpty());
    EXPECT_NEAR(inkBox(picture).height(), 12 * 0.76, 2.0);
}

TEST(TextBlock, OverlappingLettersAreAsTransparentAsTheRest) {
    Watermark record = textRecord(QStringLiteral("H\u0336H\u0336"), 100);  // stroked through, ink over ink
    record.Transparency = 0.5F;
    const QImage picture = composed(record, plainPhoto(canvas));
    int darkest = 255;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) darkest = std::min(darkest, qRed(picture.pixel(x, y)));
    }
    EXPECT_NEAR(darkest, 128, 1) << "one rounding of half of 255";
}

TEST(TextBlock, ShadowFallsRightAndUpAndShowsThroughTheText) {
    Watermark record = textRecord(QStringLiteral("\u2588"), 100, 5);  // a block, black all over
    record.TextColor = Color{1, 0, 0, 1};
    record.Shadow = true;
    record.ShadowColor = Color{0, 0, 1, 0.25F};  // its own opacity does not count
    record.Transparency = 0.5F;
    const QImage picture = composed(record, plainPhoto(canvas));
    const QRect text =
        colorBox(picture, QColor(255 / 2, 64, 128), 6) | colorBox(picture, QColor(255, 128, 128), 6);
    const QPoint inside = text.center();
    // Half red over half blue over white, and half blue alone to the right of the text.
    EXPECT_NEAR(qRed(picture.pixel(inside)), 191, 2);
    EXPECT_NEAR(qGreen(picture.pixel(inside)), 64, 2);
    EXPECT_NEAR(qBlue(picture.pixel(inside)), 128, 2);
    const QRect ink = inkBox(picture, Qt::white, 2);
    Watermark plain = record;
    plain.Shadow = false;
    const QRect bare = inkBox(composed(plain, plainPhoto(canvas)), Qt::white, 2);
    EXPECT_EQ(ink.left(), bare.left());
    EXPECT_EQ(ink.bottom(), bare.bottom());
    EXPECT_NEAR(ink.right() - bare.right(), 9, 1) << "5 aside and about 4 of the blur's 5 can be told";
    EXPECT_NEAR(bare.top() - ink.top(), 9, 1);
    // At the blur's middle the shadow is half as strong: a quarter of blue.
    const QRgb edge = picture.pixel(bare.right() + 5, bare.center().y());
    EXPECT_NEAR(qRed(edge), 191, 16);
    EXPECT_EQ(qBlue(edge), 255);
}

// One solid letter, so that the copies are three rectangles.
QImage embossed(bool hollow, float opacity, std::int64_t size, std::int64_t rotation = 0) {
    Watermark record = textRecord(QStringLiteral("\u25a0"), size);
    record.TextEffect = 3;
    record.TextColor = Color{1, 0, 0, 1};
    record.UseTransparentColor = hollow;
    record.Transparency = opacity;
    record.Rotation = rotation;
    record.Shadow = true;  // which an emboss never has: it would be green
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
    struct Row {
        std::int64_t size;
        double depth;
    };
    for (const Row& row : {Row{40, 1}, Row{150, 1}, Row{250, 2}, Row{399, 3}}) {
        const QImage picture = embossed(false, 1.0F, row.size);
        const QPoint face = colorBox(picture, Qt::red).center();
        EXPECT_NEAR(lengthOf(picture, face, {-1, 0}, white), row.depth, 0.1) << row.size;
        EXPECT_NEAR(lengthOf(picture, face, {0, 1}, white), row.depth, 0.1) << row.size;
        EXPECT_NEAR(lengthOf(picture, face, {1, 0}, black), row.depth, 0.1) << row.size;
        EXPECT_NEAR(lengthOf(picture, face, {0, -1}, black), row.depth, 0.1) << row.size;
    }
}

TEST(TextBlock, HollowEmbossLeavesTheFaceOpenAndFadesAsOne) {
    const QColor photo(0, 0, 200);
    const QImage solid = embossed(false, 1.0F, 400);
    const QRect face = colorBox(solid, Qt::red, 60);
    const QImage hollow = embossed(true, 1.0F, 400);
    EXPECT_EQ(hollow.pixelColor(face.center()), photo);
    EXPECT_TRUE(colorBox(hollow, Qt::red, 60).isEmpty());
    EXPECT_EQ(hollow.pixelColor(face.left() - 2, face.center().y()), QColor(Qt::white));
    EXPECT_EQ(hollow.pixelColor(face.right() + 2, face.center().y()), QColor(Qt::black));
    const QImage faded = embossed(false, 0.5F, 400);
    const QRgb pixel = faded.pixel(face.center());
    EXPECT_NEAR(qRed(pixel), 128, 1);
    EXPECT_NEAR(qBlue(pixel), 100, 1) << "nothing of the white and black copies under the face shows";
}

TEST(TextBlock, TurningIsClockwiseAndTakesTheReliefAlong) {
    const QRect face = colorBox(embossed(false, 1.0F, 400), Qt::red, 60);
    const QImage picture = embossed(false, 1.0F, 400, 90);
    const QRect turned = colorBox(picture, Qt::red, 60);
    EXPECT_NEAR(turned.width(), face.height(), 1);
    // White was on the left; after a quarter turn clockwise it is on top.
    EXPECT_EQ(picture.pixelColor(turned.center().x(), turned.top() - 2), QColor(Qt::white));
    EXPECT_EQ(picture.pixelColor(turned.center().x(), turned.bottom() + 2), QColor(Qt::black));
}

TEST(TextBlock, DegenerateRecordsDrawNothingAndExtremeOnesEnd) {
    const QImage blank = plainPhoto(canvas);
    Watermark record = textRecord(QStringLiteral("Hello"), 40);
    for (const std::int64_t size :
         {std::int64_t{0}, std::int64_t{-20}, std::numeric_limits<std::int64_t>::min()}) {
        record.FontSize = size;
        EXPECT_EQ(composed(record, blank), blank) << size;
    }
    record.FontSize = 40;
    for (const float opacity : {0.0F, -1.0F, std::nanf("")}) {
        for (const std::int32_t effect : {0, 3}) {
            record.Transparency = opacity;
            record.TextEffect = effect;
            EXPECT_EQ(composed(record, blank), blank) << opacity << effect;
        }
    }
    record.Transparency = std::numeric_limits<float>::infinity();
    record.TextEffect = 0;
    EXPECT_FALSE(inkBox(composed(record, blank)).isEmpty());

    record = textRecord(QString(100'000, u'\u2588'), 5000, 5);
    record.IsRelative = true;
    record.Shadow = true;
    record.ShadowColor = Color::black();
    record.Transparency = 0.5F;
    for (const std::int64_t size : {std::int64_t{5000}, std::numeric_limits<std::int64_t>::max()}) {
        for (const std::int64_t rotation : {0, 33}) {
            for (const std::int32_t effect : {0, 3}) {
                record.FontSize = size;
                record.Rotation = rotation;
                record.TextEffect = effect;
                EXPECT_EQ(composed(record, blank).size(), canvas);
            }
        }
    }
}

}  // namespace
}  // namespace zelto
