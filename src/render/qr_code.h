// SPDX-License-Identifier: GPL-3.0-or-later
// QR code watermarks: black modules on an optional background with a quiet border. Encoding the symbol is
// libqrencode's work, which guards its own tables. Reentrant, any thread.
#pragma once

#include "records/watermark.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>
#include <QString>

#include <optional>

class QPainter;

namespace zelto {

// A symbol of width x width modules, row by row from the top; bit 0 of a module says whether it is dark.
struct QrSymbol {
    int width = 0;
    QByteArray modules;
};

// The symbol of `text` in UTF-8 at the lowest level of error correction, in the smallest version that holds
// it. Nothing for an empty text or one too long for a QR code.
std::optional<QrSymbol> encodeQrSymbol(const QString& text);

// Draws the dark modules in black as squares of as many whole units as fit `width` times into `size`, what is
// left over shared by both sides. The painter's y grows downward.
void drawQRCode(const QrSymbol& symbol, QPainter& painter, double size);

// The side in pixels of a record's code on photos whose reference area is `reference`; 0 where the record gives
// it none.
double qrSide(const Watermark& record, QSizeF reference);

// The square picture of `text`, `side` pixels wide or as wide as the symbol has modules where that is more,
// always whole pixels. A twentieth of `side` stays free on every side. A null picture for an empty text, one
// too long for a QR code, or a side that is not above 0 or cannot be drawn. Without a background the space
// between modules is transparent.
QImage qrImageForString(const QString& text, double side, const std::optional<Color>& background);

}  // namespace zelto
