// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/layer_drag.h"

#include <gtest/gtest.h>

namespace zelto {
namespace {

const QRectF Area(100, 50, 1000, 800);
const QRectF Frame(300, 200, 200, 100);
constexpr double Snap = 10.0;

struct Drop {
    QPoint place;
    std::optional<double> guideX;
    std::optional<double> guideY;
};

Drop drag(QPointF by, double snap = Snap) {
    LayerDrag drag(0, Frame, Area, Frame.center());
    drag.moveTo(Frame.center() + by, snap);
    return {drag.place(), drag.guides().x, drag.guides().y};
}

TEST(LayerDrag, FollowsThePointerInWholePixelsOfTheArea) {
    EXPECT_EQ(drag({33.4, -41.2}).place, QPoint(233, 109));
    EXPECT_FALSE(drag({33.4, -41.2}).guideX.has_value());
}

TEST(LayerDrag, SnapsToTheEdgesAndTheMiddle) {
    struct Row {
        QPointF by;
        QPoint place;
        std::optional<double> x;
        std::optional<double> y;
    };
    const Row rows[] = {
        {{-193, 40}, {0, 190}, 100, {}},     // left edge
        {{205, 40}, {400, 190}, 600, {}},    // middle
        {{606, 40}, {800, 190}, 1100, {}},   // right edge
        {{40, -146}, {240, 0}, {}, 50},      // top
        {{40, 203}, {240, 350}, {}, 450},    // middle
        {{40, 542}, {240, 700}, {}, 850},    // bottom
        {{205, 203}, {400, 350}, 600, 450},  // the very middle
        {{211, 40}, {411, 190}, {}, {}},     // just too far
    };
    for (const Row& row : rows) {
        const Drop drop = drag(row.by);
        EXPECT_EQ(drop.place, row.place) << row.by.x() << ", " << row.by.y();
        EXPECT_EQ(drop.guideX, row.x);
        EXPECT_EQ(drop.guideY, row.y);
    }
    EXPECT_EQ(drag({205, 203}, 0.0).place, QPoint(405, 353)) << "without snapping";
}

TEST(LayerDrag, StaysWhereCustomPlacingCanPutIt) {
    EXPECT_EQ(drag({-5000, -5000}, 0.0).place, QPoint(0, 0));
    EXPECT_EQ(drag({0, 5000}, 0.0).place, QPoint(200, 700));
    const QPoint farRight = drag({5000, 0}, 0.0).place;
    EXPECT_GT(farRight.x(), 800) << "the right edge may be passed";
    EXPECT_LT(farRight.x(), 1000) << "but something stays to be gripped";
    EXPECT_EQ(reachablePlace({0, 400}, {3000, 2000}, Area), QPointF(100, 50))
        << "a layer larger than the area";
}

// A scene of 1000 x 800 with two plain layers that overlap and a tiled one over everything.
struct Scene {
    PhotoScene scene;
    WatermarkStack stack;

    Scene() {
        scene.picture = QImage(1000, 800, QImage::Format_RGB32);
        scene.referenceRect = scene.picture.rect();
        const QRectF frames[] = {{100, 600, 200, 100}, {250, 550, 200, 100}, {0, 0, 1000, 800}};
        for (const QRectF& frame : frames) {
            WatermarkView layer;
            layer.frame = frame;
            scene.layers.emplace_back(layer);
            stack.Watermarks.emplace_back(watermark_type::Text);
        }
        stack.Watermarks[2].HorizontalTiling = true;
    }
};

TEST(LayerAt, TakesTheTopmostOfThePlainLayersAndTiledOnesLast) {
    Scene scene;
    const auto at = [&](QPointF point, double reach = 0.0) {
        return layerAt(scene.scene, scene.stack, point, reach);
    };
    EXPECT_EQ(at({150, 150}), 0);
    EXPECT_EQ(at({275, 175}), 1) << "where both lie";
    EXPECT_EQ(at({900, 700}), 2);
    scene.stack.Watermarks[1].IsEnabled = false;
    EXPECT_EQ(at({275, 175}), 0) << "one that is switched off is not there";
    scene.stack.Watermarks[2].IsEnabled = false;
    EXPECT_EQ(at({900, 700}), std::nullopt);
    scene.scene.layers[0]->frame = QRectF(100, 600, 2, 2);
    EXPECT_EQ(at({108, 199}), std::nullopt);
    EXPECT_EQ(at({108, 199}, 12.0), 0) << "a tiny layer can be gripped beside it";
}

}  // namespace
}  // namespace zelto
