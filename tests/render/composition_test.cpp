// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/composition.h"

#include "pictures/resample.h"
#include "support/ink.h"
#include "support/records.h"
#include "support/test_pictures.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

TEST(Composition, DrawsOnTheScenesOwnPixelsAndOnlyWhatIsEnabled) {
    WatermarkStack stack;
    stack.Watermarks = {textRecord(QStringLiteral("x"), 20), boxRecord(10, 10, 3)};
    QImage photo = plainPhoto({100, 80});
    const uchar* pixels = photo.constBits();
    EXPECT_EQ(composed(stack, std::move(photo)).constBits(), pixels) << "a whole picture was copied";

    for (Watermark& record : stack.Watermarks) record.IsEnabled = false;
    const PhotoScene scene = sceneOf(stack, plainPhoto({100, 80}));
    EXPECT_EQ(MakeWatermarkImage(scene, stack).constBits(), scene.picture.constBits())
        << "drawn although disabled";
    stack.Watermarks[1].IsEnabled = true;
    EXPECT_EQ(inkBox(MakeWatermarkImage(scene, stack)), QRect(90, 0, 10, 10))
        << "the record decides, not the layer";
}

TEST(Composition, LayersStartAtThePhotosCornerOrAtTheBorders) {
    PhotoEffects effect;
    effect.LeftThickness = 5;
    effect.TopThickness = 10;
    effect.RightThickness = 15;
    effect.BottomThickness = 20;
    effect.BorderColor = Color{0, 0, 1, 1};
    // The shadow falls left and down: the framed photo moves right and up on its canvas, by 7 each way.
    effect.Direction = 225;
    effect.BlurRadius = 6;
    effect.Distance = 8;
    Watermark tiles = logoRecord(plainPhoto({12, 6}, Qt::red));
    tiles.VerticalTiling = true;
    struct Row {
        Watermark mark;
        bool onBorder;
        QRect ink;
    };
    for (const Row& row :
         {Row{boxRecord(12, 6, 7), false, {12, 84, 12, 6}}, Row{boxRecord(12, 6, 7), true, {7, 104, 12, 6}},
          Row{tiles, false, {12, 10, 12, 80}}, Row{tiles, true, {7, 0, 12, 110}}}) {
        WatermarkStack stack;
        effect.ApplyWatermarkOnBorder = row.onBorder;
        stack.Effects = effect;
        stack.Watermarks = {row.mark};
        const QImage picture = composed(stack, plainPhoto({100, 80}));
        EXPECT_EQ(picture.size(), QSize(127, 117));
        EXPECT_EQ(colorBox(picture, Qt::red), row.ink);
    }
}

TEST(Composition, LaterRecordsLieOverEarlierOnesAndAllOverTheFilter) {
    WatermarkStack stack;
    stack.SelectedFilter = 8;
    stack.Watermarks = {boxRecord(20, 20, 7), boxRecord(10, 10, 7, {0, 0, 1, 1})};
    const QImage picture = composed(stack, plainPhoto({50, 50}, Qt::green));
    EXPECT_EQ(colorBox(picture, Qt::red), QRect(0, 30, 20, 20));
    EXPECT_EQ(colorBox(picture, Qt::blue), QRect(0, 40, 10, 10));
    EXPECT_EQ(picture.pixelColor(40, 5).saturation(), 0);
    QImage clear(60, 40, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    EXPECT_EQ(inkBox(composed(boxRecord(10, 10, 9), clear), Qt::transparent), QRect(50, 30, 10, 10));
}

TEST(Composition, AReducedSceneLooksLikeTheWholeOneMadeSmaller) {
    constexpr QSize Whole(2400, 1600);
    constexpr QSize Reduced(300, 200);
    Watermark faint = textRecord(QStringLiteral("Zelto"), 300, 5);
    faint.Transparency = 0.5F;
    Watermark shadowed = textRecord(QStringLiteral("Zelto"), 300, 5);
    shadowed.Shadow = true;
    shadowed.ShadowColor = Color::white();
    shadowed.Rotation = 30;
    Watermark tiles = textRecord(QStringLiteral("Zelto"), 90, 1);
    tiles.Rotation = -30;
    tiles.HorizontalTiling = tiles.VerticalTiling = true;
    tiles.HorizontalSpacing = 61;
    const Watermark logo = logoRecord(drawnScene({700, 500}), 9);
    Watermark turned = logo;
    turned.Rotation = 20;
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("zelto");
    code.ResizeWidth = 0.3F;
    const Watermark marks[] = {textRecord(QStringLiteral("Zelto"), 300, 5),
                               faint,
                               shadowed,
                               tiles,
                               logo,
                               turned,
                               code,
                               boxRecord(800, 400, 3)};
    for (const Watermark& mark : marks) {
        WatermarkStack stack;
        stack.Watermarks = {mark};
        stack.Effects.emplace();
        stack.Effects->BottomThickness = 200;
        stack.Effects->RightThicknessShare = 0.05F;
        stack.Effects->Direction = 315;
        stack.Effects->Distance = 80;
        const QImage photo = drawnScene(Whole);
        const QImage whole = composed(stack, photo);
        const PhotoRequest request = requestFor(stack);
        PhotoScene scene = *buildPhotoScene(request, {.image = resizedImage(photo, Reduced)}, Whole);
        EXPECT_EQ(scene.size, whole.size());
        const QImage seen = MakeWatermarkImage(std::move(scene), stack);
        const QImage expected = resizedImage(whole, seen.size());
        double difference = 0.0;
        for (int y = 0; y < seen.height(); ++y) {
            for (int x = 0; x < seen.width(); ++x)
                difference += std::abs(qGray(seen.pixel(x, y)) - qGray(expected.pixel(x, y)));
        }
        // What remains is how edges are smoothed, of which many small letters have many; a layer of another size or
        // place differs by ten times as much.
        EXPECT_LT(difference / (seen.width() * seen.height()), mark.HorizontalTiling ? 5.0 : 1.5)
            << mark.Type << " " << mark.Rotation;
    }
}

TEST(Composition, TextLiesInItsFrameAtEveryPosition) {
    // 2 pixels, the text, 8 pixels; the letters stand a rounded descent above the lower edge.
    for (std::int32_t position = 1; position <= 9; ++position) {
        WatermarkStack stack;
        stack.Watermarks = {textRecord(QStringLiteral("HH"), 50, position)};
        const PhotoScene scene = sceneOf(stack, plainPhoto({400, 300}));
        const QRectF frame = scene.layers.at(0)->frame;
        const QRect ink = inkBox(MakeWatermarkImage(scene, stack), Qt::white, 100);
        EXPECT_NEAR(ink.left(), frame.left() + 2 + 0.098 * 50, 1.0) << position;
        EXPECT_NEAR(ink.right() + 1, frame.right() - 8 - 0.098 * 50, 1.0) << position;
        EXPECT_EQ(299 - ink.bottom(), frame.top() + std::round(0.236 * 50)) << position;
    }
}

}  // namespace
}  // namespace zelto
