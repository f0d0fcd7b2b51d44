// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_settings.h"

namespace zelto::samples {
namespace {

// A text whose size follows the photo's longer side, in per cent.
Watermark text(const QString& content, std::int64_t percent, std::int32_t position) {
    Watermark w(watermark_type::Text);
    w.Text = content;
    w.FontFamily = QStringLiteral("DejaVu Sans");
    w.FontSize = percent;
    w.IsRelative = true;
    w.FontRelativeSize = QStringLiteral("Longer Side");
    w.TextColor = Color::white();
    w.ShadowColor = Color::black();
    w.Transparency = 1.0F;
    w.Position = position;
    return w;
}

void setPadding(Watermark& w, std::int64_t pixels) {
    w.PaddingLeft = w.PaddingTop = w.PaddingRight = w.PaddingBottom = pixels;
}

Watermark shape(std::int32_t kind, std::int32_t position) {
    Watermark w(watermark_type::Shape);
    w.ShapeType = kind;
    w.Position = position;
    w.Transparency = 0.6F;
    return w;
}

}  // namespace

WatermarkStack everydayStack(const QByteArray& logo) {
    WatermarkStack stack;

    Watermark tiled = text(QStringLiteral("SAMPLE"), 5, 5);
    tiled.Rotation = 30;
    tiled.Transparency = 0.18F;
    tiled.HorizontalTiling = tiled.VerticalTiling = true;
    tiled.HorizontalSpacing = 120;
    tiled.VerticalSpacing = 90;
    stack.Watermarks.push_back(tiled);

    Watermark mark(watermark_type::Image);
    mark.ImagePath = QStringLiteral("logo.png");
    mark.ImageData = logo;
    mark.Resize = true;
    mark.ResizeFormat = 0;
    mark.ResizeWidth = 0.12F;
    mark.ImageProportionalResize = QStringLiteral("Longer Side");
    mark.Transparency = 0.85F;
    mark.Position = 9;
    setPadding(mark, 24);
    stack.Watermarks.push_back(mark);

    Watermark title = text(
        QStringLiteral("No. <<AUTO:#1+1>>  <<IMGNAME>>\n<<EXIF:DateTimeOriginal[D MM Y]>>  <<IPTC:City>>"), 4,
        7);
    title.FontBold = true;
    title.Shadow = true;
    setPadding(title, 24);
    stack.Watermarks.push_back(title);

    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("<<IMGNAMEEXT>> <<PHOTOWIDTH>> x <<PHOTOHEIGHT>>");
    code.ResizeWidth = 0.12F;
    code.Position = 3;
    setPadding(code, 24);
    stack.Watermarks.push_back(code);
    return stack;
}

WatermarkStack framedStack() {
    WatermarkStack stack;
    stack.SelectedFilter = 9;
    PhotoEffects effects;
    effects.TopThickness = effects.LeftThickness = effects.RightThickness = 36;
    effects.BottomThickness = 110;
    effects.BorderColor = Color{0.98F, 0.97F, 0.94F, 1.0F};
    effects.BlurRadius = 40;
    effects.Distance = 24;
    effects.Direction = 315;
    effects.ShadowColor = Color{0.0F, 0.0F, 0.0F, 0.5F};
    effects.ApplyWatermarkOnBorder = true;
    stack.Effects = effects;

    Watermark bar = shape(shape_type::Line, 8);
    bar.ResizeWidthByPercent = true;
    bar.ResizeWidth = 0.4F;
    bar.Height = 4.0F;
    bar.SolidBackground = false;
    bar.GradeintType = 1;
    bar.FirstColor = Color{0.75F, 0.22F, 0.17F, 1.0F};
    bar.SecondColor = Color{0.95F, 0.7F, 0.25F, 1.0F};
    bar.Transparency = 1.0F;
    bar.PaddingBottom = 24;
    stack.Watermarks.push_back(bar);

    Watermark badge = shape(shape_type::Polygon, 3);
    badge.Sides = 6;
    badge.Width = badge.Height = 150.0F;
    badge.SolidBackground = false;
    badge.GradeintType = 5;
    badge.FirstColor = Color::white();
    badge.SecondColor = Color{0.18F, 0.4F, 0.6F, 1.0F};
    badge.Rotation = 15;
    badge.PaddingTop = badge.PaddingRight = 60;
    stack.Watermarks.push_back(badge);

    Watermark name = text(QStringLiteral("<<IMGNAME>>"), 3, 8);
    name.TextColor = Color{0.2F, 0.2F, 0.22F, 1.0F};
    name.PaddingBottom = 36;
    stack.Watermarks.push_back(name);

    Watermark relief = text(QStringLiteral("Zelto"), 9, 5);
    relief.FontBold = true;
    relief.TextEffect = 3;
    relief.UseTransparentColor = true;
    relief.Transparency = 0.7F;
    stack.Watermarks.push_back(relief);
    return stack;
}

}  // namespace zelto::samples
