// SPDX-License-Identifier: GPL-3.0-or-later
// When a file was made and last changed, as its file system tells.
#pragma once

#include <QDateTime>
#include <QString>

namespace zelto {

// Local times; invalid where there is no such file.
struct FileTimes {
    QDateTime
        created;  // of the file on this disk; where the file system keeps no birth time, its change date
    QDateTime modified;  // of its content
};

FileTimes readFileTimes(const QString& path);

}  // namespace zelto
