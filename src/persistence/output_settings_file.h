// SPDX-License-Identifier: GPL-3.0-or-later
// "OutputSettings.xml", the user's default output options: what the dialog before a run starts from, and the runner
// with --options. It keeps the texts of the dialog's fields, so that both ways of resizing come back as they were
// typed. Any thread.
#pragma once

#include "platform/result.h"
#include "records/output_options.h"

#include <QString>

#include <optional>

namespace zelto {

inline constexpr QLatin1String OutputSettingsFileName("OutputSettings.xml");

// What the file holds: the options, and the size fields of both ways of resizing that have two. Those of the
// way `options.ResizeType` chooses are the same as the options' own: on writing, the options' count; read,
// both are set.
struct OutputSettings {
    OutputOptions options;
    std::int64_t percentageWidth = 100;
    std::int64_t percentageHeight = 100;
    std::int64_t absoluteWidth = 0;   // pixels; 0 for an empty field
    std::int64_t absoluteHeight = 0;  // written, but never read back
};

// What both programs start from where nothing is stored: same format, quality 90, 100 per cent, proportions kept and
// small photos not enlarged once resizing is switched on.
OutputSettings startingOutputSettings();

// The file's document, in UTF-8.
QByteArray writeOutputSettingsDocument(const OutputSettings& settings);

Result<void> saveOutputSettings(const OutputSettings& settings, const QString& path);

// The settings of the file at `path` laid over `initial`; `initial` itself when there is no such file. Error:
// ErrorCode::InvalidFile.
Result<OutputSettings> loadOutputSettings(const QString& path, OutputSettings initial);

}  // namespace zelto
