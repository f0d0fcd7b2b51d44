// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/halved_picture.h"

#include "pictures/parallel_rows.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace zelto {
namespace {

constexpr int Channels = 4;

// Holds the sum of as many rows as the most halvings put together.
using ColumnSum = std::uint16_t;

// One row of the halved picture from the rows of `part` it stands for. `sums` has room for a row of the part.
void halveRow(QRgb* out, const QImage& picture, const QRect& part, int row, int times,
              std::vector<ColumnSum>& sums) {
    const int block = 1 << times;
    const int first = part.top() + row * block;
    const int rows = std::min(block, part.top() + part.height() - first);
    const int bytes = part.width() * Channels;
    std::fill(sums.begin(), sums.end(), 0);
    ColumnSum* sum = sums.data();
    for (int y = first; y < first + rows; ++y) {
        const uchar* in = picture.constScanLine(y) + static_cast<std::ptrdiff_t>(part.left()) * Channels;
        for (int i = 0; i < bytes; ++i) sum[i] = static_cast<ColumnSum>(sum[i] + in[i]);
    }
    auto* target = reinterpret_cast<uchar*>(out);
    for (int left = 0; left < part.width(); left += block) {
        const int columns = std::min(block, part.width() - left);
        const auto pixels = static_cast<std::uint32_t>(rows * columns);
        std::array<std::uint32_t, Channels> mean{};
        for (int x = left; x < left + columns; ++x) {
            for (int c = 0; c < Channels; ++c) mean[static_cast<std::size_t>(c)] += sum[x * Channels + c];
        }
        for (const std::uint32_t total : mean) *target++ = static_cast<uchar>((total + pixels / 2) / pixels);
    }
}

}  // namespace

QSize halvedSize(QSize size, int times) {
    const int block = 1 << times;
    return {(size.width() + block - 1) / block, (size.height() + block - 1) / block};
}

QImage halvedPicture(const QImage& picture, const QRect& part, int times) {
    QImage result(halvedSize(part.size(), times), picture.format());
    halveInto(result, 0, picture, part, times);
    return result;
}

void halveInto(QImage& target, int firstRow, const QImage& picture, const QRect& part, int times) {
    const int rows = halvedSize(part.size(), times).height();
    uchar* const pixels = target.scanLine(firstRow);
    const auto stride = static_cast<std::ptrdiff_t>(target.bytesPerLine());
    parallelRows(rows, part.width() << times, [&](int first, int end) {
        std::vector<ColumnSum> sums(static_cast<std::size_t>(part.width()) * Channels);
        for (int row = first; row < end; ++row) {
            halveRow(reinterpret_cast<QRgb*>(pixels + row * stride), picture, part, row, times, sums);
        }
    });
}

}  // namespace zelto
