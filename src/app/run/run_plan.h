// SPDX-License-Identifier: GPL-3.0-or-later
// What a run of the window works from: the photo list, the stack and the copyright data as they are when it starts.
// Later changes do not reach it.
#pragma once

#include "batch/batch_request.h"
#include "batch/output_writer.h"

#include <QString>

namespace zelto {

class ImageListController;
class WatermarkDocument;

struct RunPlan {
    BatchRequest request;
    OutputWriter::Settings writing;

    // Checked photos from `row` on.
    qint64 photosFrom(qint64 row) const;
};

// A run keeps the stack as the setting "Last Watermark" in `settingsFolder`, where there is one, and the last photo's
// running number among the preferences. Main thread.
RunPlan planRun(const ImageListController& photos, const WatermarkDocument& document,
                const OutputOptions& options, const NameRules& names, const QString& settingsFolder);

}  // namespace zelto
