// SPDX-License-Identifier: GPL-3.0-or-later
// A folder for files that are nobody else's business, among the system's temporary files. It goes with its owner: by
// the destructor, or, where the program was killed, by the next one that makes such a folder. Any thread.
#pragma once

#include "platform/result.h"

#include <QString>

namespace zelto {

class PrivateFolder {
  public:
    // Makes a folder that only this user can enter. Error: ErrorCode::CannotWrite with the system's reason.
    static Result<PrivateFolder> make();

    PrivateFolder(PrivateFolder&& other) noexcept;
    PrivateFolder& operator=(PrivateFolder&& other) noexcept;
    // Removes the folder and the files in it.
    ~PrivateFolder();

    QString filePath(const QString& name) const;

  private:
    PrivateFolder(QString path, int descriptor) : path_(std::move(path)), descriptor_(descriptor) {}

    QString path_;
    int descriptor_ = -1;  // of the folder, locked for as long as its owner lives
};

}  // namespace zelto
