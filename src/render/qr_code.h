// SPDX-License-Identifier: GPL-3.0-or-later
// QR code watermarks: black modules on an optional background with a quiet border, drawn straight onto the photo.
// Encoding the symbol is libqrencode's work, which guards its own tables.
#pragma once

#include "records/watermark.h"
#include "render/content_place.h"
#include "render/watermark_view.h"

#include <QSizeF>
#include <QString>

#include <optional>

class QPainter;

namespace zelto {

// The symbol of `text` in UTF-8 at the lowest level of error correction, in the smallest version that holds
// it. Nothing for an empty text or one too long for a QR code.
std::optional<QrSymbol> encodeQrSymbol(const QString& text);

// Draws the dark modules in black as squares of as many whole units as fit `width` times into `size`, what is
// left over shared by both sides. The painter's y grows downward.
void drawQRCode(const QrSymbol& symbol, QPainter& painter, double size);

// The side in pixels of a record's code on photos whose reference area is `reference`; 0 where the record gives
// it none.
double qrSide(const Watermark& record, QSizeF reference);

// The code of `text`, `side` pixels wide. Nothing for an empty text, one too long for a QR code, or a side that is not
// above 0.
std::optional<QrImage> qrImageForString(const QString& text, double side,
                                        const std::optional<Color>& background);

// The side in pixels of one drawn module.
double moduleSide(const QrImage& code);

// Draws the part of the code that is visible: modules of whole units on a surface of as many units as the side has
// pixels, rounded up, or the symbol has modules, where that is more. The surface, its quiet border cut from it, then
// fills the square. Content pixels are those of the square; the painter's own transform must be the identity.
void drawQrImage(QPainter& painter, const QrImage& code, const ContentPlace& place);

}  // namespace zelto
