// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/whole_file.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace zelto {
namespace {

tl::unexpected<Error> cannotWrite(const QString& path, const QString& reason) {
    return fail(ErrorCode::CannotWrite, QStringLiteral("“%1” cannot be written: %2").arg(path, reason), path);
}

QString systemReason(int code) {
    return QString::fromStdString(std::error_code(code, std::generic_category()).message());
}

// What a new file's mode is stripped of. Asking umask() itself would change it for the other threads
// meanwhile.
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

mode_t permissionsFor(const QByteArray& encodedPath) {
    struct stat existing {};
    if (::stat(encodedPath.constData(), &existing) == 0) return existing.st_mode & 0777U;
    return 0666U & ~fileCreationMask();
}

// Writing to a link writes to the file it leads to, as it does for every program that does not rename.
QString withoutLinks(const QString& path) {
    const QFileInfo info(path);
    if (!info.isSymLink()) return path;
    return info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
}

}  // namespace

Result<void> writeWholeFile(const QString& path, const QByteArray& bytes) {
    const QString target = withoutLinks(path);
    Result<WholeFile> file = WholeFile::startIn(QFileInfo(target).path());
    if (!file) return cannotWrite(path, file.error().message);
    if (!writeAll(file->device(), bytes)) return cannotWrite(path, file->device().errorString());
    return file->commit(target);
}

bool writeAll(QIODevice& device, QByteArrayView bytes) {
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written <= 0) return false;
        bytes = bytes.sliced(written);
    }
    return true;
}

WholeFile::WholeFile(std::unique_ptr<QTemporaryFile> file) : file_(std::move(file)) {}
WholeFile::WholeFile(WholeFile&&) noexcept = default;
WholeFile& WholeFile::operator=(WholeFile&&) noexcept = default;
WholeFile::~WholeFile() = default;

Result<WholeFile> WholeFile::startIn(const QString& folder) {
    // QTemporaryFile keeps the file nameless where the file system can (O_TMPFILE), so that even a kill
    // leaves nothing behind. The name of its own is short: one made from the target's could be longer than
    // names may be.
    auto file = std::make_unique<QTemporaryFile>(folder + QStringLiteral("/.zelto-XXXXXX"));
    // Without Qt's buffer, which forgets the system's reason when it cannot be emptied. The choice of the
    // mode is public in the base class only.
    QIODevice& device = *file;
    if (!device.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        return cannotWrite(folder, file->errorString());
    return WholeFile(std::move(file));
}

QIODevice& WholeFile::device() {
    return *file_;
}

Result<void> WholeFile::commit(const QString& path) {
    const std::unique_ptr<QTemporaryFile> file = std::move(file_);
    const QFileInfo existing(path);
    if (existing.isDir()) return cannotWrite(path, systemReason(EISDIR));
    // A rename would replace a device by a file, and a file by one that its owner had protected against
    // writing.
    if (existing.exists() && !existing.isFile()) return cannotWrite(path, systemReason(EINVAL));
    if (existing.exists() && !existing.isWritable()) return cannotWrite(path, systemReason(EACCES));

    const QByteArray target = QFile::encodeName(path);
    // A failing fchmod (file systems without permissions) or fsync (those without a disk) costs nothing that
    // the file's reader would miss; lost data shows in fsync's EIO and ENOSPC.
    ::fchmod(file->handle(), permissionsFor(target));
    if (::fsync(file->handle()) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT)) {
        return cannotWrite(path, systemReason(errno));
    }
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(file->fileName()).toStdString(), target.toStdString(), error);
    if (error) return cannotWrite(path, QString::fromStdString(error.message()));
    file->setAutoRemove(false);
    return {};
}

}  // namespace zelto
