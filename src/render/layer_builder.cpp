// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/layer_builder.h"

#include "render/logo.h"
#include "render/opacity.h"
#include "render/placement.h"
#include "render/qr_code.h"
#include "render/shape.h"
#include "render/text_block.h"

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

struct Content {
    LayerContent what;
    QSizeF size;
};

Content pictureContent(QImage picture, QSizeF size) {
    if (picture.isNull()) return {std::monostate(), size};
    return {std::move(picture), size};
}

Content textContent(const Watermark& record, const QString& text, QSizeF reference) {
    TextBlock block = makeTextBlock(record, text, reference);
    const QSizeF size = block.size;
    return {std::move(block), size};
}

Content shapeContent(const Watermark& record, QSizeF reference) {
    QImage picture = GetShapeImage(record, reference);
    const QSizeF size = picture.size();
    return pictureContent(std::move(picture), size);
}

Content qrContent(const Watermark& record, const QString& text, QSizeF reference) {
    const double side = qrSide(record, reference);
    // A code larger than the photo cannot be read from it; it is drawn at the photo's size and stretched.
    const double drawn = std::min(side, std::max(reference.width(), reference.height()));
    return pictureContent(qrImageForString(text, drawn, record.ShadowColor), QSizeF(side, side));
}

bool isTurnable(const Watermark& record) {
    return record.Type == watermark_type::Text || record.Type == watermark_type::Image;
}

bool isTiled(const Watermark& record) {
    return record.HorizontalTiling || record.VerticalTiling;
}

bool canBePlaced(const Watermark& record) {
    if (isTurnable(record)) return true;
    const bool isTurnedCode = record.Type == watermark_type::QrCode && record.Rotation != 0;
    return !isTiled(record) && !isTurnedCode;
}

void place(WatermarkView& view, const Watermark& record, Content content, QSizeF reference) {
    if (!isTurnable(record) || (!isTiled(record) && record.Rotation == 0)) {
        view.frame = placedFrame(record, content.size, reference);
        view.child = std::move(content.what);
        return;
    }
    const QSizeF turned = rotatedSize(content.size, record.Rotation);
    view.frame =
        isTiled(record) ? tiledFrame(record, turned, reference) : placedFrame(record, turned, reference);
    if (std::holds_alternative<std::monostate>(content.what)) return;
    view.child = TilingView{.tilingImage = std::move(content.what),
                            .contentSize = content.size,
                            .rotation = record.Rotation,
                            .horizontalSpacing = record.HorizontalTiling ? record.HorizontalSpacing : 0,
                            .verticalSpacing = record.VerticalTiling ? record.VerticalSpacing : 0,
                            .size = view.frame.size()};
}

}  // namespace

BuiltLayer GetWatermarkViewfromWatermark(const Watermark& record, std::size_t index,
                                         const LayerContext& context) {
    BuiltLayer built;
    WatermarkView view;
    view.wmark = index;
    view.hidden = !record.IsEnabled;
    const auto expanded = [&] {
        MacroExpansion expansion = ParseMacros(record.Text, context.macros);
        built.lastAutoNumber = expansion.lastAutoNumber;
        return std::move(expansion.text);
    };
    Content content;
    switch (record.Type) {
        case watermark_type::Text:
            content = textContent(record, expanded(), context.reference);
            break;
        case watermark_type::Shape:
            content = shapeContent(record, context.reference);
            break;
        case watermark_type::QrCode:
            content = qrContent(record, expanded(), context.reference);
            break;
        case watermark_type::Image: {
            Logo logo = loadLogo(record, context.reference, *context.logos);
            view.logoSize = logo.loadedSize;
            view.contentOpacity = opacityOf(record.Transparency);
            content = pictureContent(std::move(logo.picture), logo.size);
            break;
        }
        default:
            return built;
    }
    if (!canBePlaced(record)) return built;
    place(view, record, std::move(content), context.reference);
    built.view = std::move(view);
    return built;
}

}  // namespace zelto
