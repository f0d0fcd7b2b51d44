// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/check_mark.h"

#include <QPainter>
#include <QPolygonF>

#include <array>

namespace zelto {

void paintCheckBox(QPainter& painter, const QRect& box, bool isChecked, bool isRowSelected,
                   const QPalette& palette) {
    const QColor ground = palette.color(isRowSelected ? QPalette::HighlightedText : QPalette::Highlight);
    const QColor mark = palette.color(isRowSelected ? QPalette::Highlight : QPalette::HighlightedText);
    QColor rim = palette.color(isRowSelected ? QPalette::HighlightedText : QPalette::Text);
    rim.setAlphaF(0.55F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF square = QRectF(box).adjusted(0.75, 0.75, -0.75, -0.75);
    painter.setPen(isChecked ? QPen(Qt::NoPen) : QPen(rim, 1.3));
    painter.setBrush(isChecked ? QBrush(ground) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(square, 3.0, 3.0);
    if (isChecked) {
        const double side = square.width();
        const QPointF at = square.topLeft();
        const std::array<QPointF, 3> tick = {at + QPointF(0.22, 0.53) * side, at + QPointF(0.42, 0.72) * side,
                                             at + QPointF(0.78, 0.30) * side};
        painter.setPen(QPen(mark, side * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(tick.data(), static_cast<int>(tick.size()));
    }
    painter.restore();
}

void paintFocus(QPainter& painter, const QRect& area, bool isSelected, const QPalette& palette) {
    constexpr double Width = 2.0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight), Width,
                        Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(QRectF(area).adjusted(Width, Width, -Width, -Width));
    painter.restore();
}

}  // namespace zelto
