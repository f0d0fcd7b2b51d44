// SPDX-License-Identifier: GPL-3.0-or-later
// What the preview shows at its actual size beside the file that a run writes, pixel by pixel.
#include "app/preview/preview_paint.h"
#include "app/run/run_window.h"
#include "support/ink.h"
#include "support/records.h"

#include <QPainter>
#include <QTest>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QSize WrittenSize(420, 280);

TEST_F(RunWindow, ThePreviewAtActualSizeIsTheWrittenPicture) {
    const auto framed = [](bool shadow, bool onBorder) {
        WatermarkStack stack = everyKind();
        PhotoEffects& effects = stack.Effects.emplace();  // a border of 10 on every side
        effects.BottomThickness = 24;
        effects.EnableShadow = shadow;
        effects.BlurRadius = 12;
        effects.Distance = 9;
        effects.Direction = 315;
        effects.ShadowColor = Color{0.0F, 0.0F, 0.3F, 0.6F};
        effects.ApplyWatermarkOnBorder = onBorder;
        return stack;
    };
    const auto faded = [](float opacity) {
        WatermarkStack stack;
        stack.Watermarks = {logoRecord(drawnSceneWithAlpha({150, 90}), 5)};
        stack.Watermarks[0].Transparency = opacity;
        return stack;
    };
    WatermarkStack filtered = everyKind();
    filtered.SelectedFilter = 9;
    struct Row {
        const char* what;
        WatermarkStack stack;
        std::optional<WatermarkStack> written = {};  // where that is another one
        int tolerance = 0;
    };
    const Row rows[] = {
        {"filter", filtered},
        // Rounded once more where it is faded twice.
        {"half-opaque logo, seen at its opacity twice", faded(0.5F), faded(0.25F), 2},
        {"border and shadow", framed(true, false)},
        {"watermarks on the border", framed(false, true)},
        {"watermarks on the border of a photo with a shadow", framed(true, true)},
    };
    addPhotos(u"g"_s, WrittenSize);
    PreviewView& view = window->previewView();
    view.ActualSize();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        window->watermarks().replaceStack(row.stack, {}, u"Test"_s);
        ASSERT_TRUE(QTest::qWaitFor([&] { return view.shown() && window->preview().isSettled(); }, 10000));
        const QRect seen(view.geometry().origin(), view.geometry().scaledSize());
        ASSERT_TRUE(QRect(QPoint(), view.geometry().viewport).contains(seen)) << "all of it is on the screen";
        const QImage shown = view.seenPicture().copy(seen);

        if (row.written) window->watermarks().replaceStack(*row.written, {}, u"Test"_s);
        QFile::remove(options.OutputPath + u"/photo0.png"_s);
        start();
        summary();
        const QImage written(options.OutputPath + u"/photo0.png"_s);
        // The shadow is not part of what watermarks on the border are placed in, and only seen in the file.
        const Result<PhotoScene> scene = buildPhotoScene(window->preview().finalRequest());
        QRect place = written.rect();
        if (shown.size() != written.size()) {
            place = scene->borderRect;
            place.moveTop(written.height() - place.top() - place.height());
        }
        // The screen shows a checkerboard through what is transparent.
        QImage expected(view.geometry().viewport, QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        if (view.shown()->scene.picture.hasAlphaChannel()) {
            paintCheckerboard(painter, seen, view.palette(), view.devicePixelRatioF());
        }
        painter.drawImage(seen.topLeft(), written, place);
        painter.end();
        EXPECT_LE(largestDifference(shown, expected.copy(seen)), row.tolerance);
    }
}

}  // namespace
}  // namespace zelto
