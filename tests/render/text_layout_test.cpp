// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_layout.h"

#include "support/ink.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace zelto {
namespace {

const QString Family = QStringLiteral("DejaVu Sans");

TextFont fontOf(double size) {
    return {.family = Family, .pointSize = size};
}

QImage drawn(const QString& text, const TextAttributes& attributes, const QRectF& box, QSize canvas) {
    QImage picture(canvas, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    drawText(painter, text, attributes, Qt::black, box, QRectF(picture.rect()));
    return picture;
}

TEST(TextLayout, SizesGrowInFractionsAndLineBoxesInWholePixels) {
    const QString text = QStringLiteral("Hamburgefonts");
    const double unit = measuredText(text, fontOf(1000)).width() / 1000.0;
    for (const double size : {10.0, 10.25, 10.5, 10.75, 149.6}) {
        EXPECT_NEAR(measuredText(text, fontOf(size)).width(), unit * size, 1e-3 * size) << size;
    }
    for (const double size : {10.0, 33.3, 150.0}) {
        const double line = measuredText(text, fontOf(size)).height();
        EXPECT_EQ(line, std::round(line)) << size;
        EXPECT_NEAR(line, 1.164 * size, 1.5) << size;
        EXPECT_EQ(measuredText(QStringLiteral("a\nb\r\n\nd"), fontOf(size)).height(), 4 * line) << size;
    }
    EXPECT_TRUE(measuredText(QString(), fontOf(20)).isEmpty());
    EXPECT_TRUE(measuredText(text, fontOf(0)).isEmpty());
    EXPECT_TRUE(measuredText(text, fontOf(-4)).isEmpty());
}

// A capital's height is 0.729 of the size in this family, so the ink tells the size that was really drawn.
TEST(TextLayout, InkHasTheFractionalSize) {
    for (const double size : {100.0, 100.4, 300.7}) {
        const QImage picture =
            drawn(QStringLiteral("H"), {.font = fontOf(size)}, {0, 0, 400, 400}, {400, 400});
        double blackInColumn = 0;
        const QRect box = inkBox(picture);
        const int stem = box.left() + static_cast<int>(size * 0.05);
        for (int y = 0; y < picture.height(); ++y)
            blackInColumn += (255 - qRed(picture.pixel(stem, y))) / 255.0;
        EXPECT_NEAR(blackInColumn, 0.729 * size, 0.1) << size;
    }
}

TEST(TextLayout, AlignsInItsBoxAndWritesLinesDownward) {
    const QRectF box(20, 30, 300, 200);
    const double width = measuredText(QStringLiteral("HHH"), fontOf(40)).width();
    struct Row {
        std::uint64_t alignment;
        double left;
    };
    const QString hebrew = QStringLiteral("\u05d4\u05d4\u05d4");
    for (const Row& row :
         {Row{0, 20}, Row{1, 320 - width}, Row{2, 170 - width / 2}, Row{3, 20}, Row{4, 20}, Row{77, 20}}) {
        const QImage picture =
            drawn(QStringLiteral("HHH"), {.font = fontOf(40), .alignment = row.alignment}, box, {400, 300});
        // An H stands 0.098 of the size in from its origin.
        EXPECT_NEAR(inkBox(picture).left(), row.left + 0.098 * 40, 1.0) << row.alignment;
    }
    const auto hebrewInk = [&](std::uint64_t alignment) {
        return inkBox(drawn(hebrew, {.font = fontOf(40), .alignment = alignment}, box, {400, 300}));
    };
    EXPECT_GT(hebrewInk(4).right(), 310) << "unaligned text goes by its direction";
    EXPECT_LT(hebrewInk(0).left(), 30);

    const TextAttributes attributes{.font = fontOf(40)};
    const QRect first = inkBox(drawn(QStringLiteral("H"), attributes, box, {400, 300}));
    const QRect third = inkBox(drawn(QStringLiteral("\n\nH"), attributes, box, {400, 300}));
    const double line = measuredText(QStringLiteral("H"), fontOf(40)).height();
    EXPECT_EQ(third.top() - first.top(), 2 * line);
    // The baseline lies a rounded ascent (0.928 of the size) below the top of the line.
    EXPECT_EQ(first.bottom() + 1, 30 + 37);
}

TEST(TextLayout, LinesUnderAndThroughReachOverTheWholeText) {
    const QString text = QStringLiteral("H H ");
    const double width = measuredText(text, fontOf(50)).width();
    TextAttributes attributes{.font = fontOf(50)};
    const QRect plain = inkBox(drawn(text, attributes, {10, 10, 300, 100}, {300, 100}));
    attributes.underline = true;
    const QRect underlined = inkBox(drawn(text, attributes, {10, 10, 300, 100}, {300, 100}));
    EXPECT_EQ(underlined.left(), 10);
    EXPECT_NEAR(underlined.right() + 1, 10 + width, 1.0);
    EXPECT_GT(underlined.bottom(), plain.bottom());
    EXPECT_LE(underlined.bottom(), plain.bottom() + 6);
    attributes.underline = false;
    attributes.strikethrough = true;
    const QImage struck = drawn(text, attributes, {10, 10, 300, 100}, {300, 100});
    EXPECT_EQ(inkBox(struck).top(), plain.top());
    EXPECT_EQ(inkBox(struck).bottom(), plain.bottom());
    EXPECT_EQ(inkBox(struck).left(), 10);
}

TEST(TextLayout, TraitsAreOnlyThoseTheFamilyHas) {
    const TextFont both = withTraits(fontOf(20), true, true);
    EXPECT_TRUE(both.bold);
    EXPECT_GT(measuredText(QStringLiteral("mmm"), both).width(),
              measuredText(QStringLiteral("mmm"), fontOf(20)).width());
    EXPECT_FALSE(withTraits(fontOf(20), false, false).bold);
    EXPECT_FALSE(withTraits({.family = QStringLiteral("No such family"), .pointSize = 20}, true, true).bold);
    EXPECT_TRUE(isFontInstalled(Family));
    EXPECT_FALSE(isFontInstalled(QStringLiteral("No such family")));
    EXPECT_FALSE(isFontInstalled(QString()));
}

TEST(TextLayout, HugeTextsAndSizesDrawTheirVisiblePart) {
    // A line this long overflows fixed-point layout unless it is laid out at a smaller size.
    const QString wide(100'000, u'w');
    EXPECT_NEAR(measuredText(wide, fontOf(20)).width() / 100'000.0,
                measuredText(QStringLiteral("w"), fontOf(20)).width(), 0.1);
    const double width = measuredText(wide, fontOf(20)).width();
    const QImage end =
        drawn(wide, {.font = fontOf(20), .alignment = 1}, {-width, 0, width + 90, 30}, {100, 30});
    EXPECT_NEAR(inkBox(end).right(), 89, 2.0) << "the last letter ends where the box ends";

    const QString tall = QStringLiteral("H\n").repeated(50'000);
    const double line = measuredText(QStringLiteral("H"), fontOf(20)).height();
    const QImage middle = drawn(tall, {.font = fontOf(20)}, {0, -25'000 * line, 100, 0}, {100, 100});
    EXPECT_EQ(inkBox(middle).top(),
              inkBox(drawn(QStringLiteral("H"), {.font = fontOf(20)}, {}, {100, 100})).top());

    // Inside the stem of a letter a hundred times the picture.
    const QImage stem =
        drawn(QStringLiteral("I"), {.font = fontOf(100'000)}, {-14'000, -50'000, 0, 0}, {1000, 1000});
    EXPECT_EQ(colorBox(stem, Qt::black), stem.rect());
}

}  // namespace
}  // namespace zelto
