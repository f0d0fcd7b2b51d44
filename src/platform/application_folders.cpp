// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/application_folders.h"

#include "platform/words.h"

#include <QCoreApplication>
#include <QDir>

namespace zelto {

namespace {

QString directoryPath(QStandardPaths::StandardLocation kind, const QString& relativePath) {
    return QDir::cleanPath(QStandardPaths::writableLocation(kind) + u'/' + relativePath);
}

}  // namespace

Result<QString> findOrCreateDirectory(QStandardPaths::StandardLocation kind, const QString& relativePath) {
    const QString path = directoryPath(kind, relativePath);
    if (!QDir().mkpath(path)) {
        return fail(ErrorCode::CannotWrite, Words::tr("The folder “%1” cannot be made.").arg(path), path);
    }
    return path + u'/';
}

Result<QString> applicationFolder(QLatin1String relativePath) {
    return findOrCreateDirectory(QStandardPaths::GenericDataLocation, relativePath);
}

QString applicationFolderPath(QLatin1String relativePath) {
    return directoryPath(QStandardPaths::GenericDataLocation, relativePath) + u'/';
}

QString resourceFolder() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" ZELTO_RESOURCES));
}

}  // namespace zelto
