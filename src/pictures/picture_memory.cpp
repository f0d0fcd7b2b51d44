// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_memory.h"

#include "platform/words.h"

#include <sys/mman.h>

#include <cstdlib>
#include <new>

namespace zelto {

LargeMemory largeMemory(std::size_t bytes) {
    constexpr std::size_t HugePage = std::size_t{2} << 20;
    const std::size_t whole = (bytes + HugePage - 1) / HugePage * HugePage;
    LargeMemory memory(static_cast<uchar*>(std::aligned_alloc(HugePage, whole)));
    if (!memory) throw std::bad_alloc();
    madvise(memory.get(), whole, MADV_HUGEPAGE);  // a wish: where it is not granted all else stays the same
    return memory;
}

QImage newPicture(QSize size, QImage::Format format) {
    constexpr qsizetype WorthIt = qsizetype{8} << 20;
    if (size.isEmpty()) return {};
    const qsizetype bits = qsizetype{size.width()} * QImage::toPixelFormat(format).bitsPerPixel();
    const qsizetype stride = (bits + 31) / 32 * 4;
    const qsizetype bytes = stride * size.height();
    if (bytes < WorthIt) return converted(QImage(size, format));
    uchar* const memory = largeMemory(static_cast<std::size_t>(bytes)).release();
    return QImage(memory, size.width(), size.height(), stride, format, std::free, memory);
}

QImage converted(QImage picture) {
    if (picture.isNull()) throw std::bad_alloc();
    return picture;
}

tl::unexpected<Error> outOfMemory(const QString& path) {
    return fail(ErrorCode::OutOfMemory, Words::tr("There is not enough memory for this picture."), path);
}

}  // namespace zelto
