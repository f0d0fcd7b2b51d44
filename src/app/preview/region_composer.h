// SPDX-License-Identifier: GPL-3.0-or-later
// Composing only what is seen: a part of a scene with its layers, at any scale. At scale 1 its pixels are
// those of the picture that would be written. Picture coordinates are pixels of the scene's picture, y
// growing downward from the top left. Reentrant, any thread.
#pragma once

#include "app/preview/view_geometry.h"
#include "render/photo_scene.h"

#include <QImage>

namespace zelto {

// The part `region` of the composed picture at its scale, as large as the region. `stack` is the one the
// scene was built from. Throws std::bad_alloc.
QImage composeRegion(const PhotoScene& scene, const WatermarkStack& stack, const ViewRegion& region);

}  // namespace zelto
