// SPDX-License-Identifier: GPL-3.0-or-later
// From the colours a file means to sRGB. A profile that is broken, or made for another kind of colour than
// the picture's, is ignored: the pixels then stay (CMYK: are converted without one). Any thread.
#pragma once

#include <QByteArray>
#include <QImage>

namespace zelto {

// How the four bytes of a CMYK pixel count.
enum class InkScale { FullIs255, FullIs0 };

// `picture` as RGB32, or as unpremultiplied ARGB32 where it has alpha, converted from the RGB or grey ICC
// profile `profile` (empty: it is sRGB already). Pictures of 16 bits per channel are converted before they lose
// the lower eight; those of 8 bits are converted in place when they are moved in.
QImage convertedToSrgb(QImage picture, const QByteArray& profile);

// Converts `picture`, whose 32-bit pixels hold the bytes C, M, Y, K in this order, in place into RGB32, by
// the CMYK ICC profile `profile`.
void convertCmykToSrgb(QImage& picture, InkScale inks, const QByteArray& profile);

// The ICC profile of Adobe RGB (1998), for cameras that only name it.
const QByteArray& adobeRgb1998Profile();

}  // namespace zelto
