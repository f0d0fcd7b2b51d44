// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editors/controls/watermark_session.h"

namespace zelto {
namespace {

Watermark startOf(const WatermarkController& controller, std::int32_t type, const WatermarkEdit& complete) {
    const int index = controller.CurrentWatermark();
    if (index >= 0) return controller.GetWatermarkAtRow(index);
    Watermark record = WatermarkController::startingWatermark(type);
    if (complete) complete(record);
    return record;
}

}  // namespace

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
    // The document tells of what is undone, but does not know of a new record that is not in it yet.
    if (!hasChanged()) Q_EMIT changed();
    EditorSession::revert();
}

void WatermarkSession::finish() {
    if (isInList()) controller().ReflectWatermark(record(), step());
}

}  // namespace zelto
