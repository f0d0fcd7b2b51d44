// SPDX-License-Identifier: GPL-3.0-or-later
// The drop shadow of a whole picture: its alpha blurred by a Gaussian of sigma = blur / 2 that ends at
// +-blur, moved and tinted. What it costs does not grow with the blur. Points are in pixels from the canvas's
// top left corner, y growing downward. The work is spread over the cores.
#pragma once

#include "records/color.h"

#include <QImage>
#include <QPoint>
#include <QRect>

namespace zelto {

struct DropShadow {
    QPoint offset;  // of the shadow from what casts it
    int blur = 0;   // pixels; at most MaximumShadowBlur is drawn
    Color color;    // its alpha is the shadow's opacity
};

inline constexpr int MaximumShadowBlur = 32'767;

// The shadow of an opaque rectangle: writes every pixel of `canvas` (premultiplied ARGB32) outside
// `rectangle` and none inside, whatever was there before.
void drawRectangleShadow(QImage& canvas, const QRect& rectangle, const DropShadow& shadow);

// `picture` (premultiplied ARGB32) at `origin` with its shadow under it: writes every pixel of `canvas`, of
// the same format, whatever was there before.
void drawPictureWithShadow(QImage& canvas, const QImage& picture, QPoint origin, const DropShadow& shadow);

}  // namespace zelto
