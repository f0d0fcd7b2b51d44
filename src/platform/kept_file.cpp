// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/kept_file.h"

#include "platform/words.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace zelto {

Result<KeptFile> KeptFile::keep(const QString& path) {
    auto file = std::make_unique<QFile>(path);
    if (!QFileInfo(path).isFile() || !file->open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return fail(ErrorCode::NotFound, Words::tr("“%1” cannot be read.").arg(path), path);
    }
    return KeptFile(std::move(file));
}

KeptFile::KeptFile(std::unique_ptr<QFile> file) : file_(std::move(file)) {}
KeptFile::KeptFile(KeptFile&&) noexcept = default;
KeptFile& KeptFile::operator=(KeptFile&&) noexcept = default;
KeptFile::~KeptFile() = default;

QString KeptFile::path() const {
    return QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(file_->handle());
}

}  // namespace zelto
