// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/photo_keys.h"

#include <QApplication>
#include <QKeyEvent>

namespace zelto {

PhotoKeys::PhotoKeys(QWidget* window) : QObject(window), window_(window) {
    qApp->installEventFilter(this);
}

// A control that wants to keep a key from being a shortcut accepts this event, which comes before the key itself.
bool PhotoKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isPage = key->key() == Qt::Key_PageUp || key->key() == Qt::Key_PageDown;
    const bool isPlain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (!isPage || !isPlain || widget == nullptr || widget->window() != window_) return false;
    event->ignore();
    return true;
}

}  // namespace zelto
