// SPDX-License-Identifier: GPL-3.0-or-later
// The handles on the selected layer: where they stand on the screen, which one a point is on, and the pointer's shape
// there. Points are device pixels of the viewport; `ratio` is the device pixels of one device-independent pixel.
#pragma once

#include "app/preview/layer_gesture.h"
#include "app/preview/view_geometry.h"
#include "render/scene_geometry.h"

#include <QCursor>
#include <QLineF>
#include <QPolygonF>

#include <array>
#include <optional>

namespace zelto {

struct LayerHandles {
    QPolygonF outline;               // of the turned content
    std::array<QPointF, 4> corners;  // top left, top right, bottom right, bottom left of the content
    std::optional<QLineF>
        turn;  // from the outline to the handle that turns it; none where it cannot be turned
    double degrees = 0.0;
};

// Handles of a layer too small to hold them stand around it.
LayerHandles handlesOf(const LayerOutline& outline, bool canTurn, const ViewGeometry& view, double ratio);

// The handle under a point.
std::optional<Grip> gripAt(const LayerHandles& handles, QPointF point, double ratio);

QCursor cursorFor(const Grip& grip, double degrees);

}  // namespace zelto
