// SPDX-License-Identifier: GPL-3.0-or-later
// A file as it is now, readable even after another has taken its place under its name, and under a name of plain
// characters. Nothing is copied and nothing can be left behind: the file is held open, and the system gives open
// files a path of their own. Any thread.
#pragma once

#include "platform/result.h"

#include <QString>

#include <memory>

class QFile;

namespace zelto {

class KeptFile {
  public:
    // Error: ErrorCode::NotFound when there is no file that can be read.
    static Result<KeptFile> keep(const QString& path);

    KeptFile(KeptFile&&) noexcept;
    KeptFile& operator=(KeptFile&&) noexcept;
    ~KeptFile();

    // Leads to the kept file for every program of this user, as long as this object lives.
    QString path() const;

  private:
    explicit KeptFile(std::unique_ptr<QFile> file);

    std::unique_ptr<QFile> file_;
};

}  // namespace zelto
