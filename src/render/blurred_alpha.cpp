// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/blurred_alpha.h"

#include "platform/parallel_rows.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace zelto {
namespace {

constexpr int CellsPerBlur = 8;
constexpr float CellScale = 256.0F;

std::size_t index(int i) {
    return static_cast<std::size_t>(i);
}

int dividedUp(int value, int divisor) {
    return (value + divisor - 1) / divisor;
}

// The pixel weights gathered into cells, the middle one centred on offset 0; an offset on the line between
// two cells counts half for each.
std::vector<float> cellWeights(int blur, int cellSize) {
    const std::vector<float> pixels = gaussianWeights(blur);
    const int reach = (2 * blur + cellSize) / (2 * cellSize);
    std::vector<float> cells(index(2 * reach + 1), 0.0F);
    for (int offset = -blur; offset <= blur; ++offset) {
        const float half = pixels[index(offset + blur)] / 2.0F;
        const int twice =
            2 * offset + (2 * reach + 1) * cellSize;  // from the first cell's left edge, in half pixels
        const int right = twice / (2 * cellSize);
        const int left = (twice - 1) / (2 * cellSize);
        cells[index(std::min(right, 2 * reach))] += half;
        cells[index(left)] += half;
    }
    return cells;
}

}  // namespace

std::vector<float> gaussianWeights(int blur) {
    std::vector<double> exact(index(2 * blur + 1), 1.0);
    for (int offset = -blur; offset <= blur && blur > 0; ++offset) {
        const double sigmas = offset / (blur / 2.0);
        exact[index(offset + blur)] = std::exp(-0.5 * sigmas * sigmas);
    }
    const double sum = std::accumulate(exact.begin(), exact.end(), 0.0);
    std::vector<float> weights;
    weights.reserve(exact.size());
    for (const double weight : exact) weights.push_back(static_cast<float>(weight / sum));
    return weights;
}

BlurredAlpha::BlurredAlpha(const QImage& picture, int blur)
    : cellSize_(std::max(1, blur / CellsPerBlur)),
      weights_(cellWeights(blur, cellSize_)),
      margin_(static_cast<int>(weights_.size() / 2) + 1),
      columns_(dividedUp(picture.width(), cellSize_) + 2 * margin_),
      rows_(dividedUp(picture.height(), cellSize_) + 2 * margin_),
      cells_(index(columns_) * index(rows_), std::uint16_t{0}) {
    readCells(picture);
    blurAcross();
}

void BlurredAlpha::readCells(const QImage& picture) {
    const int size = cellSize_;
    const float scale = CellScale / static_cast<float>(size * size);
    parallelRows(dividedUp(picture.height(), size), picture.width() * size, [&](int first, int end) {
        std::vector<std::uint32_t> sums(index(columns_ - 2 * margin_));
        for (int cellRow = first; cellRow < end; ++cellRow) {
            std::fill(sums.begin(), sums.end(), 0U);
            for (int y = cellRow * size; y < std::min((cellRow + 1) * size, picture.height()); ++y) {
                const auto* const pixels = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
                for (int x = 0, cell = 0; x < picture.width(); ++cell) {
                    const int stop = std::min(x + size, picture.width());
                    for (; x < stop; ++x) sums[index(cell)] += pixels[x] >> 24U;
                }
            }
            std::uint16_t* const cells = cells_.data() + index(cellRow + margin_) * index(columns_) + margin_;
            for (std::size_t i = 0; i < sums.size(); ++i) {
                cells[i] = static_cast<std::uint16_t>(static_cast<float>(sums[i]) * scale + 0.5F);
            }
        }
    });
}

void BlurredAlpha::blurAcross() {
    const int reach = static_cast<int>(weights_.size() / 2);
    parallelRows(rows_, columns_, [&](int first, int end) {
        std::vector<float> source(index(columns_ + 2 * reach), 0.0F);
        std::vector<float> sums(index(columns_));
        for (int y = first; y < end; ++y) {
            std::uint16_t* const cells = cells_.data() + index(y) * index(columns_);
            std::copy(cells, cells + columns_, source.begin() + reach);
            std::fill(sums.begin(), sums.end(), 0.5F);
            for (std::size_t tap = 0; tap < weights_.size(); ++tap) {
                const float weight = weights_[tap];
                const float* const from = source.data() + tap;
                for (std::size_t x = 0; x < sums.size(); ++x) sums[x] += weight * from[x];
            }
            for (std::size_t x = 0; x < sums.size(); ++x) cells[x] = static_cast<std::uint16_t>(sums[x]);
        }
    });
}

BlurredAlpha::Place BlurredAlpha::place(int pixel, int cells) const {
    const double position = (pixel + 0.5) / cellSize_ - 0.5 + margin_;
    const double inside = std::clamp(position, 0.0, cells - 1.0);
    const int first = std::min(static_cast<int>(inside), cells - 2);
    return {first, static_cast<float>(inside - first)};
}

BlurredAlpha::Reader::Reader(const BlurredAlpha& blurred, int left, int width)
    : blurred_(blurred), between_(index(blurred.columns_)), levels_(index(width)) {
    cell_.reserve(index(width));
    weight_.reserve(index(width));
    for (int x = 0; x < width; ++x) {
        const Place place = blurred.place(left + x, blurred.columns_);
        cell_.push_back(place.first);
        weight_.push_back(place.weight);
    }
}

// A row of cells blurred down as well. Two neighbours are kept: the next pixel row needs them again, mostly.
const float* BlurredAlpha::Reader::cellRow(int index_) {
    Cached& cached = cached_[index_ % 2];
    if (cached.index == index_) return cached.values.data();
    cached.index = index_;
    cached.values.assign(index(blurred_.columns_), 0.0F);
    const int reach = static_cast<int>(blurred_.weights_.size() / 2);
    for (int tap = -reach; tap <= reach; ++tap) {
        const int y = index_ + tap;
        if (y < 0 || y >= blurred_.rows_) continue;
        const float weight = blurred_.weights_[index(tap + reach)] / CellScale;
        const std::uint16_t* const cells = blurred_.cells_.data() + index(y) * index(blurred_.columns_);
        for (int x = 0; x < blurred_.columns_; ++x)
            cached.values[index(x)] += weight * static_cast<float>(cells[x]);
    }
    return cached.values.data();
}

const std::uint8_t* BlurredAlpha::Reader::row(int y) {
    const Place place = blurred_.place(y, blurred_.rows_);
    const float* const above = cellRow(place.first);
    const float* const below = cellRow(place.first + 1);
    for (std::size_t i = 0; i < between_.size(); ++i)
        between_[i] = above[i] + place.weight * (below[i] - above[i]);
    for (std::size_t x = 0; x < levels_.size(); ++x) {
        const float* const cell = between_.data() + cell_[x];
        const float level = cell[0] + weight_[x] * (cell[1] - cell[0]);
        levels_[x] = static_cast<std::uint8_t>(std::min(level + 0.5F, 255.0F));
    }
    return levels_.data();
}

}  // namespace zelto
