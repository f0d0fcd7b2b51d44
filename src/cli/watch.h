// SPDX-License-Identifier: GPL-3.0-or-later
// Watching folders: photos that arrive are marked and written, run after run, until a signal says that it is enough.
//
// To the user it is one run. Row numbers go on from photo to photo, and the rules for names hold across all of it (see
// EarlierOutputs): a photo that is written again replaces its own output. What could not be written, as on a full disk,
// is tried again until it can, and a photo that is taken away before its turn is no failure. What is kept in memory is
// bounded: nothing of a photo stays but its name among the latest, and exiftool and the encoders are begun anew now and
// then.
#pragma once

#include "cli/batch_plan.h"
#include "cli/batch_report.h"
#include "cli/console.h"

#include <functional>

namespace zelto {

// Error: why these folders cannot be watched with these options.
Result<void> checkWatch(const CommandLine& line, const OutputOptions& options);

// The report holds the counts and no photos: `photoEnded`, where set, was called for each as it came, one at a time on
// any thread.
BatchReport watchFolders(const BatchPlan& plan, const CommandLine& line, Console& console,
                         const std::function<void(const PhotoReport&)>& photoEnded);

}  // namespace zelto
