// SPDX-License-Identifier: GPL-3.0-or-later
// Text watermarks: from a record to a styled, measured block, and from a block to pixels, as a label or
// embossed. Expanding macros comes before, placing the block after.
#pragma once

#include "records/watermark.h"
#include "render/content_place.h"
#include "render/watermark_view.h"

#include <QSizeF>
#include <QString>

class QPainter;

namespace zelto {

// The block of a text record whose expanded text is `text`; `reference` is the area in photo pixels that a
// relative font size refers to. A font family that is not installed gives the default font at 12 points in
// opaque black, without alignment or shadow; its lines under and through the text stay.
TextBlock makeTextBlock(const Watermark& record, const QString& text, QSizeF reference);

// How far the block's letters and shadow may reach beyond its rectangle on every side, pixels; 0 for an emboss, which
// is cut at its edges.
double overhang(const TextBlock& block);

// Draws the block onto the picture that `painter` is open on; the painter's own transform must be the
// identity. A label draws beyond its block what its letters and shadow need, unless the place cuts it; an
// emboss never does.
void drawTextBlock(QPainter& painter, const TextBlock& block, const ContentPlace& place);

}  // namespace zelto
