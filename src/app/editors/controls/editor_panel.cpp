// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_panel.h"

#include <QLabel>

namespace zelto {

EditorPanel::EditorPanel(const QString& name, const QString& title) {
    setObjectName(name);
    setWindowTitle(title);
}

RecordPanel::RecordPanel(const QString& name, const QString& title, WatermarkSession& session)
    : EditorPanel(name, title),
      session_(session),
      binder_([&session](const WatermarkEdit& edit) { session.edit(edit); }) {}

void addRow(QFormLayout& form, const QString& label, QWidget* control) {
    auto* shown = new QLabel(label, control->parentWidget());
    shown->setBuddy(control);
    shown->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);  // in the middle of tall rows
    form.addRow(shown, control);
    if (!control->accessibleName().isEmpty()) return;
    QString name = label;
    control->setAccessibleName(name.remove(QLatin1Char('&')).remove(QLatin1Char(':')));
}

}  // namespace zelto
