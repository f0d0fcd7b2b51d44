// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/private_folder.h"

#include "platform/owned_entry.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace zelto {
namespace {

constexpr const char* Prefix = "zelto-private-";

int openFolder(const QByteArray& path) {
    return ::open(path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

// Removes the files of the open folder and the folder. Nothing in it is followed, whatever somebody has put there.
void removeFolder(int folder, const QByteArray& path) {
    for (const QByteArray& name : namesIn(path)) ::unlinkat(folder, name.constData(), 0);
    ::rmdir(path.constData());
}

void removeAbandonedFolders(const QByteArray& parent) {
    for (const QByteArray& name : namesIn(parent)) {
        if (!name.startsWith(Prefix)) continue;
        const QByteArray path = parent + '/' + name;
        const int folder = openFolder(path);
        if (folder < 0) continue;
        if (isAbandoned(folder, name)) removeFolder(folder, path);
        ::close(folder);
    }
}

}  // namespace

Result<PrivateFolder> PrivateFolder::make() {
    const QByteArray parent = QFile::encodeName(QDir::tempPath());
    removeAbandonedFolders(parent);
    int error = 0;
    // Another program may take the folder for an abandoned one until it is locked.
    for (int attempt = 0; attempt < 3; ++attempt) {
        QByteArray path = parent + '/' + Prefix + machineMark() + "-XXXXXX";
        if (::mkdtemp(path.data()) == nullptr) {
            error = errno;
            continue;
        }
        const int folder = openFolder(path);
        error = errno;
        if (folder >= 0 && lockAsOwner(folder, path)) return PrivateFolder(QFile::decodeName(path), folder);
        if (folder >= 0) ::close(folder);
        ::rmdir(path.constData());
    }
    return fail(ErrorCode::CannotWrite,
                Words::tr("No folder can be made in “%1”: %2").arg(QDir::tempPath(), qt_error_string(error)),
                QDir::tempPath());
}

PrivateFolder::PrivateFolder(PrivateFolder&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}

PrivateFolder& PrivateFolder::operator=(PrivateFolder&& other) noexcept {
    std::swap(path_, other.path_);
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

PrivateFolder::~PrivateFolder() {
    if (descriptor_ < 0) return;
    removeFolder(descriptor_, QFile::encodeName(path_));
    ::close(descriptor_);
}

QString PrivateFolder::filePath(const QString& name) const {
    return joinedPath(path_, name);
}

}  // namespace zelto
