// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of a finished picture in the forms that file formats want. Each function converts `width` pixels from
// `row` to `out`, which has room for them.
#pragma once

#include <QImage>

namespace zelto {

// A picture row's pixels.
inline const QRgb* pixelRow(const QImage& picture, int y) {
    return reinterpret_cast<const QRgb*>(picture.constScanLine(y));
}

// Premultiplied pixels standing on white, opaque.
void rowOnWhite(const QRgb* row, int width, QRgb* out);

// Premultiplied pixels as the colours they have, opaque.
void rowOpaque(const QRgb* row, int width, QRgb* out);

// One byte of alpha a pixel.
void rowAsAlpha(const QRgb* row, int width, uchar* out);

// Bytes in the order red, green, blue; of pixels with transparency as they are premultiplied.
void rowAsRgb(const QRgb* row, int width, uchar* out);

// Bytes in the order red, green, blue, alpha, not premultiplied; of premultiplied pixels.
void rowAsStraightRgba(const QRgb* row, int width, uchar* out);

}  // namespace zelto
