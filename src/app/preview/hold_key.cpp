// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/hold_key.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace zelto {

HoldKey::HoldKey(Qt::Key key, QWidget* window) : QObject(window), key_(key), window_(window) {
    qApp->installEventFilter(this);
}

bool HoldKey::eventFilter(QObject* watched, QEvent* event) {
    if (watched == window_ && event->type() == QEvent::WindowDeactivate) set(false);
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != key_ || key->modifiers() != Qt::NoModifier) return false;
    if (widget == nullptr || widget->window() != window_) return false;
    // A held key repeats; each repetition is a release and a press.
    if (!key->isAutoRepeat()) set(event->type() == QEvent::KeyPress);
    return true;
}

void HoldKey::set(bool isHeld) {
    if (isHeld == isHeld_) return;
    isHeld_ = isHeld;
    Q_EMIT held(isHeld);
}

}  // namespace zelto
