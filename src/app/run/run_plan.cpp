// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_plan.h"

#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_document.h"
#include "persistence/settings_library.h"
#include "platform/dates.h"
#include "platform/preferences.h"

#include <algorithm>

namespace zelto {
qint64 RunPlan::photosFrom(qint64 row) const {
    return std::count_if(request.photos.begin() + row, request.photos.end(),
                         [](const BatchPhoto& photo) { return photo.checked; });
}

RunPlan planRun(const ImageListController& photos, const WatermarkDocument& document,
                const OutputOptions& options, const NameRules& names, const QString& settingsFolder) {
    RunPlan plan;
    for (const Image& photo : photos.images()) {
        plan.request.photos.push_back({photo.ImagePath, photo.ApplyWatermark});
    }
    plan.request.limits.givesWay = true;
    plan.request.options = options;
    plan.request.names = names;
    plan.request.locale = userDateLocale();
    plan.request.folders = photos.model().list().InputOutputDictionary();
    const auto stack = document.snapshot();
    if (!settingsFolder.isEmpty()) {
        plan.request.saveLastWatermark = [stack, settingsFolder] {
            saveLastWatermark(*stack, settingsFolder);
        };
    }
    plan.request.storeLastAutoNumber = [](qint64 number) {
        setPreference(preference::LastAutoNumber, number);
    };
    plan.writing = {.options = options,
                    .stack = stack,
                    .locale = userDateLocale(),
                    .copyright = document.state().Metadata,
                    .metadataJobs = plan.request.limits.jobs};
    return plan;
}

}  // namespace zelto
