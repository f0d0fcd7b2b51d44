// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/common/sample_photo.h"

#include "app/common/window_resources.h"
#include "platform/whole_file.h"
#include "platform/words.h"

#include <QFile>
#include <QTemporaryDir>

namespace zelto {
namespace {

QString writtenTo(const QTemporaryDir& folder) {
    QFile built(windowResource(QStringLiteral("sample-photo.jpg")));
    if (!folder.isValid() || !built.open(QFile::ReadOnly)) return {};
    // Its name is what macros print of it.
    const QString path = folder.filePath(Words::tr("Sample photo") + QStringLiteral(".jpg"));
    return writeWholeFile(path, built.readAll()) ? path : QString();
}

}  // namespace

QString samplePhotoPath() {
    static const QTemporaryDir folder;
    static const QString path = writtenTo(folder);
    return path;
}

}  // namespace zelto
