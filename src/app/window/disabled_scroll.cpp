// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/disabled_scroll.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

namespace zelto {

DisabledScroll::DisabledScroll(QAbstractScrollArea& view) : QObject(&view), view_(view) {
    view_.viewport()->installEventFilter(this);
}

// A filter sees what a disabled widget is not given.
bool DisabledScroll::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::Wheel || view_.isEnabled()) return false;
    const auto* wheel = static_cast<QWheelEvent*>(event);
    QScrollBar* bar = view_.verticalScrollBar();
    const int lines = QApplication::wheelScrollLines() * wheel->angleDelta().y() / 120;
    bar->setValue(bar->value() - lines * bar->singleStep());
    event->accept();
    return true;
}

}  // namespace zelto
