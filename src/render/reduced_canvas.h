// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing pictures on a canvas that may stand for a larger one: its painter's window is then that many times larger than
// its viewport. Drawing goes on in pixels of the larger one; but a picture is to be made smaller before it is drawn,
// since the painter looks at four of its pixels and leaves out all the others.
#pragma once

#include "pictures/resample.h"
#include "render/canvas.h"

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QRectF>

#include <algorithm>
#include <cmath>

namespace zelto {

// The pixels that one of the canvas stands for: 1 on a canvas of its own size.
inline double reductionOf(const QPainter& painter) {
    return static_cast<double>(painter.window().width()) / painter.viewport().width();
}

inline QSize reducedSize(QSizeF size, double reduction) {
    return {std::max(1, static_cast<int>(std::ceil(size.width() / reduction))),
            std::max(1, static_cast<int>(std::ceil(size.height() / reduction)))};
}

// The picture at a whole pixel, in its own size.
inline void drawPictureAt(QPainter& painter, QPoint at, const QImage& picture) {
    const double reduction = reductionOf(painter);
    if (reduction == 1.0) {
        painter.drawImage(at, picture);
    } else {
        painter.drawImage(QRectF(at, picture.size()),
                          allocated(resizedImage(picture, reducedSize(picture.size(), reduction))));
    }
}

}  // namespace zelto
