// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/exiftool.h"

#include <QProcess>

namespace zelto {

bool writeTags(const QStringList& tags, const QStringList& paths) {
    QProcess exiftool;
    exiftool.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList options = {QStringLiteral("-q"), QStringLiteral("-m"),
                                 QStringLiteral("-overwrite_original")};
    exiftool.start(QStringLiteral("exiftool"), options + tags + paths);
    return exiftool.waitForFinished() && exiftool.exitStatus() == QProcess::NormalExit &&
           exiftool.exitCode() == 0;
}

}  // namespace zelto
