// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/command_line.h"

#include "cli/batch_options.h"
#include "options/arguments.h"
#include "pictures/picture_libraries.h"
#include "platform/words.h"

#include <array>

namespace zelto {
namespace {

// What makes no sense for a folder that is watched without end.
Complaint watchContradiction(const CommandLine& line) {
    const std::array<std::pair<bool, const char*>, 4> rows = {
        {{line.dryRun, "dry-run"},
         {line.combinePdf, "combine-pdf"},
         {!line.shard.isWhole(), "shard"},
         {line.overwriteOriginals, "overwrite-originals"}}};
    for (const auto& [isGiven, name] : rows) {
        if (isGiven) return Words::tr("--watch cannot be given together with --%1").arg(QLatin1String(name));
    }
    return {};
}

// What makes options that are fine by themselves useless together.
Complaint contradiction(const CommandLine& line) {
    switch (line.task) {
        case Task::Run:
            break;
        case Task::Help:
        case Task::Version:
        case Task::PrintOptions:
            return {};
        case Task::MergeReports:
            return line.inputs.isEmpty() ? Words::tr("name the reports to merge") : Complaint();
        default:
            return line.inputs.isEmpty()
                       ? Complaint()
                       : Words::tr("“%1” has no meaning here; leave it out").arg(line.inputs.first());
    }
    if (line.setting.isEmpty()) {
        return Words::tr(
            "name the watermark setting with --setting; --list-settings lists those that are saved");
    }
    if (line.inputs.isEmpty()) return Words::tr("name the photos or folders to watermark");
    if (line.output.isEmpty() && line.optionsFile.isEmpty())
        return Words::tr("name the output folder with --output");
    return line.watch ? watchContradiction(line) : Complaint();
}

ProgramManual makeManual() {
    ProgramManual manual{
        .program = "zelto-batch",
        .summary = QT_TRANSLATE_NOOP("Words", "stamps the watermarks of a saved setting onto photos"),
        .arguments = "PHOTO_OR_FOLDER...",
        .examples = {{"zelto-batch --setting Holiday --output out photos",
                      QT_TRANSLATE_NOOP("Words", "the photos of a folder, with the saved setting “Holiday”")},
                     {"zelto-batch -s logo.zcs -o web -f jpg --longest-side 1600 --keep-aspect --rename "
                      "'[O]_web' *.tif",
                      QT_TRANSLATE_NOOP("Words", "smaller JPEG copies under new names, with a setting file")},
                     {"zelto-batch -s Holiday -o out -r --keep-structure --dry-run ~/Pictures",
                      QT_TRANSLATE_NOOP(
                          "Words", "what a whole tree of folders would become, without writing anything")},
                     {"zelto-batch -s Proof -o out -f pdf --combine-pdf photos",
                      QT_TRANSLATE_NOOP("Words", "one PDF, a page a photo")},
                     {"zelto-batch -s Holiday -o out --watch inbox",
                      QT_TRANSLATE_NOOP("Words",
                                        "every photo that is put into the folder “inbox”, until Ctrl+C")},
                     {"zelto-batch -s Holiday -o /shared/out --shard 2/8 --json /shared/photos",
                      QT_TRANSLATE_NOOP(
                          "Words", "the third of eight parts of one batch, each on a machine of its own")}},
        .groups = {},
        .sections =
            {{QT_TRANSLATE_NOOP("Words", "Exit status"),
              QT_TRANSLATE_NOOP(
                  "Words",
                  "0: all photos were written; warnings do not change it.\n"
                  "1: some photos failed, or repeated failures stopped the run; with --doctor: something is "
                  "missing.\n"
                  "2: the command line or a named file cannot be used, and nothing was written.\n"
                  "130: interrupted. The photo in hand is finished first, and a second interrupt ends the "
                  "program "
                  "at once. This is how --watch ends, too. No file is ever left half-written.")},
             {QT_TRANSLATE_NOOP("Words", "Environment"),
              QT_TRANSLATE_NOOP(
                  "Words",
                  "NO_COLOR, TERM: no colors where the first is set, and neither colors nor a progress bar "
                  "where "
                  "the second is “dumb” or missing, or where standard error is no terminal.\n"
                  "ZELTO_SHARD, SLURM_ARRAY_TASK_ID and its kin, JOB_COMPLETION_INDEX: what --shard auto "
                  "reads.\n"
                  "XDG_DATA_HOME: where settings are kept, instead of ~/.local/share.\n"
                  "TMPDIR: where temporary files go, instead of /tmp.\n"
                  "ZELTO_EXIFTOOL: another exiftool program than the one that is found.")},
             {QT_TRANSLATE_NOOP("Words", "Files"),
              QT_TRANSLATE_NOOP("Words",
                                "~/.local/share/Zelto/Settings/*.zcs: the saved settings, a file each.\n"
                                "~/.local/share/Zelto/Copyright.xml: your copyright data.\n"
                                "A run changes none of them.")}},
        .seeAlso = "zelto"};
    for (const BatchOptionGroup& group : batchOptions()) {
        OptionGroup& told = manual.groups.emplace_back(OptionGroup{group.title, {}});
        for (const BatchOption& option : group.options) told.options.push_back(option.text);
    }
    return manual;
}

Complaint apply(CommandLine& line, const GivenOption& given) {
    for (const BatchOptionGroup& group : batchOptions()) {
        for (const BatchOption& option : group.options) {
            if (given.name == QLatin1String(option.text.name))
                return option.apply(line, option.text, given.value);
        }
    }
    return {};
}

}  // namespace

const ProgramManual& batchManual() {
    static const ProgramManual manual = makeManual();
    return manual;
}

Result<CommandLine> parseCommandLine(const QStringList& arguments) {
    const Result<GivenArguments> given = readArguments(batchManual(), arguments);
    if (!given) return tl::unexpected(given.error());
    CommandLine line;
    line.inputs = given->others;
    for (const GivenOption& option : given->options) {
        const Complaint complaint = apply(line, option);
        if (!complaint.isNull()) return fail(ErrorCode::InvalidValue, complaint);
    }
    const Complaint complaint = contradiction(line);
    if (!complaint.isNull()) return fail(ErrorCode::InvalidValue, complaint);
    return line;
}

bool asksForJson(const QStringList& arguments) {
    return arguments.contains(QStringLiteral("--json"));
}

QString versionText() {
    const QStringList libraries = pictureLibraries();
    const QString with = libraries.isEmpty() ? Words::tr("Without libraries for newer formats")
                                             : Words::tr("With %1").arg(libraries.join(QStringLiteral(", ")));
    return QStringLiteral("zelto-batch " ZELTO_VERSION "\n") + with + QLatin1Char('\n');
}

}  // namespace zelto
