// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/editor_session.h"

namespace zelto {
namespace {

const QUndoCommand* lastStep(const QUndoStack& history) {
    return history.index() > 0 ? history.command(history.index() - 1) : nullptr;
}

Watermark startOf(const WatermarkController& controller, std::int32_t type, const WatermarkEdit& complete) {
    const int index = controller.CurrentWatermark();
    if (index >= 0) return controller.GetWatermarkAtRow(index);
    Watermark record = WatermarkController::startingWatermark(type);
    if (complete) complete(record);
    return record;
}

}  // namespace

EditorSession::EditorSession(const EditorCall& call, QObject* parent)
    : QObject(parent), controller_(call.controller), before_(lastStep(controller_.document().history())) {
    connect(&controller_.document(), &WatermarkDocument::changed, this, &EditorSession::changed);
    // The history counts a step only after the document has told of it.
    connect(&controller_.document().history(), &QUndoStack::indexChanged, this, &EditorSession::changed);
}

bool EditorSession::hasChanged() const {
    return lastStep(controller_.document().history()) != before_;
}

void EditorSession::revert() {
    while (hasChanged() && controller_.document().history().canUndo()) {
        controller_.document().history().undo();
    }
}

WatermarkSession::WatermarkSession(const EditorCall& call, std::int32_t type, const WatermarkEdit& complete,
                                   QObject* parent)
    : EditorSession(call, parent),
      start_(startOf(call.controller, type, complete)),
      record_(start_),
      isNew_(call.controller.CurrentWatermark() < 0) {}

bool WatermarkSession::isInList() const {
    return controller().CurrentWatermark() >= 0;
}

Watermark WatermarkSession::record() const {
    return isInList() ? controller().GetWatermarkAtRow(controller().CurrentWatermark()) : record_;
}

void WatermarkSession::edit(const WatermarkEdit& edit) {
    const Watermark before = record();
    record_ = before;
    edit(record_);
    if (record_ == before) return;
    if (isInList()) {
        controller().UpdateWatermark(record_, step());
    } else {
        reflect();
    }
    // A new record that holds nothing yet has not touched the document.
    if (!isInList()) Q_EMIT changed();
}

void WatermarkSession::reflect() {
    controller().ReflectWatermark(record_, step());
}

void WatermarkSession::revert() {
    record_ = start_;
    EditorSession::revert();
    Q_EMIT changed();
}

void WatermarkSession::finish() {
    if (isInList()) controller().ReflectWatermark(record(), step());
}

}  // namespace zelto
