// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the faces of the watermark list up to date: how each mark looks and how it reads on the selected photo. They are
// drawn on a thread of their own, anew only where a record or its text has changed. Main thread only.
#pragma once

#include "app/common/newest_worker.h"
#include "app/watermarks/watermark_list_model.h"
#include "macros/macro_expander.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace zelto {

class WatermarkController;

class StackFaces : public QObject {
    Q_OBJECT

  public:
    // `side` is that of the portraits in device pixels; `watermarks` outlives it.
    StackFaces(WatermarkController& watermarks, int side, QObject* parent = nullptr);
    ~StackFaces() override;

    // The photo that texts are read on; nothing for none: then macros stand as they were written.
    void setPhoto(const std::optional<MacroContext>& photo);

  private:
    struct Job {
        std::shared_ptr<const WatermarkStack> stack;
        std::optional<MacroContext> photo;
    };
    class Painter;

    void post();

    WatermarkController& watermarks_;
    std::optional<MacroContext> photo_;
    std::unique_ptr<Painter> painter_;
    std::unique_ptr<NewestWorker<Job>> jobs_;
};

}  // namespace zelto
