// SPDX-License-Identifier: GPL-3.0-or-later
// Where things lie in a scene's picture: pixels from its top-left corner, y growing downward.
#pragma once

#include "render/photo_scene.h"

#include <QRect>
#include <QRectF>

#include <cstddef>

namespace zelto {

// The whole picture, in a scene without pixels too.
QRect pictureRect(const PhotoScene& scene);

// The frame of the layer at `index`, not rounded; null where the record has no layer.
QRectF layerFrame(const PhotoScene& scene, std::size_t index);

// The pixels of the picture on which the layer at `index` may leave its mark; empty for no layer.
QRect layerReach(const PhotoScene& scene, std::size_t index);

}  // namespace zelto
