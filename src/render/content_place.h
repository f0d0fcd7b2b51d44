// SPDX-License-Identifier: GPL-3.0-or-later
// How one copy of a watermark's content lies on a picture. Both count from their top-left corner, y growing downward.
#pragma once

#include <QRect>
#include <QRectF>
#include <QTransform>

namespace zelto {

struct ContentPlace {
    QTransform toPicture;       // from content pixels to picture pixels: a turn and a shift
    QRect visible;              // the picture pixels that may be drawn on
    bool cutToContent = false;  // nothing is drawn outside the content's own rectangle
};

// The whole picture pixels that `area` touches among the visible ones. Safe for areas of any size and place.
inline QRect visiblePixels(const QRectF& area, const QRect& visible) {
    return area.intersected(QRectF(visible)).toAlignedRect();
}

}  // namespace zelto
