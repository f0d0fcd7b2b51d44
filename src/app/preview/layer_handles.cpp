// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/layer_handles.h"

#include "app/preview/preview_paint.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

// Device-independent pixels.
constexpr double LeastHalfSide = 13.0;  // of the rectangle of the handles
constexpr double TurnDistance = 24.0;   // of the handle that turns from the outline
constexpr double Reach = 9.0;           // of a handle, on all sides

// In the order of LayerHandles::corners.
constexpr std::array<QPoint, 4> Corners = {QPoint(-1, -1), QPoint(1, -1), QPoint(1, 1), QPoint(-1, 1)};
// The sides the turning handle may stand at, the best one first.
constexpr std::array<QPoint, 4> Sides = {QPoint(0, -1), QPoint(0, 1), QPoint(1, 0), QPoint(-1, 0)};

bool isNear(QPointF a, QPointF b, double reach) {
    return QLineF(a, b).length() <= reach;
}

}  // namespace

LayerHandles handlesOf(const LayerOutline& outline, bool canTurn, const ViewGeometry& view, double ratio) {
    const QPointF centre = view.toView(outline.centre);
    const QSizeF half = outline.size * view.scale() / 2.0;
    const QSizeF spread = half.expandedTo(QSizeF(LeastHalfSide, LeastHalfSide) * ratio);
    const QTransform turn = QTransform().rotate(outline.degrees);
    const auto at = [&](QPoint place, QSizeF from, double beyond) {
        return centre +
               turn.map(QPointF(place.x() * (from.width() + beyond), place.y() * (from.height() + beyond)));
    };
    LayerHandles handles{.outline = {}, .corners = {}, .turn = {}, .degrees = outline.degrees};
    for (std::size_t i = 0; i < Corners.size(); ++i) {
        handles.outline << at(Corners.at(i), half, ratio);
        handles.corners.at(i) = at(Corners.at(i), spread, ratio);
    }
    if (!canTurn) return handles;
    const double margin = Reach * ratio;
    const QRectF seen = QRectF(QPointF(), view.viewport).adjusted(margin, margin, -margin, -margin);
    for (const QPoint side : Sides) {
        const QLineF stem(at(side, half, ratio), at(side, spread, TurnDistance * ratio));
        if (!handles.turn) handles.turn = stem;
        if (!seen.contains(stem.p2())) continue;
        handles.turn = stem;
        break;
    }
    return handles;
}

std::optional<Grip> gripAt(const LayerHandles& handles, QPointF point, double ratio) {
    const double reach = Reach * ratio;
    if (handles.turn && isNear(handles.turn->p2(), point, reach)) return Grip{Grip::Part::Turn, {}};
    for (std::size_t i = 0; i < Corners.size(); ++i) {
        if (isNear(handles.corners.at(i), point, reach)) return Grip{Grip::Part::Corner, Corners.at(i)};
    }
    return std::nullopt;
}

QCursor cursorFor(const Grip& grip, double degrees) {
    if (grip.part == Grip::Part::Body) return Qt::SizeAllCursor;
    if (grip.part == Grip::Part::Turn) return turnCursor();
    // The corner's own direction, counted in eighths of a turn from the right.
    constexpr std::array<Qt::CursorShape, 4> Shapes = {Qt::SizeHorCursor, Qt::SizeFDiagCursor,
                                                       Qt::SizeVerCursor, Qt::SizeBDiagCursor};
    const double own = grip.corner.x() == grip.corner.y() ? 45.0 : 135.0;
    const auto eighth = static_cast<int>(std::lround((own + degrees) / 45.0));
    return Shapes.at(static_cast<std::size_t>((eighth % 4 + 4) % 4));
}

}  // namespace zelto
