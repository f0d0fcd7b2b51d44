// SPDX-License-Identifier: GPL-3.0-or-later
// What a run works from, and what follows from it before anything is written: which photo goes where. Values in,
// values out; any thread.
#pragma once

#include "batch/destination_map.h"
#include "batch/earlier_outputs.h"
#include "batch/look_ahead.h"
#include "batch/output_plan.h"
#include "batch/photo_processor.h"
#include "records/output_options.h"

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace zelto {

// One row of the photo list, as a run sees it.
struct BatchPhoto {
    QString path;
    bool checked = true;  // the others are passed over, but count as rows
    bool isElsewhere =
        false;  // written by another run of the same list, so that its name is taken all the same
};

// It never changes while a run lasts.
struct BatchRequest {
    std::vector<BatchPhoto> photos;
    qint64 firstRow = 0;  // the row of the first of them, where others went before in runs of their own
    OutputOptions options;
    FolderDestinations folders;  // the source folders of the list, for a kept structure
    NameRules names;
    std::shared_ptr<const EarlierOutputs> earlier;  // of those runs; null where there are none
    QLocale locale;                                 // of the dates in names
    bool strict = false;                            // a photo with a warning fails instead of being written
    std::shared_ptr<const OutputPlan> plan;  // planOutputs() of all this; a run that has none makes it first
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

// The task of the photo at `row`, whose output is planned as `output`, with dates as of `now`.
PhotoTask photoTask(const BatchRequest& request, const RunDestinations& destinations,
                    const PlannedOutput& output, std::size_t row, const QDateTime& now);

// What becomes of every output by the rules of the request. Names are given out over the whole list, in list order;
// a photo that fails later keeps its name. A number is free when no photo of the list has the name it makes; files
// that stand there count where the rule for them is to number. Paths are compared as the file system does. Pages of a
// combined PDF have no names of their own. Looks at the disk, a few times per photo, and into the photos where their
// names are made of what they hold.
OutputPlan planOutputs(const BatchRequest& request, const QDateTime& now);

}  // namespace zelto
