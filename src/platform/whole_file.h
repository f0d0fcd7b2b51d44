// SPDX-License-Identifier: GPL-3.0-or-later
// The one way files are written: beside the target, flushed, then renamed over it. A full disk, a crash or a
// kill leaves the old file or none, never part of a new one, and where the file system allows nothing
// half-written is ever seen under any name. What goes into the file is the caller's. Any thread, one object
// per thread at a time.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <memory>

class QIODevice;
class QTemporaryFile;

namespace zelto {

// Replaces the file at `path`. Error: ErrorCode::CannotWrite with the system's reason.
Result<void> writeWholeFile(const QString& path, const QByteArray& bytes);

// Writes all of `bytes`, or leaves the reason in the device's errorString(). (A device on a disk that fills
// up may first write a part, and that without a word.)
bool writeAll(QIODevice& device, QByteArrayView bytes);

// A file that is written bit by bit and gets its name only when it is complete; without a commit it leaves
// nothing.
class WholeFile {
  public:
    // Starts a file in `folder`, which must exist. Error: ErrorCode::CannotWrite with the system's reason.
    static Result<WholeFile> startIn(const QString& folder);

    WholeFile(WholeFile&&) noexcept;
    WholeFile& operator=(WholeFile&&) noexcept;
    ~WholeFile();

    // Where the bytes go, unbuffered. Write with writeAll() and abandon the file after a write that failed.
    QIODevice& device();

    // Flushes and gives the file the name `path` (in the folder it was started in), replacing what had it.
    // The permissions are those of the replaced file, or what any new file gets. Ends the file, whether it
    // succeeds or not.
    Result<void> commit(const QString& path);

  private:
    explicit WholeFile(std::unique_ptr<QTemporaryFile> file);

    std::unique_ptr<QTemporaryFile> file_;
};

}  // namespace zelto
