// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/layer_builder.h"

#include "pictures/lengths.h"
#include "platform/words.h"
#include "render/lengths.h"
#include "render/logo.h"
#include "render/opacity.h"
#include "render/placement.h"
#include "render/qr_code.h"
#include "render/shape.h"
#include "render/text_block.h"
#include "render/text_layout.h"
#include "render/tiling.h"

#include <utility>

namespace zelto {
namespace {

struct Content {
    LayerContent what{};
    QSizeF size = QSizeF(0.0, 0.0);
    std::optional<LayerWarning> warning{};
};

bool isBlank(const QString& text) {
    return text.trimmed().isEmpty();
}

Content textContent(const Watermark& record, const QString& text, QSizeF reference) {
    TextBlock block = makeTextBlock(record, text, reference);
    const TextFont font = block.attributes.font;
    const QSizeF size = block.size;
    Content content{std::move(block), size};
    if (isBlank(text)) {
        content.warning = LayerWarning::emptyText();
    } else if (const QStringList missing = missingLetters(text, font); !missing.isEmpty()) {
        content.warning = LayerWarning::missingLetters(missing);
    } else if (!(font.pointSize > 0.0)) {
        content.warning = LayerWarning::noLayer(Words::tr("The font has the size 0."));
    }
    return content;
}

Content shapeContent(const Watermark& record, QSizeF reference) {
    std::optional<ShapeImage> shape = GetShapeImage(record, reference);
    if (!shape) return {.warning = LayerWarning::noArea()};
    const QSizeF size = shape->size;
    return {*std::move(shape), size};
}

Content qrContent(const Watermark& record, const QString& text, QSizeF reference) {
    const double side = qrSide(record, reference);
    std::optional<QrImage> code = qrImageForString(text, side, record.ShadowColor);
    Content content{.size = QSizeF(side, side)};
    if (isBlank(text)) {
        content.warning = LayerWarning::emptyText();
    } else if (!code && !encodeQrSymbol(text)) {
        content.warning = LayerWarning::codeTooLong();
    } else if (!code || moduleSide(*code) < 1.0) {
        content.warning = LayerWarning::codeTooFine();
    }
    if (code) content.what = *std::move(code);
    return content;
}

Content logoContent(const Watermark& record, Logo logo) {
    Content content{.size = logo.size};
    if (logo.loadedSize.isEmpty()) {
        content.warning = LayerWarning::logoUnreadable(record.ImagePath);
    } else if (logo.picture.isNull()) {
        content.warning = LayerWarning::noLayer(Words::tr("The logo has the size 0."));
    } else {
        content.what = std::move(logo.picture);
    }
    return content;
}

bool isTurnable(const Watermark& record) {
    return record.Type == watermark_type::Text || record.Type == watermark_type::Image;
}

bool isTiled(const Watermark& record) {
    return record.HorizontalTiling || record.VerticalTiling;
}

// Why a record has no place although there may be something to draw.
std::optional<LayerWarning> placingWarning(const Watermark& record) {
    if (isTurnable(record)) return std::nullopt;
    if (isTiled(record)) return LayerWarning::noLayer(Words::tr("Shapes and QR codes are not tiled."));
    const bool isTurnedCode = record.Type == watermark_type::QrCode && record.Rotation != 0;
    if (isTurnedCode) return LayerWarning::noLayer(Words::tr("QR codes are not turned."));
    return std::nullopt;
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
    using namespace length_field;
    const auto spacing = [&](bool isOn, const WatermarkLength& length) {
        return isOn ? lengthOn(record, length, reference) : 0;
    };
    view.child = TilingView{.tilingImage = std::move(content.what),
                            .contentSize = content.size,
                            .rotation = record.Rotation,
                            .horizontalSpacing = spacing(record.HorizontalTiling, HorizontalSpacing),
                            .verticalSpacing = spacing(record.VerticalTiling, VerticalSpacing),
                            .size = view.frame.size()};
}

// Why a layer with something to draw cannot be seen where it lies. One that covers the whole area always can.
std::optional<LayerWarning> visibilityWarning(const WatermarkView& view, QSizeF reference) {
    const auto* surface = std::get_if<TilingView>(&view.child);
    if (surface != nullptr && !hasTiles(*surface)) {
        return LayerWarning::noLayer(Words::tr("Its paddings and spacings leave no room for a tile."));
    }
    const QRectF area(QPointF(0.0, 0.0), reference);
    if (view.frame.contains(area)) return std::nullopt;
    constexpr double LeastShare = 0.1;
    const QRectF inside = view.frame.intersected(area);
    const double seen = inside.width() * inside.height() / (view.frame.width() * view.frame.height());
    if (seen >= LeastShare) return std::nullopt;
    return LayerWarning::outside(inside.isEmpty());
}

}  // namespace

BuiltLayer GetWatermarkViewfromWatermark(const Watermark& record, const LayerContext& context) {
    BuiltLayer built;
    WatermarkView view;
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
            content = logoContent(record, std::move(logo));
            break;
        }
        default:
            built.warning = LayerWarning::noLayer(Words::tr("Its kind is unknown."));
            return built;
    }
    built.warning = std::move(content.warning);
    const bool isDrawn = !std::holds_alternative<std::monostate>(content.what);
    if (std::optional<LayerWarning> unplaced = placingWarning(record)) {
        if (!built.warning) built.warning = std::move(unplaced);
        return built;
    }
    place(view, record, std::move(content), context.reference);
    if (!built.warning && isDrawn) built.warning = visibilityWarning(view, context.reference);
    built.view = std::move(view);
    return built;
}

}  // namespace zelto
