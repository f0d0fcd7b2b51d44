// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/text_layout.h"

#include "support/ink.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace zelto {
namespace {

constexpr QSize canvasSize(400, 300);

TextFont fontOf(double size) {
    return {.family = QStringLiteral("DejaVu Sans"), .pointSize = size};
}

QImage drawn(const QString& text, const TextAttributes& attributes, const QRectF& box) {
    QImage picture(canvasSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    drawText(painter, text, attributes, Qt::black, box, QRectF(picture.rect()));
    return picture;
}

// A capital of this family is 0.729 of its size high.
TEST(TextLayout, SizesAndInkGrowInFractionsLineBoxesInWholePixels) {
    const QString text = QStringLiteral("Hamburgefonts");
    const double unit = measuredText(text, fontOf(1000)).width() / 1000.0;
    for (const double size : {10.0, 10.25, 33.3, 100.4, 300.7}) {
        EXPECT_NEAR(measuredText(text, fontOf(size)).width(), unit * size, 1e-3 * size) << size;
        const double line = measuredText(text, fontOf(size)).height();
        EXPECT_EQ(line, std::round(0.928 * size) + std::round(0.236 * size)) << size;
        EXPECT_EQ(measuredText(QStringLiteral("a\nb\r\n\nd"), fontOf(size)).height(), 4 * line) << size;

        const QImage picture = drawn(QStringLiteral("H"), {.font = fontOf(size)}, QRectF(0, 0, 400, 300));
        const int stem = inkBox(picture, Qt::white, 250).left() + static_cast<int>(size * 0.02);
        double black = 0;
        for (int y = 0; y < picture.height(); ++y) black += (255 - qRed(picture.pixel(stem, y))) / 255.0;
        EXPECT_NEAR(black, 0.729 * size, 0.3) << size;
    }
    EXPECT_TRUE(measuredText(text, fontOf(0.0)).isEmpty());
}

TEST(TextLayout, AlignsInItsBoxAndWritesLinesDownward) {
    const QRectF box(20, 30, 300, 200);
    const QString hebrew = QStringLiteral("\u05d4\u05d4\u05d4");
    struct Row {
        QString text;
        std::uint64_t alignment;
        double share;  // of the free space that lies left of the text
    };
    const QString latin = QStringLiteral("HHH");
    for (const Row& row : {Row{latin, 0, 0}, Row{latin, 1, 1}, Row{latin, 2, 0.5}, Row{latin, 3, 0},
                           Row{latin, 4, 0}, Row{latin, 77, 0}, Row{hebrew, 0, 0}, Row{hebrew, 4, 1}}) {
        const double free = box.width() - measuredText(row.text, fontOf(40)).width();
        const QRect ink = inkBox(drawn(row.text, {.font = fontOf(40), .alignment = row.alignment}, box));
        EXPECT_NEAR(ink.left(), 20 + row.share * free + 0.098 * 40, 2.0) << row.alignment;
    }
    const QRect first = inkBox(drawn(QStringLiteral("H"), {.font = fontOf(40)}, box));
    EXPECT_EQ(first.bottom() + 1, 30 + 37) << "a rounded ascent of 0.928 below the top";
    EXPECT_EQ(inkBox(drawn(QStringLiteral("\n\nH"), {.font = fontOf(40)}, box)).top() - first.top(),
              2 * (37 + 9));
}

TEST(TextLayout, BoldIsWiderAndLinesReachOverTheWholeText) {
    const QString text = QStringLiteral("H H ");
    const QRectF box(10, 10, 300, 100);
    const double width = measuredText(text, fontOf(50)).width();
    const TextFont bold = withTraits(fontOf(50), true, false);
    EXPECT_GT(measuredText(text, bold).width(), width + 10);
    const QRect plain = inkBox(drawn(text, {.font = fontOf(50)}, box));
    const QRect under = inkBox(drawn(text, {.font = fontOf(50), .underline = true}, box));
    const QRect through = inkBox(drawn(text, {.font = fontOf(50), .strikethrough = true}, box));
    for (const QRect& ink : {under, through}) {
        EXPECT_EQ(ink.topLeft(), QPoint(10, plain.top()));
        EXPECT_NEAR(ink.right() + 1, 10 + width, 1.0);
    }
    EXPECT_TRUE(under.bottom() > plain.bottom() && under.bottom() < plain.bottom() + 6);
    EXPECT_EQ(through.bottom(), plain.bottom());
}

TEST(TextLayout, HugeTextsAndSizesDrawTheirVisiblePart) {
    // A line this long overflows fixed-point layout unless it is laid out at a smaller size.
    const QString wide(100'000, u'w');
    const double width = measuredText(wide, fontOf(20)).width();
    EXPECT_NEAR(width / 100'000, measuredText(QStringLiteral("w"), fontOf(20)).width(), 0.1);
    EXPECT_NEAR(
        inkBox(drawn(wide, {.font = fontOf(20), .alignment = 1}, {-width, 0, width + 90, 30})).right(), 89,
        2);

    const QString tall = QStringLiteral("H\n").repeated(50'000);
    const QRect first = inkBox(drawn(QStringLiteral("H"), {.font = fontOf(20)}, {}));
    EXPECT_EQ(inkBox(drawn(tall, {.font = fontOf(20)}, {0, -25'000.0 * (19 + 5), 9, 9})).top(), first.top());

    // Inside the stem of a letter a hundred times the picture.
    const QImage stem = drawn(QStringLiteral("I"), {.font = fontOf(100'000)}, {-14'000, -50'000, 0, 0});
    EXPECT_EQ(colorBox(stem, Qt::black), stem.rect());
}

}  // namespace
}  // namespace zelto
