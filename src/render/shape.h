// SPDX-License-Identifier: GPL-3.0-or-later
// Shape watermarks: rectangle, ellipse, polygon and bar in one colour or a gradient. Reentrant, any thread.
#pragma once

#include <QImage>
#include <QSizeF>

#include "records/watermark.h"

namespace zelto {

// The picture of a shape record at its final size, already turned and at its opacity; `reference` is the area in
// photo pixels that relative sizes refer to. A null picture where the record has no area.
QImage GetShapeImage(const Watermark& shape, QSizeF reference);

}  // namespace zelto
