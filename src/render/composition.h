// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing the layers of a scene onto its picture.
#pragma once

#include "render/photo_scene.h"

#include <QImage>
#include <QPoint>
#include <QRect>

#include <vector>

namespace zelto {

// Draws every enabled layer onto `picture`, in place. `stack` is the one the scene was built from. Throws
// std::bad_alloc.
void addWatermarkTo(QImage& picture, const PhotoScene& scene, const WatermarkStack& stack);
// The same onto a reduced picture of one of `standsFor` pixels, in whose pixels the scene counts.
void addWatermarkTo(QImage& picture, QSize standsFor, const PhotoScene& scene, const WatermarkStack& stack);

// The scene without its picture, seen from `part` of it: layers that do not reach it are left out. On a picture of that
// part addWatermarkTo() draws with it the pixels that it draws on the whole one.
PhotoScene layersReaching(const PhotoScene& scene, const QRect& part);

// The parts of the picture, in pixels of it, that hold all that addWatermarkTo() may change. Of tiles that leave most of
// their area free each counts by itself.
std::vector<QRect> inkAreas(const PhotoScene& scene, const WatermarkStack& stack);

// The finished picture of a scene, drawn at one picture pixel per photo pixel unless it is a reduced one. Move the scene
// in: its picture
// is then drawn on without a copy. Null where memory does not suffice.
QImage MakeWatermarkImage(PhotoScene scene, const WatermarkStack& stack);

}  // namespace zelto
