// SPDX-License-Identifier: GPL-3.0-or-later
// Records for tests, and the picture a stack of them gives on a photo.
#pragma once

#include "render/composition.h"

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
