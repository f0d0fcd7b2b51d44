// SPDX-License-Identifier: GPL-3.0-or-later
// Running a plan, or telling what running it would do.
#pragma once

#include "batch/output_writer.h"
#include "cli/batch_plan.h"
#include "cli/batch_report.h"
#include "cli/console.h"

namespace zelto {

// What its photos are written with.
OutputWriter::Settings writerSettings(const BatchPlan& plan);

// Runs the batch, or as much of it as signals and repeated failures let through.
BatchReport runBatch(const BatchPlan& plan, const CommandLine& line, Console& console);

// Where each photo would go, and how large it would become.
BatchReport dryRun(const BatchPlan& plan, Console& console);

// A dry run as lines of source, output and size, with tabs between them.
QString dryRunText(const BatchReport& report);

}  // namespace zelto
