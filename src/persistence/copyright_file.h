// SPDX-License-Identifier: GPL-3.0-or-later
// "Copyright.xml", the copyright and creator texts kept between runs. Any thread.
#pragma once

#include "platform/result.h"
#include "records/copyright_metadata.h"

#include <QString>

namespace zelto {

inline constexpr QLatin1String CopyrightFileName("Copyright.xml");

// Where the user's own file lies; its folder is made where it is missing.
Result<QString> copyrightFilePath();

Result<void> SaveCopyRightMetadata(const CopyRightMetaData& metadata, const QString& path);

// Fills `metadata` from the file at `path`; leaves it as it is where there is no such file. Error:
// ErrorCode::InvalidFile, with `metadata` untouched. A file written with Enabled off reads back switched on:
// only the text "False" switches off.
Result<void> LoadMetadata(CopyRightMetaData& metadata, const QString& path);

}  // namespace zelto
