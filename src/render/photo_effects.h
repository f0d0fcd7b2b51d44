// SPDX-License-Identifier: GPL-3.0-or-later
// The border and drop shadow around a whole photo. Rectangles are in pixels of the returned picture, y growing upward
// from its bottom-left corner. Lengths below 0, which only a damaged setting holds, count as 0; a colour that is absent
// paints nothing. A setting of a few bytes must not take all memory: the result may have twice the photo's pixels and
// 64 megapixels more. Beyond that there is no picture, and none where memory does not suffice. The result is RGB32 where
// nothing of it can be seen through. The work of one call is spread over the cores.
#pragma once

#include "records/photo_effects.h"

#include <QImage>
#include <QRect>
#include <QSize>

namespace zelto {

// The photo on its border, without any shadow.
QImage ImagewithBorderEffect(QImage photo, const PhotoEffects& effect);

// The photo framed and, where `final` is set and the effect's shadow is on, standing on a larger transparent canvas
// with its shadow. `imageOrigin` receives the place of the photo in the result, `borderOrigin` that of the framed
// photo. Move the photo in: where nothing has to be drawn it comes back untouched.
QImage imagewithEffects(QImage photo, const PhotoEffects& effect, QRect& imageOrigin, QRect& borderOrigin,
                        bool final);

// Where photo and border lie in the picture that imagewithEffects makes of a photo of this size; without size where that
// is too large.
struct FramedPlaces {
    QSize size;
    QRect image;
    QRect border;
};
FramedPlaces framedPlaces(QSize photo, const PhotoEffects& effect, bool final);

// The effect that looks on a photo made smaller, from `photo` to `reduced` pixels, as `effect` does on the photo itself.
PhotoEffects reducedEffect(const PhotoEffects& effect, QSize photo, QSize reduced);

// The size of a photo of `photo` pixels on its border, without any shadow; empty where that is too large.
QSize framedSize(QSize photo, const PhotoEffects& effect);

// The size imagewithEffects gives the final picture of an opaque photo of `photo` pixels; empty where that is too large.
QSize sizeWithEffects(QSize photo, const PhotoEffects& effect);

}  // namespace zelto
