// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/upright.h"

#include "pictures/picture_memory.h"

#include <algorithm>

namespace zelto {

Turn turnOf(int orientation) {
    constexpr Turn Turns[] = {{false, false, false}, {false, true, false}, {false, true, true},
                              {false, false, true},  {true, false, false}, {true, false, true},
                              {true, true, true},    {true, true, false}};
    return Turns[orientation >= 1 && orientation <= 8 ? orientation - 1 : 0];
}

bool swapsAxes(int orientation) {
    return turnOf(orientation).swapsAxes;
}

QSize uprightSize(QSize stored, int orientation) {
    return swapsAxes(orientation) ? stored.transposed() : stored;
}

void placeUpright(const quint32* rows, int firstRow, int count, QSize stored, int orientation,
                  QImage& upright) {
    const Turn turn = turnOf(orientation);
    const qsizetype width = stored.width();
    const qsizetype pitch = upright.bytesPerLine() / qsizetype{sizeof(quint32)};
    auto* pixels = reinterpret_cast<quint32*>(upright.bits());
    const qsizetype firstUpright = turn.reversesY ? stored.height() - 1 - firstRow : firstRow;
    const qsizetype step = turn.reversesY ? -1 : 1;

    if (!turn.swapsAxes) {
        for (int row = 0; row < count; ++row, rows += width) {
            quint32* line = pixels + (firstUpright + step * row) * pitch;
            if (turn.reversesX) {
                std::reverse_copy(rows, rows + width, line);
            } else {
                std::copy_n(rows, width, line);
            }
        }
        return;
    }
    // Column by column, so that each visit to a line of the upright picture fills a run of neighbouring
    // pixels.
    for (qsizetype x = 0; x < width; ++x) {
        quint32* target = pixels + (turn.reversesX ? width - 1 - x : x) * pitch + firstUpright;
        const quint32* source = rows + x;
        for (int row = 0; row < count; ++row, source += width, target += step) *target = *source;
    }
}

QImage uprightPicture(QImage picture, int orientation) {
    const Turn turn = turnOf(orientation);
    if (picture.isNull() || turn.isNone()) return picture;
    QImage upright = newPicture(uprightSize(picture.size(), orientation), picture.format());
    constexpr int Band = 64;
    for (int row = 0; row < picture.height(); row += Band) {
        placeUpright(reinterpret_cast<const quint32*>(picture.constScanLine(row)), row,
                     std::min(Band, picture.height() - row), picture.size(), orientation, upright);
    }
    return upright;
}

}  // namespace zelto
