// SPDX-License-Identifier: GPL-3.0-or-later
// What a file's headers tell of its picture before anything is decoded: size, resolution, and what reading it will cost.
// And what it may cost. A file of a few hundred bytes can promise a picture of gigabytes; such a file is refused, while
// large photos are limited by the machine alone.
#pragma once

#include "platform/result.h"

#include <QSize>

#include <algorithm>

namespace zelto {

struct PictureNeeds {
    QSize size;          // pixels, upright
    qint64 memory = 0;   // bytes at the worst moment of reading, the buffers of libraries included
    qint64 decoded = 0;  // bytes out of the decompressor where they are not all kept: a measure of time
    double dpiX = 72.0;  // of the upright picture; 72 where the file records none
    double dpiY = 72.0;
};

// No more than can be multiplied by the bytes of a pixel; 0 where a header's number was too large for a side.
inline qint64 pixelCount(QSize size) {
    return size.isEmpty() ? 0 : std::min(qint64{size.width()} * size.height(), qint64{1} << 48);
}

// The most memory, in bytes, that working on a picture from a file of `fileBytes` bytes may take: 1 GiB for files
// below 1 MiB, otherwise all that this process may have.
qint64 memoryAllowed(qint64 fileBytes);

// Error, in the user's words, where working on a picture from such a file takes more than it may.
Result<void> checkMemory(qint64 memory, qint64 fileBytes);

// The same for reading it. A size that makes no sense for such a file is an error with DamagedPictureMessage.
Result<void> checkNeeds(const PictureNeeds& needs, qint64 fileBytes);

}  // namespace zelto
