// SPDX-License-Identifier: GPL-3.0-or-later
// The frame of every editor whose changes are seen at once: a dialog beside the photo that holds the editor's panel, a
// button that takes back what was changed and one that closes. Escape and Enter close it too; what was changed stays.
// Main thread only.
#pragma once

#include "app/common/remembered_dialog.h"
#include "app/editors/controls/editor_panel.h"

#include <QPushButton>

namespace zelto {

class EditorDialog : public RememberedDialog {
    Q_OBJECT

  public:
    // Becomes the owner of `panel`. The session outlives the dialog.
    EditorDialog(QWidget* parent, EditorSession& session, EditorPanel* panel);

    // Ends the session.
    void done(int result) override;

  private:
    EditorSession& session_;
    QPushButton* revert_;
};

// Shows `panel` in such a dialog until the user closes it.
void runEditor(const EditorCall& call, EditorSession& session, EditorPanel* panel);

}  // namespace zelto
