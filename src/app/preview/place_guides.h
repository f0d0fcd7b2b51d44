// SPDX-License-Identifier: GPL-3.0-or-later
// What is shown around a layer while it is moved: the lines it lies on, and how far it is from the edges or middles
// that it holds on to. Picture pixels from the top left.
#pragma once

#include "records/watermark.h"

#include <QLineF>
#include <QRectF>
#include <QString>

#include <vector>

namespace zelto {

struct PlaceGuides {
    struct Distance {
        QLineF line;  // from what the layer holds on to
        QString label;
    };
    std::vector<QLineF> lines;
    std::vector<Distance> distances;
    int cell = 0;  // of the nine positions, 1 to 9 row by row from the top left; 0 for a place of its own
};

PlaceGuides placeGuides(const Watermark& record, const QRectF& frame, const QRectF& area);

}  // namespace zelto
