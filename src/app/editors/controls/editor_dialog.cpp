// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace zelto {

EditorDialog::EditorDialog(const EditorCall& call, EditorSession& session, const QString& name,
                           const QString& title)
    : RememberedDialog(name, title, call.parent), session_(session) {
    connect(&session_, &EditorSession::changed, this, &EditorDialog::reload);
}

// The buttons come last, so that Tab reaches them last.
void EditorDialog::setContent(QWidget* content) {
    auto* buttons = new QDialogButtonBox(this);
    revert_ = buttons->addButton(tr("Re&vert"), QDialogButtonBox::ResetRole);
    revert_->setObjectName(QStringLiteral("Revert"));
    revert_->setToolTip(tr("Take back everything that was changed since this window was opened"));
    revert_->setAutoDefault(false);
    buttons->addButton(QDialogButtonBox::Close)->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(content, 1);
    column->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    connect(revert_, &QPushButton::clicked, &session_, &EditorSession::revert);
}

void EditorDialog::run() {
    reload();
    exec();
}

void EditorDialog::done(int result) {
    RememberedDialog::done(result);
    disconnect(&session_, nullptr, this, nullptr);
    session_.finish();
}

void EditorDialog::reload() {
    load();
    revert_->setEnabled(session_.hasChanged());
}

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
