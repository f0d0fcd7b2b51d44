// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_scene.h"

#include "failing_memory.h"
#include "platform/whole_file.h"
#include "support/ink.h"
#include "support/records.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <cmath>
#include <functional>
#include <vector>

namespace zelto {
namespace {

TEST(PhotoScene, ReferenceIsThePhotoOrTheFrameButNeverTheShadow) {
    WatermarkStack stack;
    stack.Effects.emplace();  // a border of 10 on every side
    stack.Effects->Direction = 180;
    stack.Effects->BlurRadius = 10;
    stack.Effects->Distance = 5;
    for (const bool onBorder : {false, true}) {
        stack.Effects->ApplyWatermarkOnBorder = onBorder;
        for (const bool final : {false, true}) {
            PhotoRequest request = requestFor(stack);
            request.final = final;
            const PhotoScene scene = *buildPhotoScene(request, {.image = plainPhoto({100, 80})});
            QRect area = onBorder ? scene.borderRect : scene.imageRect;  // the top row is the highest one
            area.moveTop(100 - area.y() - area.height());
            EXPECT_EQ(scene.referenceRect, area);
            EXPECT_EQ(scene.picture.size(), final ? QSize(135, 100) : QSize(120, 100));
            EXPECT_EQ(scene.borderRect, QRect(final ? 15 : 0, 0, 120, 100));
            EXPECT_EQ(scene.imageRect, scene.borderRect.adjusted(10, 10, -10, -10));
        }
    }
}

TEST(PhotoScene, ReadsThePhotoUprightAndTellsTheMacrosOfIt) {
    const QTemporaryDir folder;
    WatermarkStack stack;
    stack.Watermarks = {
        textRecord(QStringLiteral("<<IMGNAME>> <<PHOTOWIDTH>>x<<PHOTOHEIGHT>> <<PHOTODPIX>>"), 10)};
    PhotoRequest request = requestFor(stack);
    request.path = folder.filePath(QStringLiteral("beach.jpg"));
    EXPECT_EQ(buildPhotoScene(request).error().code, ErrorCode::NotFound);
    ASSERT_TRUE(
        writeWholeFile(request.path, jpegBytes(drawnScene({60, 40}), {.orientation = 6, .exifDpi = 300})));
    const Result<PhotoScene> scene = buildPhotoScene(request);
    ASSERT_TRUE(scene);
    EXPECT_EQ(scene->photoSize, QSize(40, 60));
    const auto& content = std::get<LayerContent>(scene->layers.at(0)->child);
    EXPECT_EQ(std::get<TextBlock>(content).text, QStringLiteral("beach 40x60 300"));
}

TEST(PhotoScene, QrCodesTakeTheirSideFromTheWidthOrInPixels) {
    const auto sideOf = [](std::int64_t format, bool byWidth, float size) {
        Watermark code(watermark_type::QrCode);
        code.Text = QStringLiteral("<<IMGNAME>>");
        code.ResizeFormat = format;
        code.ResizebyWidth = byWidth;
        code.ResizeWidth = size;
        return inkBox(composed(code, plainPhoto({500, 300}, Qt::green)), Qt::green).size();
    };
    EXPECT_EQ(sideOf(0, true, 0.2F), QSize(100, 100));
    EXPECT_EQ(sideOf(1, false, 60), QSize(60, 60));
    EXPECT_TRUE(sideOf(0, false, 0.2F).isEmpty() && sideOf(1, true, -5).isEmpty() &&
                sideOf(1, true, HUGE_VALF).isEmpty());
}

TEST(PhotoScene, TellsOfEachRecordWhyNothingOfItCanBeSeen) {
    const auto changed = [](Watermark record, const std::function<void(Watermark&)>& change) {
        change(record);
        return record;
    };
    const Watermark text = textRecord(QStringLiteral("Hi"), 20);
    const Watermark logo = logoRecord(plainPhoto({20, 10}, Qt::red));
    const Watermark box = boxRecord(50, 20, CustomPosition);
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("https://example.org/photos");
    code.ResizeWidth = 0.6F;
    struct Row {
        const char* kind;
        Watermark record;
    };
    const std::vector<Row> rows = {
        {"", text},
        {"", code},
        {"", boxRecord(500, 500, 7)},  // covers the whole photo, of which it is far larger
        {"", changed(logo, [](Watermark& w) { w.HorizontalTiling = w.VerticalTiling = true; })},
        {"", changed(box, [](Watermark& w) { w.CustomPositionLeft = 95; })},
        {"logo-unreadable", changed(logo, [](Watermark& w) { w.ImageData = "no picture"; })},
        {"empty-text", changed(text, [](Watermark& w) { w.Text = QStringLiteral(" \u00a0\n"); })},
        {"empty-text", changed(code, [](Watermark& w) { w.Text.clear(), w.Rotation = 90; })},
        {"missing-letters", changed(text, [](Watermark& w) { w.Text = QStringLiteral("a\u0378"); })},
        {"code-too-long", changed(code, [](Watermark& w) { w.Text = QString(3000, u'x'); })},
        {"code-too-fine", changed(code, [](Watermark& w) { w.ResizeWidth = 0.26F; })},
        {"code-too-fine", changed(code, [](Watermark& w) { w.ResizeWidth = 0; })},
        {"outside", changed(box, [](Watermark& w) { w.CustomPositionLeft = 96; })},
        {"outside",
         changed(text, [](Watermark& w) { w.Position = 7, w.PaddingLeft = 100, w.Rotation = 30; })},
        {"no-area", changed(box, [](Watermark& w) { w.Height = 0, w.VerticalTiling = true; })},
        {"no-area", changed(box, [](Watermark& w) { w.ShapeType = shape_type::Polygon, w.Sides = 2; })},
        {"no-layer", changed(code, [](Watermark& w) { w.Rotation = 90; })},
        {"no-layer", changed(box, [](Watermark& w) { w.HorizontalTiling = true; })},
        {"no-layer", changed(text, [](Watermark& w) { w.FontSize = 0; })},
        {"no-layer", changed(logo, [](Watermark& w) { w.Resize = true, w.ResizeWidth = 0; })},
        {"no-layer", changed(logo, [](Watermark& w) { w.VerticalTiling = true, w.PaddingTop = 90; })},
        {"no-layer", changed(text, [](Watermark& w) { w.Type = 9; })},
    };
    WatermarkStack stack;
    for (const Row& row : rows) stack.Watermarks.push_back(row.record);
    const PhotoScene scene = sceneOf(stack, plainPhoto({100, 80}));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& warning = scene.warnings[i];
        EXPECT_EQ(warning ? warning->kind : QString(), QLatin1String(rows[i].kind)) << i;
        EXPECT_TRUE(!warning || warning->watermark == static_cast<std::int64_t>(i)) << i;
    }
    for (const std::size_t none : {std::size_t{16}, std::size_t{17}, rows.size() - 1})
        EXPECT_FALSE(scene.layers[none]) << none;
    EXPECT_TRUE(scene.warnings[8]->text.contains(QChar(0x378)));
    for (Watermark& record : stack.Watermarks) record.IsEnabled = false;
    EXPECT_TRUE(warningsOf(sceneOf(stack, plainPhoto({100, 80}))).empty());
}

// The sanitizers bring an allocator of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
TEST(PhotoScene, IsRightToTheLastPixelOrFailsWhereverMemoryRunsOut) {
    WatermarkStack stack = everyKind();
    stack.Watermarks[1].FontSize = 40;  // tiles large enough to be told from a text
    stack.SelectedFilter = 9;
    stack.Effects.emplace();
    stack.Effects->BorderColor = Color{0.2F, 0.4F, 0.1F, 0.5F};
    stack.Effects->BlurRadius = stack.Effects->Distance = 20;
    stack.Effects->Direction = 45;
    const QImage photo = drawnScene({400, 300});
    PhotoRequest request = requestFor(stack);
    request.logos = std::make_shared<LogoCache>();  // what cannot be decoded is another matter
    const auto written = [&] {
        Result<PhotoScene> scene = buildPhotoScene(request, {.image = photo});
        return scene ? MakeWatermarkImage(*std::move(scene), stack) : QImage();
    };
    const QImage expected = written();
    ASSERT_FALSE(expected.isNull());
    int failures = 0;
    for (bool failed = true; failed; ++failures) {
        failLargeAllocation(failures);
        const QImage picture = written();
        failed = largeAllocationFailed();
        failLargeAllocation(-1);
        EXPECT_TRUE(failed ? picture.isNull() || picture == expected : picture == expected) << failures;
    }
    EXPECT_GE(failures, 8);
}
#endif

TEST(PhotoScene, AnEditRebuildsItsLayerAndEqualsANewScene) {
    WatermarkStack stack = everyKind();
    PhotoScene scene = sceneOf(stack, drawnScene({400, 300}));
    EXPECT_EQ(scene.layers[2]->logoSize, QSize(80, 60));
    const auto* pixels = scene.picture.constBits();
    stack.Watermarks[0].Text = QStringLiteral("edited");
    UpdateWatermark(scene, requestFor(stack), 0);
    EXPECT_EQ(scene.picture.constBits(), pixels);
    EXPECT_EQ(MakeWatermarkImage(scene, stack), composed(stack, drawnScene({400, 300})));
    stack.Watermarks.erase(stack.Watermarks.begin() + 1);
    MakeWatermarkChanges(scene, requestFor(stack));
    EXPECT_EQ(MakeWatermarkImage(scene, stack), composed(stack, drawnScene({400, 300})));
}

}  // namespace
}  // namespace zelto
