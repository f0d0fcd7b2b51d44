// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_identity.h"

#include "platform/path_parts.h"

#include <QFileInfo>

namespace zelto {

QString fileIdentity(const QString& path) {
    const QFileInfo info(path);
    if (const QString identity = info.canonicalFilePath(); !identity.isEmpty()) return identity;
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return folder.isEmpty() ? path : joinedPath(folder, info.fileName());
}

}  // namespace zelto
