// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/preview_paint.h"

#include <QBrush>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
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

// A line with a bar at either end.
QPainterPath dimensionLine(const QLineF& line, double ratio) {
    constexpr double HalfBar = 5.0;
    QPainterPath path(line.p1());
    path.lineTo(line.p2());
    const QLineF across = line.normalVector().unitVector();
    const QPointF bar = QPointF(across.dx(), across.dy()) * HalfBar * ratio;
    for (const QPointF& end : {line.p1(), line.p2()}) {
        path.moveTo(end - bar);
        path.lineTo(end + bar);
    }
    return path;
}

struct LabelLook {
    QPalette::ColorRole ground;
    QPalette::ColorRole text;
    QSizeF margins;  // beside the text and above it
};
constexpr LabelLook Tag{QPalette::Highlight, QPalette::HighlightedText, {6.0, 2.0}};
constexpr LabelLook Sign{QPalette::ToolTipBase, QPalette::ToolTipText, {12.0, 6.0}};

QSizeF labelSize(const QString& text, const QFont& font, const LabelLook& look) {
    return QFontMetricsF(font).boundingRect(text).size() + 2.0 * look.margins;
}

// A text on a rounded ground around `centre`. Lengths of a label are device-independent, the painter's are not.
void paintLabel(QPainter& painter, QPointF centre, const QString& text, const LabelLook& look,
                const QPalette& palette, const QFont& font, double ratio) {
    painter.save();
    painter.translate(centre);
    painter.scale(ratio, ratio);
    QRectF box(QPointF(), labelSize(text, font, look));
    box.moveCenter(QPointF());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(look.ground));
    painter.drawRoundedRect(box, 4.0, 4.0);
    painter.setFont(font);
    painter.setPen(palette.color(look.text));
    painter.drawText(box, Qt::AlignCenter, text);
    painter.restore();
}

// The nine positions as dots, the one that the frame has standing out: under the frame, or over it where there is no
// room or something else is.
void paintCell(QPainter& painter, const QRectF& frame, int cell, bool isTakenBelow, const QPalette& palette,
               double ratio) {
    constexpr double Step = 7.0;
    constexpr double Side = 4.0 * Step;
    constexpr double Gap = 10.0;
    painter.save();
    const double below = frame.bottom() + Gap * ratio;
    const bool fits = !isTakenBelow && below + Side * ratio <= painter.viewport().height();
    painter.translate(frame.center().x(), fits ? below : frame.top() - (Gap + Side) * ratio);
    painter.scale(ratio, ratio);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette.color(QPalette::Highlight));
    painter.drawRoundedRect(QRectF(-Side / 2.0, 0.0, Side, Side), 4.0, 4.0);
    QColor faint = palette.color(QPalette::HighlightedText);
    faint.setAlphaF(0.45F);
    for (int i = 0; i < 9; ++i) {
        const bool isOwn = i + 1 == cell;
        const double radius = isOwn ? 3.0 : 1.5;
        const QPoint place(i % 3 - 1, i / 3 + 1);
        painter.setBrush(isOwn ? palette.color(QPalette::HighlightedText) : faint);
        painter.drawEllipse(QPointF(place) * Step, radius, radius);
    }
    painter.restore();
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

void paintLayerMark(QPainter& painter, const QPolygonF& outline, const QPalette& palette, double ratio) {
    QPen pen(palette.color(QPalette::Highlight), 1.5 * ratio, Qt::DashLine);
    pen.setDashPattern({4.0, 3.0});
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    paintLine(painter, pen, path);
}

void paintHandles(QPainter& painter, const LayerHandles& handles, const QPalette& palette, double ratio) {
    constexpr double HalfSide = 4.5;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette.color(QPalette::Highlight);
    if (handles.turn) {
        QPainterPath stem(handles.turn->p1());
        stem.lineTo(handles.turn->p2());
        paintLine(painter, QPen(accent, ratio), stem);
    }
    painter.setPen(QPen(accent, 1.5 * ratio));
    painter.setBrush(Qt::white);
    const double half = HalfSide * ratio;
    if (handles.turn) painter.drawEllipse(handles.turn->p2(), half, half);
    for (const QPointF& corner : handles.corners) {
        painter.save();
        painter.translate(corner);
        painter.rotate(handles.degrees);
        painter.drawRect(QRectF(-half, -half, 2.0 * half, 2.0 * half));
        painter.restore();
    }
    painter.restore();
}

void paintGuides(QPainter& painter, const PlaceGuides& guides, const QRectF& frame, const QPalette& palette,
                 const QFont& font, double ratio) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = palette.color(QPalette::Highlight);
    const QPen pen(accent, ratio);
    for (const QLineF& line : guides.lines) {
        QPainterPath path(line.p1());
        path.lineTo(line.p2());
        paintLine(painter, pen, path);
    }
    bool isTakenBelow = false;
    for (const PlaceGuides::Distance& distance : guides.distances) {
        isTakenBelow = isTakenBelow || distance.line.y1() > frame.bottom();
        paintLine(painter, pen, dimensionLine(distance.line, ratio));
        paintLabel(painter, distance.line.center(), distance.label, Tag, palette, font, ratio);
    }
    if (guides.cell > 0) paintCell(painter, frame, guides.cell, isTakenBelow, palette, ratio);
    painter.restore();
}

QCursor turnCursor() {
    constexpr int Side = 24;
    constexpr QRectF Circle(5.0, 5.0, 14.0, 14.0);
    QPixmap picture(Side, Side);
    picture.fill(Qt::transparent);
    QPainterPath path;
    path.arcMoveTo(Circle, 60.0);
    path.arcTo(Circle, 60.0, 290.0);
    const QPointF tip = path.currentPosition();
    path.moveTo(tip + QPointF(-5.0, -1.0));
    path.lineTo(tip);
    path.lineTo(tip + QPointF(1.0, -5.0));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(path, QPen(Qt::white, 4.0, Qt::SolidLine, Qt::RoundCap));
    painter.strokePath(path, QPen(Qt::black, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.end();
    return QCursor(picture);
}

void paintSign(QPainter& painter, QSize viewport, const QString& sign, const QPalette& palette,
               const QFont& font, double ratio) {
    constexpr double Top = 12.0;
    const QPointF centre(viewport.width() / 2.0, (Top + labelSize(sign, font, Sign).height() / 2.0) * ratio);
    paintLabel(painter, centre, sign, Sign, palette, font, ratio);
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
