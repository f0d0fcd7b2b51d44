// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/region_composer.h"

#include "app/preview/halved_picture.h"
#include "render/scene_geometry.h"
#include "support/ink.h"
#include "support/records.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

constexpr QSize ComposedSize(643, 481);

TEST(ComposeRegion, AtActualSizeItIsThatPartOfTheWrittenPicture) {
    WatermarkStack framed = everyKind();
    framed.Effects = PhotoEffects();
    framed.Effects->Distance = 9;
    framed.Effects->BlurRadius = 6;
    framed.Effects->Direction = 135;
    WatermarkStack onBorder = framed;
    onBorder.Effects->ApplyWatermarkOnBorder = true;
    onBorder.SelectedFilter = 12;
    for (const WatermarkStack& stack : {everyKind(), framed, onBorder}) {
        const PhotoScene scene = sceneOf(stack, drawnScene(ComposedSize));
        const QImage written = MakeWatermarkImage(scene, stack);
        const QRect all = written.rect();
        for (const QRect& part : {all, QRect(0, 0, 200, 150), QRect(101, 67, 333, 222),
                                  QRect(all.right() - 99, all.bottom() - 79, 100, 80)}) {
            const QImage seen = composeRegion(scene, stack, {1.0, part});
            EXPECT_EQ(seen.convertToFormat(QImage::Format_ARGB32),
                      written.copy(part).convertToFormat(QImage::Format_ARGB32))
                << part.x() << ", " << part.y() << "; off by " << largestDifference(seen, written.copy(part));
        }
    }
}

TEST(ComposeRegion, ReducedItIsTheWrittenPictureReduced) {
    const WatermarkStack stack = everyKind();
    const PhotoScene scene = sceneOf(stack, drawnSceneWithAlpha(ComposedSize));
    const QImage written = MakeWatermarkImage(scene, stack);
    for (const int times : {1, 2, 3}) {
        const QImage reduced = halvedPicture(written, written.rect(), times);
        const QSize whole(written.width() >> times, written.height() >> times);
        const double scale = 1.0 / (1 << times);
        const QImage seen = composeRegion(scene, stack, {scale, QRect(QPoint(0, 0), whole)});
        EXPECT_EQ(seen, reduced.copy(QRect(QPoint(0, 0), whole))) << times;
    }
}

TEST(ComposeRegion, PiecesOfAnyScaleFitTogether) {
    // One step of 255 either way: smooth scaling counts in fractions from where a piece begins.
    constexpr int Tolerance = 1;
    const WatermarkStack stack = everyKind();
    const PhotoScene scene = sceneOf(stack, drawnScene(ComposedSize));
    for (const double scale : {0.31, 0.77, 1.3, 3.0}) {
        const QSize size = (QSizeF(ComposedSize) * scale).toSize();
        const QImage whole = composeRegion(scene, stack, {scale, QRect(QPoint(0, 0), size)});
        const QRect part(size.width() / 3, size.height() / 4, size.width() / 2, size.height() / 2);
        EXPECT_LE(largestDifference(composeRegion(scene, stack, {scale, part}), whole.copy(part)), Tolerance)
            << scale;
    }
}

// Two colours by turns, so that memory used again does not look as if it had been drawn on.
TEST(ComposeRegion, ReachesTheLastRowAndColumnAtEveryWidthOfTheWindow) {
    for (const QSize size :
         {QSize(800, 600), QSize(1500, 1000), QSize(1920, 1080), QSize(600, 800), QSize(643, 481)}) {
        PhotoScene scenes[2];
        for (const int i : {0, 1}) {
            scenes[i].picture = QImage(size, QImage::Format_RGB32);
            scenes[i].picture.fill(i == 0 ? Qt::white : Qt::black);
        }
        for (int width = 500; width <= 1200; ++width) {
            const PhotoScene& scene = scenes[width % 2];
            ViewGeometry view;
            view.viewport = {width, width};
            view.picture = size;
            const QRect all(QPoint(0, 0), view.scaledSize());
            constexpr int Strip = 4;
            for (const QRect& edge :
                 {all.adjusted(0, all.height() - Strip, 0, 0), all.adjusted(all.width() - Strip, 0, 0, 0)}) {
                const QImage seen = composeRegion(scene, {}, {view.scale(), edge});
                ASSERT_EQ(seen.size(), edge.size());
                QImage expected(edge.size(), QImage::Format_RGB32);
                expected.fill(scene.picture.pixelColor(0, 0));
                ASSERT_EQ(largestDifference(seen, expected), 0) << size.width() << " in " << width;
            }
        }
    }
}

TEST(LayerReach, HoldsEveryPixelALayerChanges) {
    const WatermarkStack all = everyKind();
    for (std::size_t i = 0; i + 1 < all.Watermarks.size(); ++i) {
        WatermarkStack stack;
        stack.Watermarks.push_back(all.Watermarks[i]);
        const PhotoScene scene = sceneOf(stack, drawnScene(ComposedSize));
        const QImage written = MakeWatermarkImage(scene, stack);
        const QRect reach = layerReach(scene, 0);
        EXPECT_FALSE(reach.isEmpty());
        for (int y = 0; y < written.height(); ++y) {
            for (int x = 0; x < written.width(); ++x) {
                if (written.pixel(x, y) == scene.picture.pixel(x, y)) continue;
                ASSERT_TRUE(reach.contains(x, y)) << "record " << i << " at " << x << ", " << y;
            }
        }
    }
}

TEST(HalvedPicture, EachPixelIsTheMeanOfItsSquareAlsoAtTheEdges) {
    QImage picture(5, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 5; ++x) picture.setPixel(x, y, qRgb(10 * x, 20 * y, 100));
    }
    const QImage half = halvedPicture(picture, picture.rect(), 1);
    ASSERT_EQ(half.size(), QSize(3, 2));
    EXPECT_EQ(half.pixel(0, 0), qRgb(5, 10, 100));
    EXPECT_EQ(half.pixel(2, 0), qRgb(40, 10, 100)) << "half a square at the right";
    EXPECT_EQ(half.pixel(1, 1), qRgb(25, 40, 100)) << "half a square at the bottom";
    EXPECT_EQ(half.pixel(2, 1), qRgb(40, 40, 100)) << "a quarter in the corner";
}

}  // namespace
}  // namespace zelto
