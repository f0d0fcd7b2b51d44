// SPDX-License-Identifier: GPL-3.0-or-later
// From a command line to everything one run needs: the setting, the options, the photo list, the copyright data. What is
// wrong with any of them is found here, before anything is written.
#pragma once

#include "batch/batch_request.h"
#include "batch/folder_scan.h"
#include "cli/command_line.h"
#include "persistence/output_settings_file.h"
#include "platform/result.h"
#include "records/copyright_metadata.h"
#include "records/watermark_stack.h"

#include <memory>
#include <optional>
#include <vector>

namespace zelto {

struct BatchPlan {
    BatchRequest request;  // photos outside the shard are unchecked
    std::shared_ptr<const WatermarkStack> stack;
    std::optional<CopyRightMetaData> copyright;  // to be written into the outputs
    std::vector<ScanProblem> problems;           // with the folders, to be told before the run
};

// What the line says of the outputs: its options file, and its other options laid over that. Error: that of the file.
Result<OutputSettings> outputSettings(const CommandLine& line);

// For a watch, without photos. Error: what cannot be used and what to do about it.
Result<BatchPlan> planBatch(const CommandLine& line);

// Makes the output folder. Error: ErrorCode::CannotWrite.
Result<void> makeOutputFolder(const BatchPlan& plan);

}  // namespace zelto
