// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/image_filters.h"

#include "pictures/filter_kernels.h"
#include "pictures/filter_pass.h"
#include "pictures/parallel_rows.h"

namespace zelto {

QImage applyFilterChain(QImage picture, const FilterChain& chain) {
    if (picture.isNull()) return picture;
    const bool hasAlpha = picture.hasAlphaChannel();
    const QImage::Format format = hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    if (picture.format() != format) picture.convertTo(format);

    // A shared picture is read where it is and written elsewhere: detaching it would copy every pixel first.
    QImage result;
    if (picture.isDetached()) {
        result.swap(picture);
    } else {
        result = QImage(picture.size(), format);
    }
    if (result.isNull()) return {};
    const QImage& from = picture.isNull() ? result : picture;
    const FilterPass pass = fuse(chain, result.size());
    const uchar* const source = from.constBits();
    uchar* const target = result.bits();
    const qsizetype sourceStride = from.bytesPerLine();
    const qsizetype targetStride = result.bytesPerLine();
    const auto width = static_cast<std::size_t>(result.width());
    parallelRows(result.height(), result.width(), [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            filterPixels(pass, reinterpret_cast<const std::uint32_t*>(source + y * sourceStride),
                         reinterpret_cast<std::uint32_t*>(target + y * targetStride), width, 0, y, hasAlpha);
        }
    });
    return result;
}

}  // namespace zelto
