// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/whole_file.h"

#include "platform/owned_entry.h"
#include "platform/words.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

namespace zelto {
namespace {

constexpr const char* HiddenPrefix = ".zelto-";
constexpr const char* HiddenSuffix = ".part";
// At a file that no other program takes for an abandoned one while it is being made.
constexpr int Attempts = 3;

QString systemReason(int code) {
    return QString::fromStdString(std::error_code(code, std::generic_category()).message());
}

tl::unexpected<Error> cannotWrite(const QString& path, const QString& reason) {
    return fail(ErrorCode::CannotWrite, Words::tr("“%1” cannot be written: %2").arg(path, reason), path);
}

// What a new file's mode is stripped of. Asking umask() itself would change it for the other threads meanwhile.
mode_t fileCreationMask() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QByteArray prefix("Umask:");
        for (QByteArray line = status.readLine(); !line.isEmpty(); line = status.readLine()) {
            if (line.startsWith(prefix)) {
                return static_cast<mode_t>(line.mid(prefix.size()).trimmed().toUInt(nullptr, 8));
            }
        }
    }
    return S_IWGRP | S_IWOTH;
}

QString withoutLinks(const QString& path) {
    const QFileInfo info(path);
    if (!info.isSymLink()) return path;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

QByteArray hiddenPathIn(const QByteArray& folder) {
    return folder + '/' + HiddenPrefix + machineMark() + '-' +
           QByteArray::number(QRandomGenerator::system()->generate64(), 16) + HiddenSuffix;
}

int createHidden(const QByteArray& folder, QByteArray& path) {
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        path = hiddenPathIn(folder);
        const int file = ::open(path.constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
        if (file < 0 || lockAsOwner(file, path)) return file;
        ::close(file);
    }
    errno = EEXIST;
    return -1;
}

// What stands in the way of a rename to `path`, which takes the place of files and links only: it would replace a device
// too, and a file that its owner had protected against writing. `existing` is what stands there.
int obstacle(const QByteArray& path, const struct stat& existing) {
    if (S_ISLNK(existing.st_mode)) return 0;
    if (S_ISDIR(existing.st_mode)) return EISDIR;
    if (!S_ISREG(existing.st_mode)) return EINVAL;
    return ::access(path.constData(), W_OK) == 0 ? 0 : errno;
}

// Gives a file that has no name one that is free. Returns 0 or the system's code.
int linkTo(int file, const QByteArray& path) {
    const QByteArray open = "/proc/self/fd/" + QByteArray::number(file);
    return ::linkat(AT_FDCWD, open.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0 ? 0
                                                                                                    : errno;
}

Result<void> write(const QString& path, const QString& target, const QByteArray& bytes, FileAccess access) {
    Result<WholeFile> file = WholeFile::startIn(QFileInfo(target).path());
    if (!file) return cannotWrite(path, file.error().message);
    if (!writeAll(file->device(), bytes)) return cannotWrite(path, file->device().errorString());
    return file->commit(target, access);
}

}  // namespace

Result<void> writeWholeFile(const QString& path, const QByteArray& bytes) {
    return write(path, withoutLinks(path), bytes, FileAccess::AsBefore);
}

Result<void> replaceFile(const QString& path, const QByteArray& bytes, FileAccess access) {
    return write(path, path, bytes, access);
}

Result<void> keepUnderOtherName(const QString& path) {
    const QByteArray present = QFile::encodeName(path);
    constexpr int MostNames = 10'000;
    for (int number = 0; number < MostNames; ++number) {
        const QByteArray other = present + '~' + (number == 0 ? QByteArray() : QByteArray::number(number));
        // Unlike a rename it takes no name that another file has.
        if (::renameat2(AT_FDCWD, present.constData(), AT_FDCWD, other.constData(), RENAME_NOREPLACE) == 0)
            return {};
        if (errno == ENOENT) return {};
        if (errno == EINVAL) {  // a file system that cannot do that
            struct stat status {};
            if (::lstat(other.constData(), &status) == 0) continue;
            if (::rename(present.constData(), other.constData()) == 0) return {};
        }
        if (errno != EEXIST) return cannotWrite(path, systemReason(errno));
    }
    return cannotWrite(path, systemReason(EEXIST));
}

bool writeAll(QIODevice& device, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written <= 0) return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

Result<QByteArray> readWholeFile(const QString& path) {
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) bytes = file.readAll();
    if (!file.isOpen() || file.error() != QFileDevice::NoError || bytes.size() != file.size()) {
        return fail(ErrorCode::NotFound, Words::tr("“%1” cannot be read: %2").arg(path, file.errorString()),
                    path);
    }
    return bytes;
}

void removeAbandonedFiles(const QString& folder) {
    const QByteArray encoded = QFile::encodeName(folder);
    for (const QByteArray& name : namesIn(encoded)) {
        if (!name.startsWith(HiddenPrefix) || !name.endsWith(HiddenSuffix)) continue;
        const QByteArray path = encoded + '/' + name;
        const int file = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0) continue;
        struct stat status {};
        const bool isFile = ::fstat(file, &status) == 0 && S_ISREG(status.st_mode);
        if (isFile && isAbandoned(file, name)) ::unlink(path.constData());
        ::close(file);
    }
}

WholeFile::WholeFile(QByteArray folder, QByteArray hiddenPath, std::unique_ptr<QFile> file)
    : folder_(std::move(folder)), hiddenPath_(std::move(hiddenPath)), file_(std::move(file)) {}
WholeFile::WholeFile(WholeFile&&) noexcept = default;
WholeFile& WholeFile::operator=(WholeFile&&) noexcept = default;

WholeFile::~WholeFile() {
    // The name goes while the lock is still held.
    if (file_ && !hiddenPath_.isEmpty()) ::unlink(hiddenPath_.constData());
}

Result<WholeFile> WholeFile::startIn(const QString& folder) {
    const QByteArray encoded = QFile::encodeName(folder);
    QByteArray hiddenPath;
    int descriptor = ::open(encoded.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor >= 0) {
        // From the moment it has a hidden name.
        if (!lockAsOwner(descriptor, encoded)) return cannotWrite(folder, systemReason(errno));
    } else {
        // Not every file system knows files without a name.
        descriptor = createHidden(encoded, hiddenPath);
        if (descriptor < 0) return cannotWrite(folder, systemReason(errno));
    }
    auto file = std::make_unique<QFile>();
    // Without Qt's buffer, which forgets the system's reason when it cannot be emptied.
    file->open(descriptor, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    return WholeFile(encoded, std::move(hiddenPath), std::move(file));
}

QIODevice& WholeFile::device() {
    return *file_;
}

Result<void> WholeFile::commit(const QString& path, FileAccess access) {
    WholeFile ending = std::move(*this);
    const int descriptor = ending.file_->handle();
    const QByteArray target = QFile::encodeName(path);
    struct stat existing {};
    const bool exists = ::lstat(target.constData(), &existing) == 0;
    if (const int error = exists ? obstacle(target, existing) : 0; error != 0)
        return cannotWrite(path, systemReason(error));

    // A failing fchmod (file systems without permissions) or fsync (those without a disk) costs nothing that the
    // file's reader would miss; lost data shows in fsync's EIO and ENOSPC.
    if (access == FileAccess::AsBefore) {
        const bool isReplaced = exists && S_ISREG(existing.st_mode);
        ::fchmod(descriptor, isReplaced ? existing.st_mode & 0777U : 0666U & ~fileCreationMask());
    }
    if (::fsync(descriptor) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT))
        return cannotWrite(path, systemReason(errno));

    QByteArray hidden = std::exchange(ending.hiddenPath_, QByteArray());
    if (hidden.isEmpty()) {
        const int linked = exists ? EEXIST : linkTo(descriptor, target);
        if (linked == 0) return {};
        if (linked != EEXIST) return cannotWrite(path, systemReason(linked));
        hidden = hiddenPathIn(ending.folder_);
        if (const int error = linkTo(descriptor, hidden); error != 0)
            return cannotWrite(path, systemReason(error));
    }
    if (::rename(hidden.constData(), target.constData()) == 0) return {};
    const int error = errno;
    ::unlink(hidden.constData());
    return cannotWrite(path, systemReason(error));
}

}  // namespace zelto
