// SPDX-License-Identifier: GPL-3.0-or-later
// What the preview shows at its actual size beside the file that a run writes, pixel by pixel.
#include "app/preview/preview_paint.h"
#include "app/run/run_window.h"
#include "support/ink.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QPainter>
#include <QTest>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr QSize PhotoSize(420, 280);

Watermark logo(float transparency, std::int64_t rotation) {
    Watermark w(watermark_type::Image);
    QBuffer file(&w.ImageData);
    drawnSceneWithAlpha({150, 90}).save(&file, "png");
    w.ImagePath = u"logo.png"_s;
    w.Resize = true;
    w.ImageProportionalResize = u"Longer Side"_s;
    w.ResizeWidth = 0.31F;
    w.Transparency = transparency;
    w.Rotation = rotation;
    w.Position = 5;
    return w;
}

Watermark text(const std::function<void(Watermark&)>& style) {
    Watermark w(watermark_type::Text);
    w.Text = u"<<IMGNAME>>\n<<PHOTOWIDTH>> © Åg"_s;
    w.FontFamily = u"DejaVu Sans"_s;
    w.FontSize = 38;
    w.TextColor = Color{0.9F, 0.8F, 0.1F, 1.0F};
    w.ShadowColor = Color::black();
    w.Transparency = 0.8F;
    w.Position = 5;
    style(w);
    return w;
}

Watermark shape(std::int32_t kind) {
    Watermark w(watermark_type::Shape);
    w.ShapeType = kind;
    w.Sides = 5;
    w.Width = 130.0F;
    w.Height = 71.0F;
    w.GradeintType = kind;
    w.FirstColor = Color{0.1F, 0.9F, 0.3F, 1.0F};
    w.SecondColor = Color{0.6F, 0.0F, 0.9F, 0.5F};
    w.Transparency = 0.7F;
    w.Rotation = 17 * kind;
    w.Position = 2 + kind;
    return w;
}

Watermark tiled(Watermark w) {
    w.HorizontalTiling = w.VerticalTiling = true;
    w.HorizontalSpacing = 13;
    w.VerticalSpacing = 7;
    return w;
}

PhotoEffects frame(bool shadow, bool watermarksOnBorder) {
    PhotoEffects effects;
    effects.TopThickness = effects.LeftThickness = 11;
    effects.BottomThickness = effects.RightThickness = 24;
    effects.BorderColor = Color{0.9F, 0.9F, 0.85F, 1.0F};
    effects.EnableShadow = shadow;
    effects.BlurRadius = 12;
    effects.Distance = 9;
    effects.Direction = 315;
    effects.ShadowColor = Color{0.0F, 0.0F, 0.3F, 0.6F};
    effects.ApplyWatermarkOnBorder = watermarksOnBorder;
    return effects;
}

WatermarkStack stackOf(std::vector<Watermark> watermarks, std::optional<PhotoEffects> effects = {},
                       int filter = 0) {
    return {std::move(watermarks), std::move(effects), filter, false};
}

TEST_F(RunWindow, ThePreviewAtActualSizeIsTheWrittenPicture) {
    Watermark code(watermark_type::QrCode);
    code.Text = u"https://zelto.example/<<IMGNAME>>"_s;
    code.ResizeWidth = 0.3F;
    code.ResizebyWidth = true;
    code.Position = 9;
    code.Transparency = 1.0F;
    const Watermark plain = text([](Watermark& w) { w.Rotation = 30; });
    const Watermark shadowed = text([](Watermark& w) { w.Shadow = true; });
    const Watermark embossed = text([](Watermark& w) { w.TextEffect = 3; });
    const Watermark hollow = text([](Watermark& w) { w.TextEffect = 3, w.UseTransparentColor = true; });
    struct Row {
        const char* what;
        WatermarkStack stack;
        std::optional<WatermarkStack> written = {};  // where that is another one
        int tolerance = 0;
    };
    const Row rows[] = {
        {"logo", stackOf({logo(1.0F, 0)})},
        // Rounded once more where it is faded twice.
        {"half-opaque logo, seen at its opacity twice", stackOf({logo(0.5F, 0)}), stackOf({logo(0.25F, 0)}),
         2},
        {"turned logo", stackOf({logo(0.5F, 12)})},
        {"turned text", stackOf({plain})},
        {"text with a shadow", stackOf({shadowed})},
        {"embossed text", stackOf({embossed})},
        {"hollow text", stackOf({hollow})},
        {"rectangle", stackOf({shape(shape_type::Rectangle)})},
        {"ellipse", stackOf({shape(shape_type::Ellipse)})},
        {"polygon", stackOf({shape(shape_type::Polygon)})},
        {"line", stackOf({shape(shape_type::Line)})},
        {"QR code", stackOf({code})},
        {"tiled text", stackOf({tiled(plain)})},
        {"tiled logo", stackOf({tiled(logo(0.7F, 0))})},
        {"filter", stackOf({plain}, {}, 9)},
        {"border and shadow", stackOf({plain, code}, frame(true, false))},
        {"watermarks on the border", stackOf({plain, code}, frame(false, true))},
        {"watermarks on the border of a photo with a shadow", stackOf({code, shadowed}, frame(true, true))},
        {"everything",
         stackOf({tiled(plain), logo(1.0F, 40), shape(shape_type::Polygon), code}, frame(true, false), 11)},
    };
    addPhotos(u"g"_s, PhotoSize);
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
