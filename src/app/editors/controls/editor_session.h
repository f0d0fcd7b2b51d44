// SPDX-License-Identifier: GPL-3.0-or-later
// What one opening of an editor does to the document: every change is there at once, for the preview to follow, and all
// changes together are one undo step, which can be taken back as long as the editor is open. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"
#include "app/watermarks/watermark_controller.h"

#include <QObject>
#include <QString>

namespace zelto {

class EditorSession : public QObject {
    Q_OBJECT

  public:
    explicit EditorSession(const EditorCall& call, QObject* parent = nullptr);

    WatermarkController& controller() const { return controller_; }
    // The step to hand to the controller with each change.
    static QString step() { return QStringLiteral("session"); }

    // Whether the document is no longer what it was when the session began.
    bool hasChanged() const;
    // Takes everything back. The session goes on.
    virtual void revert();
    // The editor is closed: what was changed stays.
    virtual void finish() {}

  Q_SIGNALS:
    // What is edited is no longer what it was: controls show it anew.
    void changed();
    // hasChanged() may have another answer. The history counts a step only after the document has told of the change,
    // so this comes after changed().
    void historyChanged();

  private:
    WatermarkController& controller_;
    const QUndoCommand* before_;  // the step that was the last one when the session began
};

}  // namespace zelto
