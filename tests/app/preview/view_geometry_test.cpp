// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/view_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

ViewGeometry geometry(QSize viewport, QSize picture, std::optional<double> scale = {}, QPoint scroll = {}) {
    ViewGeometry view;
    view.viewport = viewport;
    view.picture = picture;
    view.fitToScreen = !scale;
    view.chosenScale = scale.value_or(1.0);
    view.scroll = scroll;
    return view;
}

TEST(ViewGeometry, FittingShowsTheWholePictureInTheMiddle) {
    const ViewGeometry wide = geometry({800, 600}, {4000, 2000});
    EXPECT_DOUBLE_EQ(wide.scale(), 0.2);
    EXPECT_EQ(wide.scaledSize(), QSize(800, 400));
    EXPECT_EQ(wide.origin(), QPoint(0, 100));
    EXPECT_EQ(wide.visibleRegion().rect, QRect(0, 0, 800, 400));
    const ViewGeometry tall = geometry({800, 600}, {100, 1200});
    EXPECT_EQ(tall.scaledSize(), QSize(50, 600));
    EXPECT_EQ(tall.origin(), QPoint(375, 0));
}

TEST(ViewGeometry, ThePointUnderThePointerStaysWhileZooming) {
    constexpr double Tolerance = 0.5 + 1e-9;  // the scroll position is whole device pixels
    for (const QPointF pointer :
         {QPointF(0, 0), QPointF(799, 599), QPointF(400, 300), QPointF(123.5, 456.25)}) {
        ViewGeometry view = geometry({800, 600}, {6000, 4000}, 0.5, {900, 500});
        for (const double factor : {1.1, 1.1, 3.0, 0.9, 2.0}) {
            const QPointF held = view.toPicture(pointer);
            view = view.zoomedAbout(view.scale() * factor, pointer);
            const QPointF off = view.toView(held) - pointer;
            EXPECT_LE(std::abs(off.x()), Tolerance) << factor;
            EXPECT_LE(std::abs(off.y()), Tolerance) << factor;
        }
    }
}

TEST(ViewGeometry, ZoomStaysWithinItsLimitsAndThePictureWithinTheView) {
    const ViewGeometry view = geometry({800, 600}, {1000, 1000}, 1.0, {200, 400});
    EXPECT_EQ(view.zoomedAbout(1e6, {0, 0}).scale(), ViewGeometry::LargestScale);
    EXPECT_EQ(view.zoomedAbout(1e-6, {0, 0}).scale(), ViewGeometry::SmallestScale);
    const ViewGeometry smaller = view.zoomedAbout(0.5, {800, 600});
    EXPECT_EQ(smaller.clampedScroll(), QPoint(0, 0));
    EXPECT_EQ(smaller.origin(), QPoint(150, 50));
}

TEST(ViewGeometry, TheComfortableRegionHoldsWhatIsSeenAndEndsAtThePicture) {
    for (const QPoint scroll : {QPoint(0, 0), QPoint(500, 500), QPoint(5200, 3400)}) {
        const ViewGeometry view = geometry({800, 600}, {6000, 4000}, 1.0, scroll);
        const ViewRegion seen = view.visibleRegion();
        const ViewRegion comfortable = view.comfortableRegion();
        EXPECT_EQ(seen.rect, QRect(scroll, QSize(800, 600)));
        EXPECT_TRUE(comfortable.rect.contains(seen.rect));
        EXPECT_TRUE(QRect(0, 0, 6000, 4000).contains(comfortable.rect));
        EXPECT_GT(comfortable.rect.width(), 800);
    }
}

TEST(ViewGeometry, AScaledRectangleHoldsEveryPixelItTouches) {
    EXPECT_TRUE(scaledRect({10, 10, 5, 5}, 0.3).contains(QRect(3, 3, 2, 2)));
    EXPECT_TRUE(scaledRect({10, 10, 5, 5}, 4.0).contains(QRect(40, 40, 20, 20)));
    EXPECT_TRUE(scaledRect({0, 0, 1, 1}, 1.0).contains(QRect(0, 0, 1, 1)));
}

}  // namespace
}  // namespace zelto
