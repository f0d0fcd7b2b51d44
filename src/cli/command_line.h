// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of zelto-batch: what it asks for, and the manual that tells of it. Both come from the table in
// batch_options.h. Nothing is looked up on disk here.
#pragma once

#include "batch/folder_scan.h"
#include "batch/output_plan.h"
#include "cli/shard.h"
#include "options/option_table.h"
#include "platform/result.h"
#include "records/output_options.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace zelto {

struct ResizeChoice {
    std::int64_t type = resize_type::Percentage;
    std::int64_t width = 0;  // the longer side for that type
    std::int64_t height = 0;
};

// What is done; all but Run print something and write no photo.
enum class Task {
    Run,
    Help,
    Version,
    ListSettings,
    ListFonts,
    PrintSetting,
    PrintOptions,
    Doctor,
    MergeReports,  // `inputs` are reports, and nothing else counts
    Generate
};

struct CommandLine {
    Task task = Task::Run;
    QString taskArgument;  // the setting to print, or what to generate
    bool watch = false;

    QStringList inputs;  // photos and folders, as given
    QString setting;     // a name or a path
    QString output;
    QString optionsFile;
    QString copyrightFile;

    // What is not given leaves the options of the file, or their defaults, as they are.
    std::optional<QString> format;  // an OutputOptions::OutputFormat
    std::optional<int> quality;
    std::optional<QString> rename;
    std::optional<ResizeChoice> resize;
    std::optional<std::int64_t> metadata;
    bool keepAspect = false;
    bool noEnlarge = false;
    bool combinePdf = false;
    bool keepStructure = false;
    bool jpegLossless = false;

    bool recursive = false;
    ScanFormats extensions;
    std::optional<int> jobs;
    Shard shard;
    std::optional<bool> continueAfterFailures;
    std::optional<NameRule> sameName;
    std::optional<NameRule> existing;
    bool strict = false;
    bool overwriteOriginals = false;
    bool dryRun = false;

    bool json = false;
    bool quiet = false;
    bool color = true;
    bool progress = true;
};

// `arguments` without the program's name. Error: ErrorCode::InvalidValue, naming the option and what it takes.
Result<CommandLine> parseCommandLine(const QStringList& arguments);

// Whether a report in JSON is asked for, even by a command line that cannot be used.
bool asksForJson(const QStringList& arguments);

// What is told of all options.
const ProgramManual& batchManual();

// The program's version and those of the picture libraries that this build has.
QString versionText();

}  // namespace zelto
