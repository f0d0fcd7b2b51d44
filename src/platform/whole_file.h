// SPDX-License-Identifier: GPL-3.0-or-later
// The one way files are written: beside the target, flushed, then renamed over it. A full disk, a crash or a kill
// leaves the old file or none, never part of a new one.
#pragma once

#include <QByteArray>
#include <QString>

#include "platform/result.h"

namespace zelto {

// Replaces the file at `path`. Error: ErrorCode::CannotWrite with the system's reason. Any thread.
Result<void> writeWholeFile(const QString& path, const QByteArray& bytes);

}  // namespace zelto
