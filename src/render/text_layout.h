// SPDX-License-Identifier: GPL-3.0-or-later
// Measuring and drawing whole strings at fractional font sizes, the same on every machine that has the same
// fonts: glyphs are laid out unhinted at a large whole size and drawn as outlines scaled to the size asked
// for. Lines end at line breaks only. A line's box is the font's ascent, descent and leading, each rounded to
// whole pixels.
#pragma once

#include "render/watermark_view.h"

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

class QPainter;

namespace zelto {

// Whether `family` names an installed font.
bool isFontInstalled(const QString& family);

// `font` with those of the wished traits that its family has.
TextFont withTraits(TextFont font, bool bold, bool italic);

// Up to five different letters of `text` that neither the font's family nor any other installed one has: they would be
// drawn as boxes or not at all.
QStringList missingLetters(const QString& text, const TextFont& font);

// Width of the widest line, height of all line boxes; empty for an empty text or a size that is not above 0.
QSizeF measuredText(const QString& text, const TextFont& font);

// Draws `text` in one colour, aligned between the left and right edge of `box`, first line at its top;
// underlined and struck through as the attributes say. Coordinates are the painter's, y growing downward;
// what lies outside `visible` may be left out.
void drawText(QPainter& painter, const QString& text, const TextAttributes& attributes, const QColor& color,
              const QRectF& box, const QRectF& visible);

}  // namespace zelto
