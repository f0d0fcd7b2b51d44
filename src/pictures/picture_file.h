// SPDX-License-Identifier: GPL-3.0-or-later
// Opening a file that is to be a picture.
#pragma once

#include "platform/result.h"

#include <QFile>

namespace zelto {

// Opens the regular file that `file` names; nothing else is read, since a pipe or a device may never end. Error:
// ErrorCode::NotFound; ErrorCode::Damaged with DamagedPictureMessage.
Result<void> openPictureFile(QFile& file);

}  // namespace zelto
