// SPDX-License-Identifier: GPL-3.0-or-later
// The drawable layer of one watermark record: where it lies in the reference area and what it shows. Plain values,
// shared freely between threads. All geometry is in photo pixels, y growing upward from the bottom-left corner.
#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

#include "records/color.h"

namespace zelto {

// How a whole string is set.
struct TextAttributes {
    QFont font;                // made for 72 dots an inch: its point size is in photo pixels
    Color foreground;          // alpha is the text's opacity
    std::uint64_t alignment = 0;
    bool underline = false;
    bool strikethrough = false;
    std::optional<Color> shadow;  // alpha is the text's opacity; blur 5, offset 5 right and 5 up
};

// A text block: a label, or the emboss effect drawn by three offset copies of the text.
struct TextBlock {
    QString text;
    TextAttributes attributes;
    QSizeF size;             // of the block
    bool embossed = false;
    bool hollow = false;     // embossed: only the light and dark rims show
    Color faceColor;         // embossed: colour of the letters' faces
    double opacity = 1.0;    // embossed: of the finished picture
};

// What one copy of a watermark looks like. Empty for a logo that could not be loaded.
using LayerContent = std::variant<std::monostate, TextBlock, QImage>;

// A surface filled with one repeated, turned cell of content; with a surface of the cell's own size and no spacing
// it shows a single turned copy.
struct TilingView {
    std::shared_ptr<const LayerContent> tilingImage;
    QSizeF contentSize;
    double rotation = 0.0;  // degrees, positive clockwise as seen
    std::int64_t horizontalSpacing = 0;
    std::int64_t verticalSpacing = 0;
    QSizeF size;            // of the surface
};

struct WatermarkView {
    QRectF frame;           // in the reference area
    bool hidden = false;
    std::size_t wmark = 0;  // index of the record it shows
    std::variant<LayerContent, TilingView> child;
};

}  // namespace zelto
