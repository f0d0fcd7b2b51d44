// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/shape.h"

#include "render/tiling.h"
#include "support/ink.h"
#include "support/records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zelto {
namespace {

Watermark shape(std::int32_t kind, float width, float height) {
    Watermark record = boxRecord(width, height, 1);
    record.ShapeType = kind;
    return record;
}

// A rectangle whose first colour is red and its second blue.
Watermark gradient(float width, float height) {
    Watermark record = shape(shape_type::Rectangle, width, height);
    record.SolidBackground = false;
    record.FirstColor = Color{1.0F, 0.0F, 0.0F, 1.0F};
    record.SecondColor = Color{0.0F, 0.0F, 1.0F, 1.0F};
    return record;
}

QImage drawn(const Watermark& record) {
    const std::optional<ShapeImage> shape = GetShapeImage(record, {1000.0, 500.0});
    return shape ? pictureOf(*shape, shape->size) : QImage();
}

// Counted from the lower left, like the shape's own geometry.
QColor at(const QImage& image, int x, int y) {
    return image.pixelColor(x, image.height() - 1 - y);
}
int alphaAt(const QImage& image, int x, int y) {
    return at(image, x, y).alpha();
}

// The box of what is at least half covered by an opaque red shape, from the top left.
QRect redBox(const QImage& image) {
    return colorBox(image, Qt::red, 127);
}

TEST(Shape, SizesInPixelsAndInFractionsOfThePhoto) {
    Watermark record = shape(shape_type::Rectangle, 30.0F, 20.0F);
    EXPECT_EQ(drawn(record).size(), QSize(30, 20));
    record.ResizeWidthByPercent = true;
    record.ResizeWidth = 0.2F;
    EXPECT_EQ(drawn(record).size(), QSize(200, 20));
    record.ResizeHeightByPercent = true;
    record.ResizeHeight = 0.3F;
    const QImage both = drawn(record);
    EXPECT_EQ(both.size(), QSize(200, 150));
    EXPECT_EQ(redBox(both), QRect(0, 0, 200, 150));

    // 10.5 of 1000: eleven pixels, the last half covered; it stands at the bottom.
    record.ResizeWidth = 0.0105F;
    record.ResizeHeight = 0.021F;
    const QImage fraction = drawn(record);
    ASSERT_EQ(fraction.size(), QSize(11, 11));
    EXPECT_EQ(alphaAt(fraction, 9, 0), 255);
    EXPECT_NEAR(alphaAt(fraction, 10, 0), 128, 2);
    EXPECT_NEAR(alphaAt(fraction, 0, 10), 128, 2);
}

TEST(Shape, KindsFillTheirOutlines) {
    EXPECT_EQ(redBox(drawn(shape(shape_type::Line, 40.0F, 3.0F))), QRect(0, 0, 40, 3));
    for (const std::int32_t round : {shape_type::Ellipse, 9}) {  // an unknown kind is an ellipse too
        const QImage ellipse = drawn(shape(round, 100.0F, 60.0F));
        EXPECT_EQ(alphaAt(ellipse, 50, 30), 255);
        EXPECT_EQ(alphaAt(ellipse, 12, 8), 0);  // the curve passes between these two
        EXPECT_EQ(alphaAt(ellipse, 14, 10), 255);
        EXPECT_GT(alphaAt(ellipse, 50, 0), 128);
        EXPECT_GT(alphaAt(ellipse, 0, 30), 128);
    }
}

TEST(Shape, PolygonCornersStartAtTheRightAndAreCutToWholePixels) {
    Watermark record = shape(shape_type::Polygon, 100.0F, 100.0F);
    record.Sides = 4;
    // Corners (100, 50), (49, 100), (0, 49), (50, 0): single precision puts two of the middles just below 50.
    const QImage diamond = drawn(record);
    for (const QPoint inside : {QPoint(97, 50), QPoint(49, 97), QPoint(48, 97), QPoint(2, 48)})
        EXPECT_GT(alphaAt(diamond, inside.x(), inside.y()), 200) << inside.x();
    for (const QPoint outside : {QPoint(51, 98), QPoint(0, 51), QPoint(90, 90)})
        EXPECT_EQ(alphaAt(diamond, outside.x(), outside.y()), 0) << outside.x();

    // Points right: (100, 50), (24, 93), (25, 6), the second again just below a whole pixel.
    record.Sides = 3;
    const QImage triangle = drawn(record);
    EXPECT_EQ(redBox(triangle), QRect(24, 7, 75, 87));  // from the top: 93 is 7 below it
    EXPECT_GT(alphaAt(triangle, 24, 90), 200);
    EXPECT_LT(alphaAt(triangle, 24, 9), 30);

    record.Width = 101.0F;  // radii are cut as well: the last column stays free
    EXPECT_EQ(alphaAt(drawn(record), 100, 50), 0);
}

TEST(Shape, GradientsRunFromEdgeToEdgeInTheirDirections) {
    struct {
        int type;
        QPoint first, second, half;  // where the colours are, and half-way between
    } const rows[] = {
        {0, {0, 40}, {99, 10}, {50, 5}},   {1, {0, 40}, {99, 10}, {50, 45}}, {2, {30, 49}, {70, 0}, {5, 25}},
        {3, {99, 0}, {0, 49}, {50, 25}},   {4, {99, 49}, {0, 0}, {50, 25}},  {5, {50, 25}, {0, 0}, {25, 12}},
        {77, {0, 40}, {99, 10}, {50, 25}},
    };
    Watermark record = gradient(100.0F, 50.0F);
    for (const auto& row : rows) {
        record.GradeintType = row.type;
        const QImage image = drawn(record);
        const auto red = [&](QPoint p) { return at(image, p.x(), p.y()).red(); };
        EXPECT_GE(red(row.first), 249) << row.type;  // a pixel's centre lies half a pixel inside the end
        EXPECT_LE(red(row.second), 6) << row.type;
        EXPECT_NEAR(red(row.half), 128, 5) << row.type;
    }
    // A diagonal's halves meet on the line square to its axis, not on the other diagonal of the box.
    record.GradeintType = 3;
    const QImage diagonal = drawn(record);
    EXPECT_NEAR(at(diagonal, 65, 40).red(), at(diagonal, 35, 10).red(), 3);
    // A polygon's gradient spans the polygon, here from 24 to 100 across.
    record.GradeintType = 1;
    record.ShapeType = shape_type::Polygon;
    record.Sides = 3;
    EXPECT_GE(at(drawn(record), 25, 25).red(), 248);
}

TEST(Shape, TurnsClockwiseAsSeenAndQuarterTurnsAreExact) {
    Watermark record = gradient(60.0F, 20.0F);
    const QImage level = drawn(record);
    for (const int degrees : {90, 180, -90}) {
        record.Rotation = degrees;
        // As Qt turns pictures: clockwise.
        EXPECT_LE(largestDifference(drawn(record), level.transformed(QTransform().rotate(degrees))), 2)
            << degrees;
    }
    record.Rotation = 360;
    EXPECT_EQ(drawn(record), level);

    record.Rotation = 30;  // the right end, blue, goes down
    const QImage slanted = drawn(record);
    EXPECT_EQ(slanted.size(), QSize(62, 48));  // 60 cos 30 + 20 sin 30 and 60 sin 30 + 20 cos 30, rounded up
    EXPECT_GT(at(slanted, 55, 8).blue(), 200);
    EXPECT_GT(at(slanted, 6, 39).red(), 200);
    EXPECT_EQ(alphaAt(slanted, 55, 40), 0);
}

TEST(Shape, ACircleOfTheRecordDoesNotTurn) {
    Watermark record = shape(shape_type::Ellipse, 50.0F, 50.0F);
    record.Rotation = 45;
    EXPECT_EQ(drawn(record).size(), QSize(50, 50));
    record.ResizeWidthByPercent = true;  // drawn 100 wide, but its own sides are still equal
    record.ResizeWidth = 0.1F;
    EXPECT_EQ(drawn(record).size(), QSize(100, 50));
    record.Height = 51.0F;
    EXPECT_GT(drawn(record).height(), 100);
}

TEST(Shape, OpacityAndColorAlphaMultiply) {
    Watermark record = shape(shape_type::Rectangle, 10.0F, 10.0F);
    record.SolidColor = Color{0.0F, 1.0F, 0.0F, 0.5F};
    for (const int rotation : {0, 90}) {
        record.Rotation = rotation;
        for (const auto& [opacity, alpha] : {std::pair{0.5F, 64}, {7.0F, 128}, {std::nanf(""), 0}}) {
            record.Transparency = opacity;
            EXPECT_NEAR(alphaAt(drawn(record), 5, 5), alpha, 1) << rotation;
        }
    }
}

TEST(Shape, IsDrawnAsFarAsThePhotoGoesHoweverLargeItIs) {
    Watermark bar = boxRecord(36'000, 6, 9);
    EXPECT_EQ(inkBox(composed(bar, plainPhoto({40'000, 8}))), QRect(4'000, 2, 36'000, 6));
    bar.Rotation = 90;
    EXPECT_EQ(inkBox(composed(bar, plainPhoto({8, 40'000}))), QRect(2, 4'000, 6, 36'000));
    for (const float side : {30'000.0F, 1e9F, 1e30F}) {
        for (const std::int32_t kind : {shape_type::Rectangle, shape_type::Ellipse, shape_type::Polygon}) {
            Watermark large = shape(kind, side, side / 2);
            large.Rotation = 180;
            large.Sides = 6;
            large.Position = 7;
            const QImage picture = composed(large, plainPhoto({30, 20}));
            EXPECT_EQ(picture.pixelColor(20, 5), kind == shape_type::Rectangle ? Qt::red : Qt::white) << side;
        }
    }
}

TEST(Shape, WhatHasNoAreaGivesNoPicture) {
    for (const float side : {0.0F, -3.0F, std::nanf(""), HUGE_VALF}) {
        EXPECT_TRUE(drawn(shape(shape_type::Rectangle, side, 10.0F)).isNull()) << side;
        EXPECT_TRUE(drawn(shape(shape_type::Ellipse, 10.0F, side)).isNull()) << side;
    }
    Watermark polygon = shape(shape_type::Polygon, 40.0F, 40.0F);
    for (const std::int64_t sides : {std::numeric_limits<std::int64_t>::min(), std::int64_t{2}}) {
        polygon.Sides = sides;
        EXPECT_TRUE(drawn(polygon).isNull()) << sides;
    }
    polygon.Sides = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(alphaAt(drawn(polygon), 20, 20), 255);
}

}  // namespace
}  // namespace zelto
