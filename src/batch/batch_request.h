// SPDX-License-Identifier: GPL-3.0-or-later
// What a run works from, and what follows from it before anything is written: which photo goes where. Values in,
// values out; any thread.
#pragma once

#include "batch/destination_map.h"
#include "batch/look_ahead.h"
#include "batch/photo_processor.h"
#include "records/output_options.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace zelto {

// One row of the photo list, as a run sees it.
struct BatchPhoto {
    QString path;
    bool checked = true;  // the others are passed over, but count as rows
};

// It never changes while a run lasts.
struct BatchRequest {
    std::vector<BatchPhoto> photos;
    OutputOptions options;
    FolderDestinations folders;  // the source folders of the list, for a kept structure
    LookAheadLimits limits = LookAheadLimits::forThisMachine();
    // Called on the run's thread, where set: to keep the stack as "Last Watermark" whenever a worker starts, and the
    // running number of the last photo once that is written.
    std::function<void()> saveLastWatermark;
    std::function<void(qint64)> storeLastAutoNumber;
};

// Where each source folder's photos go in one run.
struct RunDestinations {
    FolderDestinations folders;  // filled in only where the structure is kept and the outputs are files
    QStringList topFolders;
};
RunDestinations runDestinations(const BatchRequest& request);

// The task of the photo at `row`, with dates as of `now`.
PhotoTask photoTask(const BatchRequest& request, const RunDestinations& destinations, std::size_t row,
                    const QDateTime& now);

// The photos of the list that a run would replace with an output, each once, in list order. Looks at the disk.
QStringList replacedPhotos(const BatchRequest& request, const QDateTime& now);

}  // namespace zelto
