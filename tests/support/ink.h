// SPDX-License-Identifier: GPL-3.0-or-later
// Looking for what was drawn on a plain background.
#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

namespace zelto {

// The smallest rectangle around all pixels of `picture` that differ from `background` by more than
// `tolerance` in a channel, y growing downward from the top-left corner; empty where nothing was drawn.
QRect inkBox(const QImage& picture, QColor background = Qt::white, int tolerance = 8);

// The same for the pixels that are `color` within `tolerance` in every channel.
QRect colorBox(const QImage& picture, QColor color, int tolerance = 8);

// The largest difference of two pictures of one size in any channel of any pixel; 256 where the sizes differ.
int largestDifference(const QImage& a, const QImage& b);

}  // namespace zelto
