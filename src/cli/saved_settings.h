// SPDX-License-Identifier: GPL-3.0-or-later
// The user's saved settings, as a command line names them. Looks at the disk and changes nothing there.
#pragma once

#include "platform/result.h"

#include <QString>
#include <QStringList>

namespace zelto {

struct SavedSettings {
    QString folder;  // with "/" at its end
    QStringList names;
};

// None where the folder does not exist yet. Error: ErrorCode::NotFound where it cannot be read.
Result<SavedSettings> savedSettings();

// The path of the setting file that is meant by a saved setting's name or a path. Error: ErrorCode::NotFound, with the
// name that was probably meant.
Result<QString> settingPath(const QString& nameOrFile);

}  // namespace zelto
