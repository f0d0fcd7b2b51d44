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

// Fills `metadata` from the file at `path` and leaves fields alone that the file does not have, all of them where there
// is no such file. Error: ErrorCode::InvalidFile, with `metadata` untouched. A file written with Enabled off reads back
// switched on: only the text "False" switches off.
Result<void> LoadMetadata(CopyRightMetaData& metadata, const QString& path);

// The record that a run with copyright data works with: that of the file at `path`, switched on unless the file says
// otherwise, and without texts where there is no such file. A record that is switched off is not used. Error:
// ErrorCode::InvalidFile.
Result<CopyRightMetaData> copyrightToUse(const QString& path);

}  // namespace zelto
