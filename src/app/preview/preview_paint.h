// SPDX-License-Identifier: GPL-3.0-or-later
// What the preview canvas paints around and over the photo. All coordinates are device pixels of the
// viewport, line widths follow `ratio`, the device pixels of one device-independent pixel. Main thread only.
#pragma once

#include <QFont>
#include <QLineF>
#include <QPalette>
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
// The frame around the layer that is selected or dragged.
void paintLayerMark(QPainter& painter, const QRectF& frame, const QPalette& palette, double ratio);
// A line a dragged layer lies on.
void paintGuide(QPainter& painter, const QLineF& line, const QPalette& palette, double ratio);
// A message in the middle; its first line stands out.
void paintCentredMessage(QPainter& painter, QSize viewport, const QString& message, const QPalette& palette,
                         const QFont& font, double ratio);

}  // namespace zelto
