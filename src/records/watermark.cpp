// SPDX-License-Identifier: GPL-3.0-or-later
#include "records/watermark.h"

#include "records/resource_picture.h"

#include <array>

namespace zelto {
namespace {

// The icon of a type, decoded once for the whole program: records share its pixels.
const QImage& typeIcon(std::int32_t type) {
    static const std::array<QImage, 4> icons = {
        resourcePicture(QStringLiteral("png-file-icon.png")), resourcePicture(QStringLiteral("Normal.png")),
        resourcePicture(QStringLiteral("addShape.png")), resourcePicture(QStringLiteral("qr_icon.png"))};
    return icons.at(static_cast<std::size_t>(type));
}

void initImage(Watermark& w) {
    w.ResizebyWidth = true;
    w.ResizeFormat = 1;
    w.PreserverAspectRatio = true;
    w.TransparentColor = Color::black();
    w.ImageProportionalResize = photo_side::Width;
}

void initShape(Watermark& w) {
    w.Width = 200.0F;
    w.Height = 200.0F;
    w.SolidColor = Color::white();
    w.FirstColor = Color::white();
    w.SecondColor = Color::black();
    w.ShapeType = shape_type::Rectangle;
    w.SolidBackground = true;
}

void initQrCode(Watermark& w) {
    w.ResizeFormat = qr_resize::Relative;
    w.ResizeWidth = 0.2F;
    w.ResizebyWidth = true;
    w.Text = QLatin1String("");
    w.ShadowColor = Color::white();
}

}  // namespace

Watermark::Watermark(std::int32_t type) : Type(type), Position(1), IsEnabled(true) {
    switch (type) {
        case watermark_type::Image:
            initImage(*this);
            break;
        case watermark_type::Text:
            break;  // every starting value of a text is the common one
        case watermark_type::Shape:
            initShape(*this);
            break;
        case watermark_type::QrCode:
            initQrCode(*this);
            break;
        default:
            return;
    }
    TypeImage = typeIcon(type);
}

}  // namespace zelto
