// SPDX-License-Identifier: GPL-3.0-or-later
// Layers moved, sized and turned: what becomes of the record, and where the layer then lies in the built scene.
#include "app/preview/layer_gesture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

constexpr QSize PhotoSize(1000, 800);
constexpr double Snap = 10.0;

PhotoRequest requestFor(const Watermark& record) {
    PhotoRequest request;
    WatermarkStack stack;
    stack.Watermarks = {record};
    stack.Effects.emplace().EnableShadow = false;  // a border of 10, so that the area is not the picture
    request.stack = std::make_shared<const WatermarkStack>(stack);
    return request;
}

PhotoScene sceneOf(const PhotoRequest& request, QSize size = PhotoSize) {
    Picture photo;
    photo.image = QImage(size, QImage::Format_RGB32);
    return *buildPhotoScene(request, std::move(photo));
}

// A bar of 200 x 100 at the lower right, 30 from the right and 20 from the bottom edge.
Watermark bar(std::int32_t position = 9) {
    Watermark record(watermark_type::Shape);
    record.Width = 200.0F;
    record.Height = 100.0F;
    record.Transparency = 1.0F;
    record.Position = position;
    record.PaddingRight = 30;
    record.PaddingBottom = 20;
    return record;
}

// A gesture at a point of the layer, given as a share of its frame, and what comes of it.
struct Hand {
    PhotoRequest request;
    PhotoScene scene;
    QRectF before;
    LayerGesture gesture;

    Hand(const Watermark& record, const Grip& grip, QPointF share)
        : request(requestFor(record)),
          scene(sceneOf(request)),
          before(layerFrame(scene, 0)),
          gesture(scene, *request.stack, 0, grip,
                  before.topLeft() + QPointF(share.x() * before.width(), share.y() * before.height())),
          from(before.topLeft() + QPointF(share.x() * before.width(), share.y() * before.height())) {}

    Watermark by(QPointF step, bool isFree = false, double snap = Snap) {
        Watermark record = request.stack->Watermarks[0];
        gesture.moveTo(from + step, snap, isFree)(record);
        return record;
    }
    // The frame a record then has in the area, from its top left.
    static QRectF frame(const Watermark& record, QSize size = PhotoSize) {
        return layerFrame(sceneOf(requestFor(record), size), 0).translated(-10, -10);
    }

    QPointF from;
};

constexpr QPointF Middle(0.5, 0.5);

TEST(LayerGesture, MovingSnapsToEdgesAndMiddlesAndStaysInReach) {
    struct Row {
        QPointF by;
        QPointF place;
        std::int32_t position;
        double snap = Snap;
    };
    for (const Row& row :
         {Row{{-20.4, -13.2}, {750, 667}, 9}, Row{{24, 5}, {800, 685}, 9}, Row{{24, 24}, {800, 700}, 9},
          Row{{-366, -326}, {400, 350}, 5}, Row{{-372, -315}, {398, 365}, 5, 0.0},
          Row{{-765, -675}, {0, 0}, 1}, Row{{-600, -300}, {170, 380}, 4}, Row{{-5000, -5000}, {0, 0}, 1},
          Row{{5000, 5000}, {984, 700}, 9}}) {
        const Watermark moved = Hand(bar(), {}, Middle).by(row.by, false, row.snap);
        EXPECT_EQ(Hand::frame(moved).topLeft(), row.place) << row.by.x() << ", " << row.by.y();
        EXPECT_EQ(moved.Position, row.position);
    }
    const Watermark moved = Hand(bar(), {}, Middle).by({-13, -40});
    EXPECT_EQ(Hand::frame(moved, {400, 3000}).bottomRight(), QPointF(400 - 43, 3000 - 60))
        << "on another photo";
    Watermark custom = bar(CustomPosition);
    const Watermark movedCustom = Hand(custom, {}, Middle).by({300, 200}, false, 0.0);
    EXPECT_EQ(movedCustom.Position, CustomPosition) << "what the user has chosen";
    EXPECT_EQ(Hand::frame(movedCustom).topLeft(), QPointF(300, 200));
}

TEST(LayerGesture, SizingHoldsTheOppositeCornerAndTheProportions) {
    struct Row {
        std::int32_t position;
        QPoint corner;
        QPointF by;
        bool isFree;
        QRectF frame;  // in the area
    };
    for (const Row& row : {Row{9, {-1, -1}, {-200, -100}, false, {570, 580, 400, 200}},
                           Row{9, {-1, -1}, {-100, -200}, true, {670, 480, 300, 300}},
                           Row{9, {1, 1}, {-100, -50}, false, {770, 680, 100, 50}},
                           Row{1, {1, 1}, {100, 50}, false, {0, 0, 300, 150}},
                           Row{1, {-1, 1}, {100, -90}, true, {100, 0, 100, 10}},
                           Row{5, {1, -1}, {100, -50}, false, {300, 300, 400, 200}},
                           Row{9, {-1, -1}, {5000, 5000}, false, {969, 779, 1, 1}}}) {
        const QPointF share((row.corner.x() + 1) / 2.0, (row.corner.y() + 1) / 2.0);
        Watermark record = bar(row.position);
        const Watermark sized = Hand(record, {Grip::Part::Corner, row.corner}, share).by(row.by, row.isFree);
        EXPECT_EQ(Hand::frame(sized).topLeft(), row.frame.topLeft()) << row.position;
        EXPECT_EQ(Hand::frame(sized).size(), row.frame.size());
        EXPECT_EQ(sized.Position, row.position);
    }
    // What follows the photo goes on doing so; a text and a code keep their proportions whatever is held.
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("code");
    const Watermark sizedCode = Hand(code, {Grip::Part::Corner, {1, 1}}, {1, 1}).by({100, 100}, true);
    EXPECT_FLOAT_EQ(sizedCode.ResizeWidth, 0.3F);
    Watermark text(watermark_type::Text);
    text.Text = QStringLiteral("text");
    text.FontFamily = QStringLiteral("DejaVu Sans");
    text.FontSize = 50;
    text.TextColor = Color::white();
    text.Position = 9;
    text.PaddingRight = 12;
    Hand hand(text, {Grip::Part::Corner, {-1, -1}}, {0, 0});
    const Watermark sizedText = hand.by({-hand.before.width(), -hand.before.height()});
    EXPECT_EQ(sizedText.FontSize, 100);
    EXPECT_EQ(sizedText.PaddingRight, 12);
    EXPECT_EQ(sizedText.PaddingBottom, 0);
}

TEST(LayerGesture, TurningKeepsTheCornerAndStepsWhereWanted) {
    Hand hand(bar(), {Grip::Part::Turn, {}}, {0.5, -0.2});
    const Watermark quarter = hand.by({20, 70});
    EXPECT_NE(quarter.Rotation, 0);
    EXPECT_EQ(quarter.PaddingRight, 30);
    EXPECT_EQ(quarter.PaddingBottom, 20);
    EXPECT_EQ(std::round(Hand::frame(quarter).right()), 970);
    for (const QPointF by : {QPointF(60, 10), QPointF(90, 80), QPointF(-70, 130), QPointF(10, 300)}) {
        EXPECT_EQ(hand.by(by, true).Rotation % 15, 0);
        EXPECT_LE(std::abs(hand.by(by).Rotation), 180);
    }
    // About its middle where its place is its own.
    Watermark custom = bar(CustomPosition);
    custom.CustomPositionLeft = 300;
    custom.CustomPositionTop = 200;
    Hand free(custom, {Grip::Part::Turn, {}}, {0.5, 0.0});
    const Watermark turned = free.by({50, 50});  // from above the middle to the right of it
    EXPECT_EQ(turned.Rotation, 90);
    EXPECT_EQ(Hand::frame(turned).center(), QPointF(400, 250));
}

TEST(LayerAt, TakesTheTopmostOfThePlainLayersAndTiledOnesLast) {
    PhotoScene scene;
    WatermarkStack stack;
    scene.picture = QImage(1000, 800, QImage::Format_RGB32);
    scene.size = scene.picture.size();
    scene.referenceRect = scene.picture.rect();
    for (const QRectF& frame :
         {QRectF(100, 600, 200, 100), QRectF(250, 550, 200, 100), QRectF(0, 0, 1000, 800)}) {
        WatermarkView layer;
        layer.frame = frame;
        scene.layers.emplace_back(layer);
        stack.Watermarks.emplace_back(watermark_type::Text);
    }
    stack.Watermarks[2].HorizontalTiling = true;
    const auto at = [&](QPointF point, double reach = 0.0) { return layerAt(scene, stack, point, reach); };
    EXPECT_EQ(at({150, 150}), 0);
    EXPECT_EQ(at({275, 175}), 1) << "where both lie";
    EXPECT_EQ(at({900, 700}), 2);
    stack.Watermarks[1].IsEnabled = false;
    EXPECT_EQ(at({275, 175}), 0) << "one that is switched off is not there";
    stack.Watermarks[2].IsEnabled = false;
    EXPECT_EQ(at({900, 700}), std::nullopt);
    scene.layers[0]->frame = QRectF(100, 600, 2, 2);
    EXPECT_EQ(at({108, 199}), std::nullopt);
    EXPECT_EQ(at({108, 199}, 12.0), 0) << "a tiny layer can be gripped beside it";
}

}  // namespace
}  // namespace zelto
