// SPDX-License-Identifier: GPL-3.0-or-later
// What the preview canvas paints around and over the photo. All coordinates are device pixels of the
// viewport, line widths follow `ratio`, the device pixels of one device-independent pixel. Main thread only.
#pragma once

#include "app/preview/layer_handles.h"
#include "app/preview/place_guides.h"

#include <QCursor>
#include <QFont>
#include <QLineF>
#include <QPalette>
#include <QPolygonF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QString>

class QPainter;

namespace zelto {

// Lets `painter`, open on a widget, count in device pixels that fall on those of the screen. Without this a
// widget that stands at half a device pixel would blur its photo.
void paintOnDevicePixels(QPainter& painter);

void paintBackground(QPainter& painter, QSize viewport, const QPalette& palette);
// The ground under pictures that are partly transparent; its squares keep their place on the screen.
void paintCheckerboard(QPainter& painter, const QRect& area, const QPalette& palette, double ratio);
// The outline of the layer that is selected.
void paintLayerMark(QPainter& painter, const QPolygonF& outline, const QPalette& palette, double ratio);
// Its handles; their shape tells the one that turns from those that size.
void paintHandles(QPainter& painter, const LayerHandles& handles, const QPalette& palette, double ratio);
// Around a layer in `frame` that is moved: the lines it lies on, its distances, and which of the nine positions it has.
// All are in view coordinates.
void paintGuides(QPainter& painter, const PlaceGuides& guides, const QRectF& frame, const QPalette& palette,
                 const QFont& font, double ratio);
// The pointer on the handle that turns.
QCursor turnCursor();
// A line at the top, on a ground of its own.
void paintSign(QPainter& painter, QSize viewport, const QString& sign, const QPalette& palette,
               const QFont& font, double ratio);
// A message in the middle; its first line stands out.
void paintCentredMessage(QPainter& painter, QSize viewport, const QString& message, const QPalette& palette,
                         const QFont& font, double ratio);

}  // namespace zelto
