// SPDX-License-Identifier: GPL-3.0-or-later
// What one opening of an editor does to the document: every change is there at once, for the preview to
// follow, and all of them together are one undo step, which can be taken back as long as the editor is open.
// Main thread only.
#pragma once

#include "app/editors/controls/watermark_edit.h"
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
    // What is edited is not what it was: controls show it anew.
    void changed();

  private:
    WatermarkController& controller_;
    const QUndoCommand* before_;  // the step that was the last one when the session began
};

// A session on one watermark: the one that the controller has current, or a new one.
class WatermarkSession : public EditorSession {
    Q_OBJECT

  public:
    // A new one is what `complete` makes of the list's starting record of `type`.
    WatermarkSession(const EditorCall& call, std::int32_t type, const WatermarkEdit& complete = {},
                     QObject* parent = nullptr);

    // The record as it is now. A new one is in the list as soon as it holds something.
    Watermark record() const;
    bool isInList() const;
    bool isNew() const { return isNew_; }

    // Changes the record, in the list and on the preview. A record in the list that is emptied keeps its place
    // there as long as the session lasts.
    void edit(const WatermarkEdit& edit);
    // Puts a new record into the list as it is.
    void reflect();

    void revert() override;
    // A record that is left empty goes.
    void finish() override;

  private:
    Watermark start_;
    Watermark record_;  // counts while it is not in the list
    const bool isNew_;
};

}  // namespace zelto
