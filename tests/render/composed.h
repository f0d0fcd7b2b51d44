// SPDX-License-Identifier: GPL-3.0-or-later
// Records for tests, and the picture a stack of them gives on a plain photo.
#pragma once

#include "render/composition.h"

#include <QImage>
#include <QString>

#include <memory>
#include <utility>
#include <vector>

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

// An opaque red rectangle.
inline Watermark boxRecord(float width, float height, std::int32_t position) {
    Watermark record(watermark_type::Shape);
    record.Width = width;
    record.Height = height;
    record.SolidColor = Color{1, 0, 0, 1};
    record.Transparency = 1.0F;
    record.Position = position;
    return record;
}

inline QImage plainPhoto(QSize size, QColor color = Qt::white) {
    QImage photo(size, QImage::Format_RGB32);
    photo.fill(color);
    return photo;
}

inline PhotoRequest requestFor(WatermarkStack stack) {
    PhotoRequest request;
    request.path = QStringLiteral("/photos/beach.jpg");
    request.stack = std::make_shared<const WatermarkStack>(std::move(stack));
    return request;
}

inline QImage composed(const WatermarkStack& stack, QImage photo) {
    Picture picture;
    picture.image = std::move(photo);
    return MakeWatermarkImage(buildPhotoScene(requestFor(stack), std::move(picture)), stack);
}

inline QImage composed(const Watermark& record, QImage photo) {
    WatermarkStack stack;
    stack.Watermarks = {record};
    return composed(stack, std::move(photo));
}

}  // namespace zelto
