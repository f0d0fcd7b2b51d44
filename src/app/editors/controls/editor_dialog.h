// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of every editor whose changes are seen at once: a dialog beside the photo with a button that takes
// back what was changed and one that closes. Escape and Enter close it too; what was changed stays. Main
// thread only.
#pragma once

#include "app/common/remembered_dialog.h"
#include "app/editors/controls/editor_session.h"

#include <QFormLayout>
#include <QPushButton>

namespace zelto {

class EditorDialog : public RememberedDialog {
    Q_OBJECT

  public:
    // The session outlives the dialog.
    EditorDialog(const EditorCall& call, EditorSession& session, const QString& name, const QString& title);

    // Shows the editor until the user closes it, and finishes the session.
    void run();

    void done(int result) override;

  protected:
    // Gives the dialog what it edits with; once, in the constructor.
    void setContent(QWidget* content);
    // Shows the record anew: when the editor opens and whenever it has changed.
    virtual void load() = 0;

  private:
    void reload();

    EditorSession& session_;
    QPushButton* revert_ = nullptr;
};

// Adds a row whose label, with a mnemonic, is the buddy and the accessible name of its control.
void addRow(QFormLayout& form, const QString& label, QWidget* control);

}  // namespace zelto
