// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_reference.h"

#include <QFileInfo>

namespace zelto {

QByteArray fileReference(const QString& path) {
    return QFileInfo(path).absoluteFilePath().toUtf8();
}

std::optional<QString> resolveFileReference(const QByteArray& reference) {
    const QString path = QString::fromUtf8(reference);
    const QFileInfo file(path);
    if (!file.isAbsolute() || !file.exists()) return std::nullopt;
    return path;
}

}  // namespace zelto
