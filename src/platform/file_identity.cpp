// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_identity.h"

#include "platform/owned_entry.h"
#include "platform/path_parts.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <mutex>
#include <optional>

namespace zelto {
namespace {

std::optional<struct stat> statusOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
    return status;
}

QByteArray key(const struct stat& status) {
    return QByteArray::number(static_cast<qulonglong>(status.st_dev)) + ':' +
           QByteArray::number(static_cast<qulonglong>(status.st_ino));
}

// Every name that any file system takes for the same, and a few more: to be too careful costs a question or a wait,
// not a photo.
QString folded(const QString& name) {
    return name.normalized(QString::NormalizationForm_KD)
        .toCaseFolded()
        .normalized(QString::NormalizationForm_KC);
}

QByteArray inOtherCase(QByteArray name) {
    for (char& c : name) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        } else if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return name;
}

// Whether `name`, which the folder does not list, is found in it all the same. Inodes are no help: some file systems
// give each spelling a number of its own.
bool isFound(const QByteArray& folder, const QByteArray& name) {
    struct stat status {};
    return ::lstat((folder + '/' + name).constData(), &status) == 0;
}

// By its own name in the folder above; nothing where that is of another file system or the name has no letters. Some
// file systems fold the names of single folders, which then say so.
std::optional<bool> ownNameIgnoresCase(const QByteArray& folder) {
    const int file = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (file < 0) return std::nullopt;
    int flags = 0;
    const bool saysSo = ::ioctl(file, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_CASEFOLD_FL) != 0;
    ::close(file);
    if (saysSo) return true;
    const auto own = statusOf(QFile::decodeName(folder));
    const QString above = withoutLastPathComponent(QFile::decodeName(folder));
    const auto parent = statusOf(above);
    const QByteArray name = QFile::encodeName(lastPathComponent(QFile::decodeName(folder)));
    const QByteArray other = inOtherCase(name);
    if (!own || !parent || own->st_dev != parent->st_dev || other == name) return std::nullopt;
    const QByteArray aboveName = QFile::encodeName(above);
    if (namesIn(aboveName).contains(other)) return std::nullopt;
    return isFound(aboveName, other);
}

// By a file created for a moment. In a folder that takes none no output can take another's place either.
bool createdNameIgnoresCase(const QByteArray& folder) {
    QByteArray path = folder + "/.zelto-case-XXXXXX";
    const int file = ::mkostemp(path.data(), O_CLOEXEC);
    if (file < 0) return false;
    const bool ignores = isFound(folder, inOtherCase(path.sliced(folder.size() + 1)));
    ::close(file);
    ::unlink(path.constData());
    return ignores;
}

bool looksUpInAnyCase(const QByteArray& folder) {
    const QList<QByteArray> names = namesIn(folder);
    for (const QByteArray& name : names) {
        const QByteArray other = inOtherCase(name);
        if (other != name && !names.contains(other)) return isFound(folder, other);
    }
    const std::optional<bool> told = ownNameIgnoresCase(folder);
    return told ? *told : createdNameIgnoresCase(folder);
}

bool ignoresCase(const QString& folder, const QByteArray& folderKey) {
    static std::mutex mutex;
    static QHash<QByteArray, bool> known;
    const std::lock_guard lock(mutex);
    const auto answer = known.constFind(folderKey);
    if (answer != known.constEnd()) return *answer;
    return *known.insert(folderKey, looksUpInAnyCase(QFile::encodeName(folder)));
}

}  // namespace

FileIdentity fileIdentity(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QString folder = withoutLastPathComponent(absolute);
    QString name = lastPathComponent(absolute);
    std::optional<struct stat> parent = statusOf(folder);
    while (!parent && folder.size() > 1) {
        name = joinedPath(lastPathComponent(folder), name);
        folder = withoutLastPathComponent(folder);
        parent = statusOf(folder);
    }
    const QByteArray folderKey = parent ? key(*parent) : QByteArray();
    if (parent && ignoresCase(folder, folderKey)) name = folded(name);
    const std::optional<struct stat> file = statusOf(absolute);
    return {folderKey + '/' + QFile::encodeName(name), file ? key(*file) : QByteArray()};
}

bool isSameFile(const FileIdentity& one, const FileIdentity& other) {
    return one.place == other.place || (!one.file.isEmpty() && one.file == other.file);
}

void FileSet::insert(const FileIdentity& identity) {
    keys_.insert(identity.place);
    if (!identity.file.isEmpty()) keys_.insert(identity.file);
}

bool FileSet::contains(const FileIdentity& identity) const {
    return keys_.contains(identity.place) || (!identity.file.isEmpty() && keys_.contains(identity.file));
}

}  // namespace zelto
