// SPDX-License-Identifier: GPL-3.0-or-later
// Changing a picture's size with a high-quality filter.
#pragma once

#include <QImage>
#include <QSize>

namespace zelto {

// `picture` (RGB32 or premultiplied ARGB32) stretched to `newSize` pixels; the proportions are the caller's. The
// picture itself when it already has that size, a null picture for an empty size. Any thread.
QImage resizedImage(const QImage& picture, QSize newSize);

}  // namespace zelto
