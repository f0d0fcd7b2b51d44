// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures at a half, a quarter, an eighth and so on of their size. Each pixel is the mean of the square it stands for,
// so that fine detail turns into an even tone instead of a pattern. Pictures are RGB32 or premultiplied ARGB32.
// Any thread.
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

namespace zelto {

// The most a picture is halved.
inline constexpr int MaximumHalvings = 8;

// The size of a picture halved `times`, incomplete squares at the right and the bottom included.
QSize halvedSize(QSize size, int times);

// `part` of the picture, halved.
QImage halvedPicture(const QImage& picture, const QRect& part, int times);

// The same, into the rows of `target` from `firstRow` on.
void halveInto(QImage& target, int firstRow, const QImage& picture, const QRect& part, int times);

}  // namespace zelto
