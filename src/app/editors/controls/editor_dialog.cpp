// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_dialog.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace zelto {

// The buttons come last, so that Tab reaches them last.
EditorDialog::EditorDialog(QWidget* parent, EditorSession& session, EditorPanel* panel)
    : RememberedDialog(panel->objectName(), panel->windowTitle(), parent), session_(session) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(panel, 1);
    auto* buttons = new QDialogButtonBox(this);
    revert_ = buttons->addButton(tr("Re&vert"), QDialogButtonBox::ResetRole);
    revert_->setObjectName(QStringLiteral("Revert"));
    revert_->setToolTip(tr("Take back everything that was changed since this window was opened"));
    revert_->setAutoDefault(false);
    revert_->setEnabled(session_.hasChanged());
    buttons->addButton(QDialogButtonBox::Close)->setDefault(true);
    column->addWidget(buttons);
    if (panel->focusProxy() != nullptr) panel->setFocus();

    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::accept);
    connect(panel, &EditorPanel::done, this, &QDialog::accept);
    connect(revert_, &QPushButton::clicked, &session_, &EditorSession::revert);
    connect(&session_, &EditorSession::changed, panel, &EditorPanel::load);
    connect(&session_, &EditorSession::historyChanged, this,
            [this] { revert_->setEnabled(session_.hasChanged()); });
    panel->load();
}

void EditorDialog::done(int result) {
    RememberedDialog::done(result);
    session_.disconnect();
    session_.finish();
}

void runEditor(const EditorCall& call, EditorSession& session, EditorPanel* panel) {
    EditorDialog(call.parent, session, panel).exec();
}

}  // namespace zelto
