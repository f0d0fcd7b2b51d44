// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program keeps its own files and finds what ships beside it. Any thread.
#pragma once

#include "platform/result.h"

#include <QStandardPaths>
#include <QString>

namespace zelto {

// Below the user's application-support folder: everything the program keeps, and the setting files in it.
inline constexpr QLatin1String ZeltoFolder("/Zelto/");
inline constexpr QLatin1String SettingsFolder("/Zelto/Settings/");

// The folder `relativePath` below the first folder of that kind, made with all folders above it where it is
// missing; the path ends in "/". Error: ErrorCode::CannotWrite.
Result<QString> findOrCreateDirectory(QStandardPaths::StandardLocation kind, const QString& relativePath);

// The same below the user's application-support folder.
Result<QString> applicationFolder(QLatin1String relativePath);
// Its path alone, for those who only look: nothing is made.
QString applicationFolderPath(QLatin1String relativePath);

// The folder of what ships beside the programs, found from theirs ("../share/zelto", unless built otherwise), so that it
// is the right one in a build folder, when installed, and wherever an installed tree is moved. Without "/" at its end.
QString resourceFolder();

}  // namespace zelto
