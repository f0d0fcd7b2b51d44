// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/icon_label.h"

#include "app/common/icons.h"

#include <QEvent>

namespace zelto {

IconLabel::IconLabel(QLatin1String icon, int side, QWidget* parent, QIcon::Mode mode)
    : QLabel(parent), icon_(lineIcon(icon)), side_(side), mode_(mode) {
    draw();
}

void IconLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) draw();
}

void IconLabel::draw() {
    setPixmap(icon_.pixmap(QSize(side_, side_), devicePixelRatioF(), mode_));
}

}  // namespace zelto
