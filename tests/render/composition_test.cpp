// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/composition.h"

#include "composed.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zelto {
namespace {

TEST(Composition, DrawsOnTheScenesOwnPixels) {
    WatermarkStack stack;
    stack.Watermarks = {textRecord(QStringLiteral("x"), 20), boxRecord(10, 10, 3)};
    Picture photo;
    photo.image = plainPhoto({100, 80});
    const uchar* pixels = photo.image.constBits();
    const QImage picture = MakeWatermarkImage(buildPhotoScene(requestFor(stack), std::move(photo)), stack);
    EXPECT_EQ(picture.constBits(), pixels) << "a whole picture was copied";
    EXPECT_FALSE(inkBox(picture).isEmpty());
}

TEST(Composition, NeedsNoPainterWhereNothingIsEnabled) {
    WatermarkStack stack;
    stack.Watermarks = {boxRecord(10, 10, 3)};
    stack.Watermarks[0].IsEnabled = false;
    stack.Effects.emplace();
    Picture photo;
    photo.image = drawnScene({100, 80});
    const PhotoScene scene = buildPhotoScene(requestFor(stack), std::move(photo));
    const QImage picture = MakeWatermarkImage(scene, stack);
    EXPECT_EQ(picture.constBits(), scene.picture.constBits()) << "nothing drawn, so nothing copied";
    stack.Watermarks[0].IsEnabled = true;
    EXPECT_NE(MakeWatermarkImage(scene, stack), picture) << "the record decides, not the hidden layer";
}

TEST(Composition, LayersStartAtThePhotosCornerOrAtTheBorders) {
    PhotoEffects effect;
    effect.LeftThickness = 5;
    effect.TopThickness = 10;
    effect.RightThickness = 15;
    effect.BottomThickness = 20;
    effect.BorderColor = Color{0, 0, 1, 1};
    effect.Direction =
        225;  // the shadow falls left and down: the framed photo moves right and up on its canvas
    effect.BlurRadius = 6;
    effect.Distance = 8;  // so by 7 each way
    struct Row {
        bool onBorder;
        bool tiled;
        QRect box;  // of a 12 x 6 mark in the lower left, y down; the picture is 127 x 117
    };
    for (const Row& row : {Row{false, false, {12, 84, 12, 6}}, Row{true, false, {7, 104, 12, 6}},
                           Row{false, true, {12, 10, 12, 80}}, Row{true, true, {7, 0, 12, 110}}}) {
        WatermarkStack stack;
        effect.ApplyWatermarkOnBorder = row.onBorder;
        stack.Effects = effect;
        Watermark mark = textRecord(QStringLiteral("\u2588"), 400, 7);
        if (row.tiled) {
            mark.VerticalTiling = true;
            mark.TextColor = Color{1, 0, 0, 1};
        } else {
            mark = boxRecord(12, 6, 7);
        }
        const QImage picture = composed(stack, plainPhoto({100, 80}));
        ASSERT_EQ(picture.size(), QSize(127, 117));
        stack.Watermarks = {mark};
        const QRect ink = colorBox(composed(stack, plainPhoto({100, 80})), Qt::red);
        if (row.tiled) {
            EXPECT_EQ(ink.top(), row.box.top());
            EXPECT_EQ(ink.bottom(), row.box.bottom());
        } else {
            EXPECT_EQ(ink, row.box);
        }
    }
}

TEST(Composition, LaterRecordsLieOverEarlierOnes) {
    WatermarkStack stack;
    stack.Watermarks = {boxRecord(20, 20, 7), boxRecord(10, 10, 7)};
    stack.Watermarks[1].SolidColor = Color{0, 0, 1, 1};
    const QImage picture = composed(stack, plainPhoto({50, 50}));
    EXPECT_EQ(colorBox(picture, Qt::blue), QRect(0, 40, 10, 10));
    std::swap(stack.Watermarks[0], stack.Watermarks[1]);
    EXPECT_EQ(colorBox(composed(stack, plainPhoto({50, 50})), Qt::red), QRect(0, 30, 20, 20));
    EXPECT_TRUE(colorBox(composed(stack, plainPhoto({50, 50})), Qt::blue).isEmpty());
}

TEST(Composition, WatermarksAreDrawnAfterTheFilter) {
    WatermarkStack stack;
    stack.SelectedFilter = 8;
    stack.Watermarks = {boxRecord(20, 20, 7)};
    const QImage picture = composed(stack, plainPhoto({50, 50}, Qt::green));
    EXPECT_EQ(picture.pixelColor(5, 45), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(40, 5).saturation(), 0);
}

TEST(Composition, TextLiesWhereItsFrameLies) {
    // The block of a text is known to the pixel: 2 pixels, the text, 8 pixels; its letters' feet stand a
    // rounded descent above its lower edge.
    const QSize size(400, 300);
    for (std::int32_t position = 1; position <= 9; ++position) {
        Watermark record = textRecord(QStringLiteral("HH"), 50, position);
        WatermarkStack stack;
        stack.Watermarks = {record};
        Picture photo;
        photo.image = plainPhoto(size);
        const PhotoScene scene = buildPhotoScene(requestFor(stack), std::move(photo));
        const QRectF frame = scene.layers.at(0)->frame;
        const QRect ink = inkBox(MakeWatermarkImage(scene, stack), Qt::white, 100);
        EXPECT_NEAR(ink.left(), frame.left() + 2 + 0.098 * 50, 1.0) << position;
        EXPECT_NEAR(ink.right() + 1, frame.right() - 8 - 0.098 * 50, 1.0) << position;
        EXPECT_EQ(size.height() - 1 - ink.bottom(), frame.top() + std::round(0.236 * 50)) << position;
        EXPECT_NEAR(ink.height(), 0.729 * 50, 1.0) << position;
    }
}

TEST(Composition, TransparentPhotosStayTransparentAroundTheirWatermarks) {
    QImage photo(60, 40, QImage::Format_ARGB32_Premultiplied);
    photo.fill(Qt::transparent);
    const QImage picture = composed(boxRecord(10, 10, 9), photo);
    EXPECT_EQ(inkBox(picture, Qt::transparent), QRect(50, 30, 10, 10));
}

}  // namespace
}  // namespace zelto
