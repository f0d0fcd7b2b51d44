// SPDX-License-Identifier: GPL-3.0-or-later
// Memory for whole photos.
#pragma once

#include <QImage>
#include <QSize>

namespace zelto {

// A picture of 32-bit pixels in `format`, not yet filled; null when there is not enough memory. Large ones
// lie on huge pages where the system has them: a photo of 24 megapixels would otherwise cost some 24000 page
// faults before its first pixel is worked on, a quarter of the time it takes to decode one. Any thread.
QImage newPicture(QSize size, QImage::Format format);

}  // namespace zelto
