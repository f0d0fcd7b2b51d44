// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/scene_builder.h"

#include "app/preview/region_composer.h"
#include "support/ink.h"
#include "support/records.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto {
namespace {

constexpr QSize BuiltSize(640, 420);

// Puts what it is sent together, as the canvas does.
class SceneBuilderTest : public ::testing::Test {
  protected:
    SceneBuilderTest() {
        QObject::connect(&builder, &SceneBuilder::updated, [this](const PreviewUpdate& update) {
            shown = update.shown;
            ++updates;
            if (!update.isPatch) {
                whole = update;
            } else if (!update.image.isNull()) {
                ++patches;
                QPainter painter(&whole.image);
                painter.setCompositionMode(QPainter::CompositionMode_Source);
                painter.drawImage(update.region.rect.topLeft() - whole.region.rect.topLeft(), update.image);
            }
        });
        QObject::connect(&builder, &SceneBuilder::failed,
                         [this](const QString& path) { failed.append(path); });
        for (int i = 0; i < 3; ++i) {
            paths.append(folder.filePath(QStringLiteral("%1.jpg").arg(i)));
            QImage picture = drawnScene(BuiltSize);
            picture.setPixel(0, 0, qRgb(i, 0, 0));
            picture.save(paths.last(), "PNG");
        }
        stack.Watermarks = {textRecord(QStringLiteral("first"), 40, 1),
                            textRecord(QStringLiteral("second"), 40, 9)};
        stack.Watermarks[0].Shadow = true;
        stack.Watermarks[0].Transparency = 0.9F;
        view.viewport = QSize(400, 300);
    }

    PhotoRequest request(int photo) const {
        PhotoRequest request = requestFor(stack);
        request.path = paths[photo];
        return request;
    }

    bool settle() {
        return QTest::qWaitFor([this] { return builder.isSettled(); }, 10000);
    }

    // Whether the pieces came to what they should. Smooth scaling counts in fractions from where a piece begins.
    bool isRight() const {
        const int tolerance = whole.region.scale == 1.0 ? 0 : 1;
        const Result<PhotoScene> scene = buildPhotoScene(request(paths.indexOf(shown->path)));
        return largestDifference(whole.image, composeRegion(*scene, stack, whole.region)) <= tolerance;
    }

    QTemporaryDir folder;
    QStringList paths;
    WatermarkStack stack;
    ViewGeometry view;
    SceneBuilder builder;
    std::shared_ptr<const ShownScene> shown;
    PreviewUpdate whole;
    int updates = 0;
    int patches = 0;
    QStringList failed;
};

TEST_F(SceneBuilderTest, AnEditIsSentAsAPatchThatMakesThePictureRight) {
    view.fitToScreen = false;
    builder.setView(view);
    builder.showPhoto(request(0));
    ASSERT_TRUE(settle());
    ASSERT_TRUE(isRight());
    const std::function<void(Watermark&)> edits[] = {
        [](Watermark& w) { w.Text = QStringLiteral("a longer first"); },
        [](Watermark& w) { w.Position = 8; },
        [](Watermark& w) { w.FontSize = 12; },
        [](Watermark& w) { w.IsEnabled = false; },
        [](Watermark& w) { w.IsEnabled = true; },
        [](Watermark& w) { w.HorizontalTiling = true; },
        [](Watermark& w) {
            w.HorizontalTiling = false;
            w.Rotation = 40;
        },
    };
    int edit = 0;
    for (const auto& change : edits) {
        change(stack.Watermarks[0]);
        builder.updateLayers(request(0), {0});
        ASSERT_TRUE(settle());
        EXPECT_TRUE(isRight()) << "edit " << edit++;
    }
    EXPECT_GT(patches, 0);
}

TEST_F(SceneBuilderTest, OnlyTheNewestOfManyPhotosIsSent) {
    builder.setView(view);
    for (int i = 0; i < 30; ++i) builder.showPhoto(request(i % 3));
    ASSERT_TRUE(settle());
    EXPECT_EQ(shown->path, paths[2]);
    EXPECT_LT(updates, 3);
    EXPECT_TRUE(isRight());
}

TEST_F(SceneBuilderTest, FastTypingLosesNoLetter) {
    builder.setView(view);
    builder.showPhoto(request(1));
    QString typed;
    for (int i = 0; i < 40; ++i) {
        typed += QLatin1Char('a' + i % 26);
        stack.Watermarks[1].Text = typed.right(9);
        builder.updateLayers(request(1), {1});
    }
    ASSERT_TRUE(settle());
    EXPECT_TRUE(isRight());
}

TEST_F(SceneBuilderTest, ThePhotoIsShownWithoutItsLayersAndWithThemAgain) {
    builder.setView(view);
    builder.showPhoto(request(0));
    ASSERT_TRUE(settle());
    const QImage before = whole.image;
    builder.setBare(true);
    ASSERT_TRUE(settle());
    EXPECT_NE(whole.image, before);
    const QImage bare = whole.image;
    stack.Watermarks[1].Text = QStringLiteral("other");
    builder.updateLayers(request(0), {1});
    ASSERT_TRUE(settle());
    EXPECT_EQ(whole.image, bare) << "an edit meanwhile";
    builder.setBare(false);
    ASSERT_TRUE(settle());
    EXPECT_TRUE(isRight());
}

TEST_F(SceneBuilderTest, WhatIsNotSeenIsNotComposedUntilItIs) {
    view.fitToScreen = false;
    view.chosenScale = 4.0;
    builder.setView(view);
    builder.showPhoto(request(0));
    ASSERT_TRUE(settle());
    EXPECT_LT(whole.region.rect.width(), 4 * BuiltSize.width());
    stack.Watermarks[1].Text = QStringLiteral("far away");
    const int before = patches;
    builder.updateLayers(request(0), {1});
    ASSERT_TRUE(settle());
    EXPECT_EQ(patches, before);
    view.scroll = QPoint(2160, 1380);
    builder.setView(view);
    ASSERT_TRUE(settle());
    EXPECT_TRUE(whole.region.rect.contains(QRect(view.scroll, view.viewport)));
    EXPECT_TRUE(isRight());
}

TEST_F(SceneBuilderTest, APhotoThatCannotBeReadIsToldOnceAndAFileThatChangedIsReadAgain) {
    paths[1] = folder.filePath(QStringLiteral("missing.jpg"));
    builder.setView(view);
    builder.showPhoto(request(1));
    ASSERT_TRUE(settle());
    view.viewport = QSize(100, 100);
    builder.setView(view);
    ASSERT_TRUE(settle());
    EXPECT_EQ(failed, QStringList(paths[1]));
    builder.showPhoto(request(0));
    ASSERT_TRUE(settle());
    drawnScene({320, 200}).save(paths[0], "PNG");
    builder.showPhoto(request(0));
    ASSERT_TRUE(settle());
    EXPECT_EQ(shown->scene.photoSize, QSize(320, 200));
}

}  // namespace
}  // namespace zelto
