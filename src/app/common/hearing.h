// SPDX-License-Identifier: GPL-3.0-or-later
// For users who hear the window instead of seeing it. Main thread only.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace zelto {

// What a widget that paints itself is; of its own widgets Qt knows.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

// Has `text` told at once, or as soon as `widget` is shown: it becomes the name of the widget, which takes the role of
// a notification, and that is what screen readers of the Linux desktop speak when it shows. (An alert of Qt's never
// reaches them.)
void announce(QWidget& widget, const QString& text);

}  // namespace zelto
