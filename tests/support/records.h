// SPDX-License-Identifier: GPL-3.0-or-later
// Records for tests, and the picture a stack of them gives on a photo. For tests of programs that link zelto_render.
#pragma once

#include "render/composition.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QImage>
#include <QString>

#include <memory>
#include <utility>

namespace zelto {

// Opaque black text in a family that is installed wherever the tests run.
inline Watermark textRecord(const QString& text, std::int64_t size, std::int32_t position = 7) {
    Watermark record(watermark_type::Text);
    record.Text = text;
    record.FontFamily = QStringLiteral("DejaVu Sans");
    record.FontSize = size;
    record.TextColor = Color::black();
    record.Transparency = 1.0F;
    record.Position = position;
    return record;
}

inline Watermark boxRecord(float width, float height, std::int32_t position, Color color = {1, 0, 0, 1}) {
    Watermark record(watermark_type::Shape);
    record.Width = width;
    record.Height = height;
    record.SolidColor = color;
    record.Transparency = 1.0F;
    record.Position = position;
    return record;
}

inline Watermark logoRecord(const QImage& picture, std::int32_t position = 7) {
    Watermark record(watermark_type::Image);
    QBuffer buffer(&record.ImageData);
    picture.save(&buffer, "PNG");
    record.Transparency = 1.0F;
    record.Position = position;
    return record;
}

// One record of each way a layer is drawn: turned, tiled, shadowed and embossed; the last one is switched off. All but
// it leave a mark on photos of 400 x 300 pixels and more.
inline WatermarkStack everyKind() {
    WatermarkStack stack;
    stack.Watermarks = {textRecord(QStringLiteral("<<IMGNAME>> \u05e9\u05dc\u05d5\u05dd"), 30, 5),
                        textRecord(QStringLiteral("tile"), 14),
                        logoRecord(drawnSceneWithAlpha({80, 60})),
                        Watermark(watermark_type::QrCode),
                        boxRecord(30, 20, 3),
                        textRecord(QStringLiteral("off"), 30)};
    Watermark& text = stack.Watermarks[0];
    text.Shadow = true;
    text.ShadowColor = Color::black();
    text.Transparency = 0.6F;
    text.Rotation = 12;
    Watermark& tiles = stack.Watermarks[1];
    tiles.TextEffect = 3;
    tiles.HorizontalTiling = tiles.VerticalTiling = true;
    tiles.Rotation = -30;
    Watermark& logo = stack.Watermarks[2];
    logo.Resize = true;
    logo.ResizeWidth = 0.3F;
    logo.Rotation = 45;
    stack.Watermarks[3].Text = QStringLiteral("hello");
    stack.Watermarks[4].ShapeType = shape_type::Ellipse;
    stack.Watermarks[5].IsEnabled = false;
    return stack;
}

inline QImage plainPhoto(QSize size, QColor color = Qt::white) {
    QImage photo(size, QImage::Format_RGB32);
    photo.fill(color);
    return photo;
}

inline PhotoRequest requestFor(const WatermarkStack& stack) {
    PhotoRequest request;
    request.path = QStringLiteral("/photos/beach.jpg");
    request.stack = std::make_shared<const WatermarkStack>(stack);
    return request;
}

inline PhotoScene sceneOf(const WatermarkStack& stack, QImage photo) {
    Picture picture;
    picture.image = std::move(photo);
    return *buildPhotoScene(requestFor(stack), std::move(picture));
}

inline QImage composed(const WatermarkStack& stack, QImage photo) {
    return MakeWatermarkImage(sceneOf(stack, std::move(photo)), stack);
}

inline QImage composed(const Watermark& record, QImage photo) {
    WatermarkStack stack;
    stack.Watermarks = {record};
    return composed(stack, std::move(photo));
}

}  // namespace zelto
