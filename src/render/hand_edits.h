// SPDX-License-Identifier: GPL-3.0-or-later
// What sizing and turning a mark by hand does to its record. Pure functions of records; where the mark then lies is
// placement's part (placement.h).
#pragma once

#include "records/watermark.h"

#include <QSizeF>

namespace zelto {

// Whether width and height of the mark can differ from its proportions: those of shapes, and of logos of a fixed size.
bool isFreelySized(const Watermark& record);

// Whether the mark can be turned: QR codes and circles cannot, and what is repeated has no single place to turn about.
bool canBeTurned(const Watermark& record);

// Multiplies the size of the mark; `factors` for width and height are the same where the record keeps proportions. A
// size in pixels stays one, a share of the photo stays a share. A logo that had the size of its file becomes a share of
// the photo's width. Returns the factors that whole numbers have left; `reference` is the area in photo pixels.
QSizeF resizeBy(Watermark& record, QSizeF factors, QSizeF reference);

// Turns the mark to whole `degrees` clockwise, any number; the record gets it as -179 to 180.
void turnTo(Watermark& record, std::int64_t degrees);

// Moves a copy a fortieth of the shorter side towards the middle, so that it does not lie on its original; it keeps its
// anchor. `reference` may be empty: then a length in pixels grows by what suits a photo of two megapixels.
void stepAside(Watermark& record, QSizeF reference);

}  // namespace zelto
