// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_times.h"

#include <QFileInfo>

namespace zelto {

FileTimes readFileTimes(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists()) return {};
    const QDateTime birth = file.birthTime();
    return {birth.isValid() ? birth : file.metadataChangeTime(), file.lastModified()};
}

}  // namespace zelto
