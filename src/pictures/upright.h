// SPDX-License-Identifier: GPL-3.0-or-later
// Turning a picture as a camera stored it into the picture as it was seen. Orientations are the EXIF values 1
// to 8; any other value counts as 1. Pixels are 32 bits of any meaning. Reentrant; any thread.
#pragma once

#include <QImage>
#include <QSize>

namespace zelto {

// The pixel size of a picture of `stored` pixels once it is upright.
QSize uprightSize(QSize stored, int orientation);

// What turning upright does to the stored rows and columns: first these are reversed, then they change places.
struct Turn {
    bool swapsAxes;  // stored rows become columns
    bool reversesX;  // the stored first column comes last
    bool reversesY;  // the stored first row comes last

    bool isNone() const { return !swapsAxes && !reversesX && !reversesY; }
};
Turn turnOf(int orientation);

// Whether stored rows become columns.
bool swapsAxes(int orientation);

// Puts `count` stored rows, the first of them row `firstRow`, where they belong in `upright`, which has
// uprightSize(stored, orientation). `rows` holds them one behind the other, stored.width() pixels each. A
// decoder that hands its rows over in bands of a few dozen so needs no second picture to turn one.
void placeUpright(const quint32* rows, int firstRow, int count, QSize stored, int orientation,
                  QImage& upright);

// `picture` turned upright; itself for orientation 1.
QImage uprightPicture(QImage picture, int orientation);

}  // namespace zelto
