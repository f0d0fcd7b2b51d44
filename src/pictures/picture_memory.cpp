// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_memory.h"

#include <sys/mman.h>

#include <cstdlib>

namespace zelto {

QImage newPicture(QSize size, QImage::Format format) {
    constexpr qsizetype HugePage = qsizetype{2} << 20;
    constexpr qsizetype WorthIt = 4 * HugePage;
    if (size.isEmpty()) return {};
    const qsizetype stride = qsizetype{4} * size.width();
    const qsizetype bytes = stride * size.height();
    if (bytes < WorthIt) return QImage(size, format);

    const auto whole = static_cast<std::size_t>((bytes + HugePage - 1) / HugePage * HugePage);
    void* memory = std::aligned_alloc(std::size_t{HugePage}, whole);
    if (memory == nullptr) return {};
    madvise(memory, whole, MADV_HUGEPAGE);  // a wish: where it is not granted all else stays the same
    return QImage(static_cast<uchar*>(memory), size.width(), size.height(), stride, format, std::free,
                  memory);
}

}  // namespace zelto
