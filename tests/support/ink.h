// SPDX-License-Identifier: GPL-3.0-or-later
// Looking for what was drawn on a plain background, and comparing pictures. Boxes have y growing downward and are
// empty where nothing is found; tolerances are levels of 255 that any channel may differ.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace zelto {

// Around all pixels that are not `background`.
QRect inkBox(const QImage& picture, QColor background = Qt::white, int tolerance = 8);

// Around all pixels that are `color`.
QRect colorBox(const QImage& picture, QColor color, int tolerance = 8);

// The largest difference of two colours in any channel.
int largestDifference(QRgb a, QRgb b);

// `picture` (32 bits per pixel) with its stored values as they are, so that pixel() of a premultiplied picture
// gives the premultiplied colour.
QImage storedValues(QImage picture);

// The largest difference of two pictures of one size in any channel of any pixel; 256 where the sizes differ.
int largestDifference(const QImage& a, const QImage& b);

// What a picture with transparency looks like on white paper.
QImage onWhite(const QImage& picture);

}  // namespace zelto
