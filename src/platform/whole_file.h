// SPDX-License-Identifier: GPL-3.0-or-later
// The one way files are written: beside the target, flushed, then renamed over it. A full disk, a crash or a kill
// leaves the old file or none, never part of a new one. Where the file system allows it the new file has no name
// until it is complete; elsewhere, and for the moment of a replacement, it has a hidden one, which
// removeAbandonedFiles() clears after a kill. Any thread, one object per thread at a time.
//
//     Result<WholeFile> file = WholeFile::startIn(folder);
//     if (file && writeAll(file->device(), bytes)) file->commit(folder + "/name");
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

class QFile;
class QIODevice;

namespace zelto {

// Replaces the file at `path`; where a link stands there, the file it leads to, as it is for every program that does not
// rename. Error: ErrorCode::CannotWrite with the system's reason.
Result<void> writeWholeFile(const QString& path, const QByteArray& bytes);

// Who may read and write a new file: whoever could the one it replaces, or what the user's umask says; or its owner
// only.
enum class FileAccess { AsBefore, OwnerOnly };

// The same, but a link at `path` is replaced itself and what it leads to stays as it is.
Result<void> replaceFile(const QString& path, const QByteArray& bytes,
                         FileAccess access = FileAccess::AsBefore);

// Gives the file or link at `path` another name: `path` with "~", "~1", "~2" ... at its end, the first that is free.
// Does nothing where there is none. Error: ErrorCode::CannotWrite; it then still stands at `path`.
Result<void> keepUnderOtherName(const QString& path);

// Writes all of `bytes`, or leaves the reason in the device's errorString(). (A device on a disk that fills up may first
// write a part, and that without a word.)
bool writeAll(QIODevice& device, QByteArrayView bytes);

// The whole content of a file. Error: ErrorCode::NotFound where it cannot be read, or not to the end.
Result<QByteArray> readWholeFile(const QString& path);

// Removes the hidden files of programs that were killed while they wrote into `folder`.
void removeAbandonedFiles(const QString& folder);

// A file that is written bit by bit and gets its name only when it is complete; without a commit it leaves nothing.
class WholeFile {
  public:
    // Starts a file in `folder`, which must exist. Error: ErrorCode::CannotWrite with the system's reason.
    static Result<WholeFile> startIn(const QString& folder);

    WholeFile(WholeFile&&) noexcept;
    WholeFile& operator=(WholeFile&&) noexcept;
    ~WholeFile();

    // Where the bytes go, unbuffered. Write with writeAll() and abandon the file after a write that failed.
    QIODevice& device();

    // Flushes and gives the file the name `path` (in the folder it was started in), replacing what had it, also where
    // that is a link. Ends the file, whether it succeeds or not.
    Result<void> commit(const QString& path, FileAccess access = FileAccess::AsBefore);

  private:
    WholeFile(QByteArray folder, QByteArray hiddenPath, std::unique_ptr<QFile> file);

    QByteArray folder_;
    QByteArray hiddenPath_;  // empty while the file has no name
    std::unique_ptr<QFile> file_;
};

}  // namespace zelto
