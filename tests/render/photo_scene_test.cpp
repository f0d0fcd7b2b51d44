// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_scene.h"

#include "composed.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace zelto {
namespace {

PhotoEffects effectOf(std::int64_t left, std::int64_t top, std::int64_t right, std::int64_t bottom) {
    PhotoEffects effect;
    effect.LeftThickness = left;
    effect.TopThickness = top;
    effect.RightThickness = right;
    effect.BottomThickness = bottom;
    effect.EnableShadow = false;
    return effect;
}

PhotoScene sceneOf(const WatermarkStack& stack, QSize size, bool final = true) {
    PhotoRequest request = requestFor(stack);
    request.final = final;
    Picture photo;
    photo.image = plainPhoto(size, Qt::green);
    return buildPhotoScene(request, std::move(photo));
}

TEST(PhotoScene, ReferenceIsThePhotoOrTheFrameButNeverTheShadow) {
    WatermarkStack stack;
    PhotoScene scene = sceneOf(stack, {100, 80});
    EXPECT_EQ(scene.referenceSize, QSizeF(100, 80));
    EXPECT_EQ(scene.imageRect, QRect(0, 0, 100, 80));

    stack.Effects = effectOf(5, 10, 15, 20);
    scene = sceneOf(stack, {100, 80});
    EXPECT_EQ(scene.referenceSize, QSizeF(100, 80));
    EXPECT_EQ(scene.imageRect, QRect(5, 20, 100, 80));
    EXPECT_EQ(scene.borderRect, QRect(0, 0, 120, 110));
    EXPECT_EQ(scene.picture.size(), QSize(120, 110));

    stack.Effects->ApplyWatermarkOnBorder = true;
    stack.Effects->EnableShadow = true;
    stack.Effects->Direction = 180;
    stack.Effects->BlurRadius = 10;
    stack.Effects->Distance = 5;
    for (const bool final : {true, false}) {
        scene = sceneOf(stack, {100, 80}, final);
        EXPECT_EQ(scene.referenceSize, QSizeF(120, 110)) << final;
        EXPECT_EQ(scene.picture.width(), final ? 135 : 120);
        EXPECT_EQ(scene.borderRect.x(), final ? 15 : 0);
    }
}

TEST(PhotoScene, ReadsThePhotoUprightAndTellsItsResolutionToTheMacros) {
    const QTemporaryDir folder;
    PhotoRequest request;
    request.path = folder.filePath(QStringLiteral("beach.jpg"));
    QFile file(request.path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(jpegBytes(drawnScene({60, 40}), {.orientation = 6, .exifDpi = 300, .profile = {}}));
    file.close();
    WatermarkStack stack;
    stack.Watermarks = {
        textRecord(QStringLiteral("<<IMGNAME>> <<PHOTOWIDTH>>x<<PHOTOHEIGHT>> <<PHOTODPIX>>"), 10)};
    request.stack = std::make_shared<const WatermarkStack>(stack);
    const Result<PhotoScene> scene = buildPhotoScene(request);
    ASSERT_TRUE(scene);
    EXPECT_EQ(scene->photoSize, QSize(40, 60));
    const auto& content = std::get<LayerContent>(scene->layers.at(0)->child);
    EXPECT_EQ(std::get<TextBlock>(content).text, QStringLiteral("beach 40x60 300"));

    request.path = folder.filePath(QStringLiteral("none.jpg"));
    const Result<PhotoScene> missing = buildPhotoScene(request);
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().code, ErrorCode::NotFound);
}

TEST(PhotoScene, RecordsWithoutALayerLeaveTheirPlaceEmpty) {
    WatermarkStack stack;
    Watermark tiledShape = boxRecord(10, 10, 1);
    tiledShape.VerticalTiling = true;
    Watermark turnedCode(watermark_type::QrCode);
    turnedCode.Text = QStringLiteral("x");
    turnedCode.Rotation = 90;
    Watermark tiledCode(watermark_type::QrCode);
    tiledCode.HorizontalTiling = true;
    Watermark turnedShape = boxRecord(10, 30, 7);
    turnedShape.Rotation = 90;
    Watermark logo(watermark_type::Image);
    logo.ImageData = "no picture";
    Watermark tiledLogo = logo;
    tiledLogo.HorizontalTiling = true;
    Watermark disabled = textRecord(QStringLiteral("x"), 10);
    disabled.IsEnabled = false;
    stack.Watermarks = {tiledShape,  turnedCode, tiledCode, Watermark(7),
                        turnedShape, logo,       tiledLogo, disabled};
    const PhotoScene scene = sceneOf(stack, {100, 80});
    ASSERT_EQ(scene.layers.size(), 8U);
    for (const std::size_t none : {0U, 1U, 2U, 3U}) EXPECT_FALSE(scene.layers[none]) << none;
    EXPECT_EQ(scene.layers[4]->frame, QRectF(0, 0, 30, 10)) << "a shape turns before it is placed";
    EXPECT_EQ(scene.layers[5]->frame.size(), QSizeF(0, 0));
    EXPECT_TRUE(std::holds_alternative<LayerContent>(scene.layers[6]->child));
    EXPECT_FALSE(scene.layers[4]->hidden);
    EXPECT_TRUE(scene.layers[7]->hidden);
    EXPECT_EQ(scene.layers[7]->wmark, 7U);
    EXPECT_EQ(largestDifference(MakeWatermarkImage(scene, stack).copy(0, 0, 100, 70),
                                scene.picture.copy(0, 0, 100, 70)),
              0);
}

TEST(PhotoScene, QrCodesTakeTheirSideFromTheWidthOrInPixels) {
    struct Row {
        std::int64_t format;
        bool byWidth;
        float size;
        double side;
    };
    for (const Row& row :
         {Row{0, true, 0.2F, 100}, Row{0, false, 0.2F, 0}, Row{1, false, 60, 60}, Row{2, true, 60, 60},
          Row{1, true, -5, 0}, Row{1, true, std::numeric_limits<float>::quiet_NaN(), 0}}) {
        WatermarkStack stack;
        Watermark code(watermark_type::QrCode);
        code.Text = QStringLiteral("<<IMGNAME>>");
        code.ResizeFormat = row.format;
        code.ResizebyWidth = row.byWidth;
        code.ResizeWidth = row.size;
        code.Position = 7;
        stack.Watermarks = {code};
        const PhotoScene scene = sceneOf(stack, {500, 300});
        EXPECT_NEAR(scene.layers.at(0)->frame.width(), row.side, 1e-4);
        const QRect ink = inkBox(MakeWatermarkImage(scene, stack), Qt::green);
        EXPECT_EQ(ink, row.side > 0 ? QRect(0, 300 - int(row.side), int(row.side), int(row.side)) : QRect());
    }
}

TEST(PhotoScene, ALogosSizeIsReportedForItsRecordAndItsOpacityForThePreview) {
    Watermark logo(watermark_type::Image);
    QBuffer buffer(&logo.ImageData);
    drawnScene({40, 20}).save(&buffer, "PNG");
    logo.Resize = true;
    logo.ResizeWidth = 0.5F;
    logo.Transparency = 0.5F;
    WatermarkStack stack;
    stack.Watermarks = {logo};
    const PhotoScene scene = sceneOf(stack, {100, 80});
    EXPECT_EQ(scene.layers.at(0)->logoSize, QSize(40, 20));
    EXPECT_EQ(scene.layers.at(0)->frame.size(), QSizeF(50, 25));
    EXPECT_EQ(scene.layers.at(0)->contentOpacity, 0.5);
}

WatermarkStack everything() {
    WatermarkStack stack;
    Watermark text = textRecord(QStringLiteral("<<IMGNAME>> \u05e9\u05dc\u05d5\u05dd"), 30, 5);
    text.Shadow = true;
    text.ShadowColor = Color::black();
    text.Transparency = 0.6F;
    text.Rotation = 12;
    Watermark tiles = textRecord(QStringLiteral("tile"), 14);
    tiles.TextEffect = 3;
    tiles.HorizontalTiling = tiles.VerticalTiling = true;
    tiles.Rotation = -30;
    Watermark logo(watermark_type::Image);
    QBuffer buffer(&logo.ImageData);
    drawnSceneWithAlpha({80, 60}).save(&buffer, "PNG");
    logo.Transparency = 0.7F;
    logo.Resize = true;
    logo.ResizeWidth = 0.3F;
    logo.Rotation = 45;
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("hello");
    stack.Watermarks = {text, tiles, logo, code, boxRecord(30, 20, 3)};
    stack.Effects = effectOf(4, 4, 4, 4);
    return stack;
}

TEST(PhotoScene, TheSameOnEveryThreadAtTheSameTime) {
    const WatermarkStack stack = everything();
    PhotoRequest request = requestFor(stack);
    request.logos = std::make_shared<LogoCache>();
    const auto make = [&] {
        Picture photo;
        photo.image = drawnScene({400, 300});
        return MakeWatermarkImage(buildPhotoScene(request, std::move(photo)), stack);
    };
    const QImage expected = make();
    std::vector<QImage> results(4);
    std::vector<std::thread> threads;
    for (QImage& result : results) {
        threads.emplace_back([&] {
            for (int i = 0; i < 3; ++i) result = make();
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const QImage& result : results) EXPECT_EQ(result, expected);
}

TEST(PhotoScene, OneSceneIsDrawnByManyThreads) {
    const WatermarkStack stack = everything();
    Picture photo;
    photo.image = drawnScene({400, 300});
    const PhotoScene scene = buildPhotoScene(requestFor(stack), std::move(photo));
    const QImage expected = MakeWatermarkImage(scene, stack);
    std::vector<QImage> results(4);
    std::vector<std::thread> threads;
    for (QImage& result : results) threads.emplace_back([&] { result = MakeWatermarkImage(scene, stack); });
    for (std::thread& thread : threads) thread.join();
    for (const QImage& result : results) EXPECT_EQ(result, expected);
}

TEST(PhotoScene, AnEditRebuildsOneLayerAndEqualsANewScene) {
    WatermarkStack stack = everything();
    PhotoScene scene = sceneOf(stack, {400, 300});
    const auto* pixels = scene.picture.constBits();
    stack.Watermarks[0].Text = QStringLiteral("edited");
    UpdateWatermark(scene, requestFor(stack), 0);
    EXPECT_EQ(scene.picture.constBits(), pixels);
    EXPECT_EQ(MakeWatermarkImage(scene, stack), MakeWatermarkImage(sceneOf(stack, {400, 300}), stack));
    stack.Watermarks.erase(stack.Watermarks.begin() + 1);
    MakeWatermarkChanges(scene, requestFor(stack));
    EXPECT_EQ(MakeWatermarkImage(scene, stack), MakeWatermarkImage(sceneOf(stack, {400, 300}), stack));
}

}  // namespace
}  // namespace zelto
