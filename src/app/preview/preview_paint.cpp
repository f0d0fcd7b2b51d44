// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/preview_paint.h"

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QTransform>

#include <cmath>

namespace zelto {
namespace {

constexpr double SquareSide = 8.0;  // of the checkerboard, device-independent pixels

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

QImage checkerboard(const QPalette& palette, double ratio) {
    const int side = static_cast<int>(std::lround(SquareSide * ratio));
    const QColor light = isDark(palette) ? QColor(88, 88, 88) : QColor(255, 255, 255);
    const QColor dark = isDark(palette) ? QColor(68, 68, 68) : QColor(222, 222, 222);
    QImage tile(2 * side, 2 * side, QImage::Format_RGB32);
    tile.fill(light);
    QPainter painter(&tile);
    painter.fillRect(0, 0, side, side, dark);
    painter.fillRect(side, side, side, side, dark);
    return tile;
}

// A line that shows on any ground: the accent colour on a pale band.
void paintLine(QPainter& painter, const QPen& pen, const QPainterPath& path) {
    QPen band = pen;
    band.setStyle(Qt::SolidLine);
    band.setColor(QColor(255, 255, 255, 190));
    band.setWidthF(pen.widthF() * 2.0);
    painter.strokePath(path, band);
    painter.strokePath(path, pen);
}

}  // namespace

void paintOnDevicePixels(QPainter& painter) {
    painter.resetTransform();
    const QTransform toDevice = painter.deviceTransform();
    const QTransform wanted = QTransform::fromTranslate(std::round(toDevice.dx()), std::round(toDevice.dy()));
    painter.setWorldTransform(wanted * toDevice.inverted());
}

void paintBackground(QPainter& painter, QSize viewport, const QPalette& palette) {
    // A quiet ground a little darker than the window, so that the photo is what is looked at.
    painter.fillRect(QRect(QPoint(0, 0), viewport),
                     palette.color(QPalette::Window).darker(isDark(palette) ? 135 : 108));
}

void paintCheckerboard(QPainter& painter, const QRect& area, const QPalette& palette, double ratio) {
    painter.fillRect(area, QBrush(checkerboard(palette, ratio)));
}

void paintLayerMark(QPainter& painter, const QRectF& frame, const QPalette& palette, double ratio) {
    QPen pen(palette.color(QPalette::Highlight), 1.5 * ratio, Qt::DashLine);
    pen.setDashPattern({4.0, 3.0});
    QPainterPath path;
    path.addRect(frame.adjusted(-ratio, -ratio, ratio, ratio));
    painter.setRenderHint(QPainter::Antialiasing);
    paintLine(painter, pen, path);
}

void paintGuide(QPainter& painter, const QLineF& line, const QPalette& palette, double ratio) {
    QPainterPath path(line.p1());
    path.lineTo(line.p2());
    paintLine(painter, QPen(palette.color(QPalette::Highlight), ratio), path);
}

void paintCentredMessage(QPainter& painter, QSize viewport, const QString& message, const QPalette& palette,
                         const QFont& font, double ratio) {
    const QString title = message.section(QLatin1Char('\n'), 0, 0);
    const QString rest = message.section(QLatin1Char('\n'), 1);
    painter.save();
    painter.scale(ratio, ratio);
    const QRectF all(QPointF(), QSizeF(viewport) / ratio);
    QFont large = font;
    large.setPointSizeF(font.pointSizeF() * 1.4);
    large.setBold(true);
    const QRectF upper = all.adjusted(24, 0, -24, -all.height() / 2.0 - 4.0);
    const QRectF lower = all.adjusted(24, all.height() / 2.0 + 4.0, -24, 0);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.setFont(large);
    painter.drawText(upper, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap, title);
    painter.setFont(font);
    painter.drawText(lower, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, rest);
    painter.restore();
}

}  // namespace zelto
