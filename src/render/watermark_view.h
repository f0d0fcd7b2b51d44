// SPDX-License-Identifier: GPL-3.0-or-later
// The drawable layer of one watermark record: where it lies in the reference area and what it shows. These are plain
// values that threads may share.
#pragma once

#include "records/color.h"

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

namespace zelto {

// A font as plain values. A QFont does not serve: two threads must not use copies of one at the same time, so text is
// laid out with a QFont made on the spot.
struct TextFont {
    QString family{};        // installed; empty for the program's default font
    double pointSize = 0.0;  // photo pixels, fractions count
    bool bold = false;
    bool italic = false;

    bool operator==(const TextFont&) const = default;
};

// How a whole string is set.
struct TextAttributes {
    TextFont font{};
    Color foreground{};           // alpha is the text's opacity
    std::uint64_t alignment = 0;  // one of text_alignment
    bool underline = false;
    bool strikethrough = false;
    std::optional<Color> shadow{};  // blur 5, offset 5 right and 5 up; as opaque as the text

    bool operator==(const TextAttributes&) const = default;
};

// A text block: a label, or the emboss effect drawn by three offset copies of the text.
struct TextBlock {
    QString text;
    TextAttributes attributes;
    QSizeF size;  // of the block
    bool embossed = false;
    bool hollow = false;   // embossed: only the light and dark rims show
    Color faceColor;       // embossed: colour of the letters' faces
    double opacity = 1.0;  // embossed: of the finished picture
};

// A shape to be drawn.
struct ShapeImage {
    std::int32_t kind = 0;          // one of shape_type
    std::int64_t sides = 0;         // of a polygon
    QSizeF outline;                 // before it is turned
    int degrees = 0;                // clockwise as seen, 0 to 359
    std::int64_t gradient = 0;      // one of gradient_type, or PlainFill
    std::optional<Color> first{};   // the one colour of a plain fill; a colour that is absent paints nothing
    std::optional<Color> second{};  // of a gradient
    double opacity = 1.0;
    QSize size;  // the whole pixels that hold the turned outline

    static constexpr std::int64_t PlainFill = -1;
};

// A symbol of width x width modules, row by row from the top; bit 0 of a module says whether it is dark.
struct QrSymbol {
    int width = 0;
    QByteArray modules;
};

// A QR code to be drawn: a square of `side` pixels, a twentieth of it left free on every side.
struct QrImage {
    QrSymbol symbol;
    double side = 0.0;
    std::optional<Color> background{};  // none: the space between modules is transparent
};

// What one copy of a watermark looks like. Empty for a logo that could not be loaded.
using LayerContent = std::variant<std::monostate, TextBlock, QImage, ShapeImage, QrImage>;

// A surface filled with one repeated, turned cell of content. A single turned copy is a surface that has the size of its
// cell and no spacing. The pattern starts at the surface's bottom-left corner.
struct TilingView {
    LayerContent tilingImage;
    QSizeF contentSize;         // of the content before it is turned
    std::int64_t rotation = 0;  // degrees, positive clockwise as seen
    std::int64_t horizontalSpacing = 0;
    std::int64_t verticalSpacing = 0;
    QSizeF size;  // of the surface
};

struct WatermarkView {
    QRectF frame;  // in the reference area
    std::variant<LayerContent, TilingView> child;

    // What the preview adds on the screen, and written photos do not: a logo's opacity once more.
    double contentOpacity = 1.0;
    // The pixel size of a logo as loaded, which belongs into the record's Width and Height; empty for other
    // layers.
    QSize logoSize;
};

}  // namespace zelto
