// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/owned_entry.h"

#include <QCryptographicHash>
#include <QFile>

#include <dirent.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

namespace zelto {

QByteArray machineMark() {
    static const QByteArray mark = [] {
        constexpr qsizetype Letters = 8;
        QFile start(QStringLiteral("/proc/sys/kernel/random/boot_id"));
        const QByteArray identity = start.open(QIODevice::ReadOnly) ? start.readAll() : QByteArray();
        return QCryptographicHash::hash(identity, QCryptographicHash::Sha256).toHex().first(Letters);
    }();
    return mark;
}

bool lockAsOwner(int descriptor, const QByteArray& path) {
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return false;
    struct stat status {};
    return ::lstat(path.constData(), &status) == 0;
}

bool isAbandoned(int descriptor, const QByteArray& name) {
    constexpr std::time_t Day = 24 * 60 * 60;
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || status.st_uid != ::geteuid()) return false;
    const bool isOld = status.st_mtime < std::time(nullptr) - Day;
    if (!name.contains(machineMark()) && !isOld) return false;
    return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
}

QList<QByteArray> namesIn(const QByteArray& folder) {
    QList<QByteArray> names;
    DIR* const entries = ::opendir(folder.constData());
    if (entries == nullptr) return names;
    while (const dirent* entry = ::readdir(entries)) names.append(entry->d_name);
    ::closedir(entries);
    return names;
}

}  // namespace zelto
