// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/hearing.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace zelto {
namespace {

constexpr const char* RoleProperty = "accessibleRole";

class HeardWidget : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;
};

QAccessibleInterface* makeHeardWidget(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->property(RoleProperty).isValid()) return nullptr;
    return new HeardWidget(widget, static_cast<QAccessible::Role>(widget->property(RoleProperty).toInt()));
}

}  // namespace

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    static const bool isInstalled = (QAccessible::installFactory(makeHeardWidget), true);
    Q_UNUSED(isInstalled)
    widget.setProperty(RoleProperty, static_cast<int>(role));
    // Naming a widget has Qt make its own interface of it, which it keeps.
    QAccessibleInterface* made = QAccessible::queryAccessibleInterface(&widget);
    if (made != nullptr && made->role() != role) {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
    }
}

void announce(QWidget& widget, const QString& text) {
    setAccessibleRole(widget, QAccessible::Notification);
    widget.setAccessibleName(text);
    if (!widget.isVisible()) return;
    QAccessibleEvent told(&widget, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&told);
}

}  // namespace zelto
