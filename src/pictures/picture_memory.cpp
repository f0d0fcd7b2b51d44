// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_memory.h"

#include <sys/mman.h>

#include <cstdlib>
#include <new>

namespace zelto {

QImage newPicture(QSize size, QImage::Format format) {
    constexpr qsizetype HugePage = qsizetype{2} << 20;
    constexpr qsizetype WorthIt = 4 * HugePage;
    if (size.isEmpty()) return {};
    const qsizetype bits = qsizetype{size.width()} * QImage::toPixelFormat(format).bitsPerPixel();
    const qsizetype stride = (bits + 31) / 32 * 4;
    const qsizetype bytes = stride * size.height();
    if (bytes < WorthIt) return converted(QImage(size, format));

    const auto whole = static_cast<std::size_t>((bytes + HugePage - 1) / HugePage * HugePage);
    void* memory = std::aligned_alloc(std::size_t{HugePage}, whole);
    if (memory == nullptr) throw std::bad_alloc();
    madvise(memory, whole, MADV_HUGEPAGE);  // a wish: where it is not granted all else stays the same
    return QImage(static_cast<uchar*>(memory), size.width(), size.height(), stride, format, std::free,
                  memory);
}

QImage converted(QImage picture) {
    if (picture.isNull()) throw std::bad_alloc();
    return picture;
}

tl::unexpected<Error> outOfMemory(const QString& path) {
    return fail(ErrorCode::OutOfMemory, QStringLiteral("There is not enough memory for this picture."), path);
}

}  // namespace zelto
