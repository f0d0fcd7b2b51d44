// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_plan.h"

#include "batch/image_list.h"
#include "batch/output_name.h"
#include "cli/saved_settings.h"
#include "cli/watch.h"
#include "persistence/copyright_file.h"
#include "persistence/setting_file.h"
#include "platform/dates.h"
#include "platform/file_reference.h"
#include "platform/words.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

QString absolutePath(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

Result<std::shared_ptr<const WatermarkStack>> loadStack(const QString& setting) {
    return settingPath(setting).and_then(LoadWatermarkSetting).map([](WatermarkStack stack) {
        return std::shared_ptr<const WatermarkStack>(std::make_shared<WatermarkStack>(std::move(stack)));
    });
}

Result<OutputSettings> startingSettings(const CommandLine& line) {
    OutputSettings settings = startingOutputSettings();
    if (line.optionsFile.isEmpty()) {
        // What the dialog ticks for its user has options of its own here.
        settings.options.AspectRatio = settings.options.DontEnlargeSmallImage = false;
        return settings;
    }
    if (!QFileInfo(line.optionsFile).isFile()) {
        return fail(ErrorCode::NotFound, Words::tr("there is no options file “%1”").arg(line.optionsFile),
                    line.optionsFile);
    }
    return loadOutputSettings(line.optionsFile, settings);
}

void override(OutputOptions& options, const CommandLine& line) {
    if (!line.output.isEmpty()) {
        options.OutputPath = absolutePath(line.output);
        options.OutputFolderData = fileReference(options.OutputPath);
    }
    if (line.format) options.OutputFormat = *line.format;
    if (line.quality) options.JPEGQuality = *line.quality;
    if (line.metadata) options.ExifDataToInclude = *line.metadata;
    if (line.rename) {
        options.Rename = true;
        options.RenameFormat = *line.rename;
    }
    if (line.resize) {
        options.ResizeImage = true;
        options.ResizeType = line.resize->type;
        options.ResizeWidth = options.LongestsideSize = line.resize->width;
        options.ResizeHeight = line.resize->height;
    }
    options.AspectRatio = options.AspectRatio || line.keepAspect;
    options.DontEnlargeSmallImage = options.DontEnlargeSmallImage || line.noEnlarge;
    options.JpegLossless = options.JpegLossless || line.jpegLossless;
    options.CombineToSinglePDF = options.CombineToSinglePDF || line.combinePdf;
    options.KeepDirectoryStructure = options.KeepDirectoryStructure || line.keepStructure;
}

Result<OutputOptions> checkedOptions(const CommandLine& line) {
    Result<OutputOptions> options =
        outputSettings(line).map([](const OutputSettings& settings) { return settings.options; });
    if (!options) return options;
    if (options->OutputPath.isEmpty()) {
        return fail(ErrorCode::InvalidValue,
                    Words::tr("“%1” names no output folder; name one with --output").arg(line.optionsFile));
    }
    options->OutputPath = absolutePath(options->OutputPath);
    if (line.combinePdf && !combinesIntoOnePdf(*options)) {
        return fail(ErrorCode::InvalidValue, Words::tr("--combine-pdf needs --format pdf"));
    }
    if (combinesIntoOnePdf(*options) && !line.shard.isWhole()) {
        return fail(ErrorCode::InvalidValue,
                    Words::tr("a combined PDF is one document, which --shard cannot divide; leave one of "
                              "them out"));
    }
    return options;
}

// The copyright data of the file that was named, or of the user's own where the setting asks for it.
Result<std::optional<CopyRightMetaData>> copyrightData(const CommandLine& line, const WatermarkStack& stack) {
    const bool named = !line.copyrightFile.isEmpty();
    if (named && !QFileInfo(line.copyrightFile).isFile()) {
        return fail(ErrorCode::NotFound, Words::tr("there is no copyright file “%1”").arg(line.copyrightFile),
                    line.copyrightFile);
    }
    if (!named && !stack.Metadata) return std::nullopt;
    const Result<QString> path = named ? line.copyrightFile : copyrightFilePath();
    if (!path) return std::nullopt;
    return copyrightToUse(*path).map([](const CopyRightMetaData& read) { return std::optional(read); });
}

// Adds what went wrong while folders were scanned to `problems`.
Result<ImageList> photoList(const CommandLine& line, std::vector<ScanProblem>& problems) {
    ImageList list;
    for (const QString& input : line.inputs) {
        const QString path = absolutePath(input);
        const QFileInfo info(path);
        if (!info.exists()) {
            return fail(ErrorCode::NotFound, Words::tr("there is no photo or folder “%1”").arg(input), path);
        }
        if (!info.isDir()) {
            list.AddImage(path);
            continue;
        }
        const auto scan = scanFolder(path, line.recursive, GetExtensionList(line.extensions));
        if (!scan) return tl::unexpected(scan.error());
        for (const QString& photo : scan->photos) list.AddImage(photo);
        problems.insert(problems.end(), scan->problems.begin(), scan->problems.end());
    }
    if (list.images().empty()) {
        return fail(
            ErrorCode::NotFound,
            Words::tr("no photo was found; see --extensions and --recursive for what a folder scan takes, "
                      "and name GIF files themselves"));
    }
    return list;
}

Result<void> refuseToReplaceOriginals(const BatchRequest& request) {
    const QStringList& replaced = request.plan->replacedPhotos;
    if (replaced.isEmpty()) return {};
    return fail(
        ErrorCode::InvalidValue,
        Words::tr("%Ln of the photos would be replaced by their outputs, the first being “%1”; choose "
                  "another --output or a --rename, or allow it with --overwrite-originals",
                  nullptr, static_cast<int>(replaced.size()))
            .arg(replaced.first()),
        replaced.first());
}

}  // namespace

Result<OutputSettings> outputSettings(const CommandLine& line) {
    return startingSettings(line).map([&](OutputSettings settings) {
        override(settings.options, line);
        return settings;
    });
}

Result<BatchPlan> planBatch(const CommandLine& line) {
    BatchPlan plan;
    auto stack = loadStack(line.setting);
    if (!stack) return tl::unexpected(std::move(stack.error()));
    plan.stack = std::move(*stack);
    auto options = checkedOptions(line);
    if (!options) return tl::unexpected(std::move(options.error()));
    plan.request.options = std::move(*options);
    auto copyright = copyrightData(line, *plan.stack);
    if (!copyright) return tl::unexpected(std::move(copyright.error()));
    plan.copyright = std::move(*copyright);
    plan.request.names = {line.sameName.value_or(NameRule::Replace),
                          line.existing.value_or(NameRule::Replace)};
    plan.request.locale = userDateLocale();
    plan.request.strict = line.strict;
    if (line.jobs) plan.request.limits.jobs = *line.jobs;
    if (line.watch) {
        // Its photos arrive later.
        return checkWatch(line, plan.request.options).map([&] { return std::move(plan); });
    }
    const Result<ImageList> list = photoList(line, plan.problems);
    if (!list) return tl::unexpected(list.error());

    plan.request.folders = list->InputOutputDictionary();
    for (const Image& image : list->images()) {
        const auto row = static_cast<qint64>(plan.request.photos.size());
        const bool isOurs = line.shard.contains(row);
        plan.request.photos.push_back({image.ImagePath, isOurs, !isOurs});
    }
    plan.request.plan =
        std::make_shared<const OutputPlan>(planOutputs(plan.request, QDateTime::currentDateTime()));
    plan.request.limits.jobs = static_cast<int>(std::min<std::size_t>(
        static_cast<std::size_t>(plan.request.limits.jobs), plan.request.photos.size()));
    if (!line.overwriteOriginals) {
        const Result<void> harmless = refuseToReplaceOriginals(plan.request);
        if (!harmless) return tl::unexpected(harmless.error());
    }
    return plan;
}

Result<void> makeOutputFolder(const BatchPlan& plan) {
    const QString& folder = plan.request.options.OutputPath;
    if (QDir().mkpath(folder)) return {};
    return fail(ErrorCode::CannotWrite, Words::tr("the output folder “%1” cannot be made").arg(folder),
                folder);
}

}  // namespace zelto
