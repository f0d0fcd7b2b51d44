// SPDX-License-Identifier: GPL-3.0-or-later
// The frame every editor has: a dialog beside the photo that remembers where it was, with a button that takes
// back what was changed and one that closes. Escape and Enter close it too; what was changed stays. Main
// thread only.
#pragma once

#include "app/editors/controls/editor_session.h"

#include <QDialog>
#include <QFormLayout>
#include <QPushButton>

namespace zelto {

class EditorDialog : public QDialog {
    Q_OBJECT

  public:
    // `name` stands for this kind of editor where its place is remembered. The session outlives the dialog.
    EditorDialog(const EditorCall& call, EditorSession& session, const QString& name, const QString& title);

    // Shows the editor until the user closes it, and finishes the session.
    void run();

    void done(int result) override;

  protected:
    // Gives the dialog what it edits with; once, in the constructor.
    void setContent(QWidget* content);
    // Shows the record anew: when the editor opens and whenever `changed` is told.
    virtual void load() = 0;

    void showEvent(QShowEvent* event) override;

  private:
    void reload();
    void place();
    void keepPlace() const;

    EditorSession& session_;
    QPushButton* revert_;
};

// Adds a row whose label, with a mnemonic, is the buddy and the accessible name of its control.
void addRow(QFormLayout& form, const QString& label, QWidget* control);

}  // namespace zelto
