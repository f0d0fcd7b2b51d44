// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_session.h"

namespace zelto {
namespace {

const QUndoCommand* lastStep(const QUndoStack& history) {
    return history.index() > 0 ? history.command(history.index() - 1) : nullptr;
}

}  // namespace

EditorSession::EditorSession(const EditorCall& call, QObject* parent)
    : QObject(parent), controller_(call.controller), before_(lastStep(controller_.document().history())) {
    connect(&controller_.document(), &WatermarkDocument::changed, this, &EditorSession::changed);
    connect(&controller_.document().history(), &QUndoStack::indexChanged, this,
            &EditorSession::historyChanged);
}

bool EditorSession::hasChanged() const {
    return lastStep(controller_.document().history()) != before_;
}

void EditorSession::revert() {
    while (hasChanged() && controller_.document().history().canUndo()) {
        controller_.document().history().undo();
    }
}

}  // namespace zelto
