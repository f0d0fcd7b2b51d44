// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/tile_button.h"

#include <QPainter>

namespace zelto {

TileButton::TileButton(const QIcon& icon, const QString& name, QWidget* parent) : QToolButton(parent) {
    setIcon(icon);
    setIconSize({28, 28});
    setText(name);
    setAccessibleName(name);
    setToolTip(name);
    setCheckable(true);
    setAutoExclusive(true);  // told as one choice of several; its group says of which
    setFocusPolicy(Qt::StrongFocus);
}

void TileButton::paintEvent(QPaintEvent* event) {
    QToolButton::paintEvent(event);
    if (!isChecked()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    painter.setPen(QPen(palette().color(group, QPalette::Highlight), 2.0));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), 3.0, 3.0);
}

}  // namespace zelto
