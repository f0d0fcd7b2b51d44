// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/ready_made_stacks.h"

#include <QBuffer>
#include <QFontInfo>
#include <QPainter>

namespace zelto {
namespace {

constexpr std::int32_t Centre = 5;
constexpr std::int32_t BottomLeft = 7;
constexpr std::int32_t BottomCentre = 8;
constexpr std::int32_t BottomRight = 9;
constexpr float MarginShare = 0.025F;  // of the photo's shorter side

// A text whose size is a share of a side of the photo, in per cent.
Watermark text(const QString& content, QLatin1String side, std::int64_t percent, std::int32_t position) {
    Watermark w(watermark_type::Text);
    w.Text = content;
    w.FontFamily = QFontInfo(QFont()).family();  // a name such as "Sans" is no installed family
    w.FontSize = percent;
    w.IsRelative = true;
    w.FontRelativeSize = side;
    w.TextColor = Color::white();
    w.ShadowColor = Color::black();
    w.Transparency = 1.0F;
    w.Position = position;
    return w;
}

Watermark diagonal(const QString& content, float opacity) {
    Watermark w = text(content, photo_side::LongerSide, 6, Centre);
    w.FontBold = true;
    w.Transparency = opacity;
    w.Rotation = -30;
    w.HorizontalTiling = w.VerticalTiling = true;
    w.HorizontalSpacingShare = 0.1F;
    w.VerticalSpacingShare = 0.06F;
    return w;
}

void setPaddings(Watermark& w, float share) {
    w.PaddingLeftShare = w.PaddingTopShare = w.PaddingRightShare = w.PaddingBottomShare = share;
}

// What stands where the user's own logo is to come.
QByteArray placeholderLogo() {
    constexpr QSize Size(480, 200);
    QImage logo(Size, QImage::Format_ARGB32_Premultiplied);
    logo.fill(Qt::transparent);
    QPainter painter(&logo);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(0, 0, 0, 110));
    painter.setPen(QPen(Qt::white, 6.0, Qt::DashLine, Qt::RoundCap));
    painter.drawRoundedRect(logo.rect().adjusted(8, 8, -8, -8), 28, 28);
    QFont font;
    font.setBold(true);
    font.setPixelSize(58);
    painter.setFont(font);
    painter.drawText(logo.rect(), Qt::AlignCenter, Words::tr("YOUR LOGO"));
    painter.end();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    logo.save(&png, "PNG");
    return png.data();
}

WatermarkStack cornerLogo() {
    Watermark logo(watermark_type::Image);
    logo.LabelName = Words::tr("Your logo");
    logo.ImageData = placeholderLogo();
    logo.Resize = true;
    logo.ResizeFormat = logo_resize::Proportional;
    logo.ImageProportionalResize = photo_side::Width;  // the longer side is the logo's height on a tall photo
    logo.ResizeWidth = 0.2F;
    logo.Transparency = 0.85F;
    logo.Position = BottomRight;
    setPaddings(logo, MarginShare);
    return {{logo}, {}, 0, false, {}};
}

WatermarkStack tiledText() {
    return {{diagonal(Words::tr("SAMPLE"), 0.35F)}, {}, 0, false, {}};
}

WatermarkStack captionBar() {
    Watermark bar(watermark_type::Shape);
    bar.LabelName = Words::tr("Caption bar");
    bar.ResizeWidthByPercent = bar.ResizeHeightByPercent = true;
    bar.ResizeWidth = 1.0F;
    bar.ResizeHeight = 0.1F;
    bar.SolidColor = Color::black();
    bar.Transparency = 0.55F;
    bar.Position = BottomCentre;
    Watermark name = text(QStringLiteral("<<IMGNAME>>"), photo_side::Height, 5, BottomLeft);
    name.PaddingLeftShare = MarginShare;
    name.PaddingBottomShare = 0.02F;
    Watermark date =
        text(QStringLiteral("<<EXIF:DateTimeOriginal[D MM Y]>>"), photo_side::Height, 5, BottomRight);
    date.PaddingRightShare = MarginShare;
    date.PaddingBottomShare = 0.02F;
    return {{bar, name, date}, {}, 0, false, {}};
}

WatermarkStack proof() {
    Watermark code(watermark_type::QrCode);
    code.Text = QStringLiteral("<<IMGNAMEEXT>>");
    code.ResizeWidth = 0.14F;
    code.Transparency = 1.0F;
    code.Position = BottomRight;
    setPaddings(code, MarginShare);
    return {{diagonal(Words::tr("PROOF"), 0.35F), code}, {}, 0, false, {}};
}

}  // namespace

const std::vector<ReadyMadeStack>& readyMadeStacks() {
    static const std::vector<ReadyMadeStack> stacks = {
        {MarkedText(QT_TRANSLATE_NOOP("Words", "Corner logo")),
         MarkedText(QT_TRANSLATE_NOOP("Words", "A place for your logo in the lower right corner")),
         cornerLogo},
        {MarkedText(QT_TRANSLATE_NOOP("Words", "Diagonal text")),
         MarkedText(QT_TRANSLATE_NOOP("Words", "A text all over the photo")), tiledText},
        {MarkedText(QT_TRANSLATE_NOOP("Words", "Caption bar")),
         MarkedText(QT_TRANSLATE_NOOP("Words", "The photo's name and date on a bar along the lower edge")),
         captionBar},
        {MarkedText(QT_TRANSLATE_NOOP("Words", "Proof with QR code")),
         MarkedText(QT_TRANSLATE_NOOP("Words", "PROOF all over the photo, and its name as a QR code")),
         proof},
    };
    return stacks;
}

}  // namespace zelto
