// SPDX-License-Identifier: GPL-3.0-or-later
// An editor's session on one watermark: the one that the controller has current, or a new one. Main thread only.
#pragma once

#include "app/editors/controls/editor_session.h"
#include "records/watermark.h"

#include <functional>

namespace zelto {

using WatermarkEdit = std::function<void(Watermark&)>;

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

    // Changes the record, in the list and on the preview. A record in the list that is emptied keeps its place there as
    // long as the session lasts.
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
