// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_file.h"

#include "pictures/picture_reader.h"
#include "platform/words.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelto {

// Told of what was opened rather than of its name, and opened without waiting, for what looks like a file may still be
// none.
Result<void> openPictureFile(QFile& file) {
    const int descriptor =
        ::open(QFile::encodeName(file.fileName()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0 && (errno == ENOENT || errno == ENOTDIR)) {
        return fail(ErrorCode::NotFound, Words::tr("There is no file “%1”.").arg(file.fileName()));
    }
    struct stat status {};
    if (descriptor >= 0 && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
        file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    if (descriptor >= 0) ::close(descriptor);
    return fail(ErrorCode::Damaged, QString(DamagedPictureMessage));
}

}  // namespace zelto
