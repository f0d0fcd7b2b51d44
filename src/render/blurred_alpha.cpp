// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/blurred_alpha.h"

#include "pictures/parallel_rows.h"
#include "pictures/rounding.h"
#include "pictures/weighted_sums.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>

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
    gatherCells(picture);
    blurAcross();
}

void BlurredAlpha::gatherCells(const QImage& picture) {
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
                cells[i] = static_cast<std::uint16_t>(rounded(static_cast<float>(sums[i]) * scale));
            }
        }
    });
}

void BlurredAlpha::blurAcross() {
    parallelRows(rows_, columns_, [&](int first, int end) {
        const std::size_t reach = weights_.size() / 2;
        std::vector<std::uint16_t> source(index(columns_) + 2 * reach, std::uint16_t{0});
        std::vector<const std::uint16_t*> shifted;
        for (std::size_t tap = 0; tap < weights_.size(); ++tap) shifted.push_back(source.data() + tap);
        std::vector<float> sums(index(columns_));
        for (int y = first; y < end; ++y) {
            std::uint16_t* const cells = cells_.data() + index(y) * index(columns_);
            std::copy(cells, cells + columns_, source.data() + reach);
            weightedSums(shifted, weights_, sums);
            std::transform(sums.begin(), sums.end(), cells,
                           [](float sum) { return static_cast<std::uint16_t>(rounded(sum)); });
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
    : blurred_(blurred), row_(index(blurred.columns_)) {
    places_.reserve(index(width));
    for (int x = 0; x < width; ++x) places_.push_back(blurred.place(left + x, blurred.columns_));
}

// A row of cells blurred down as well. Two neighbours are kept: the next row of pixels mostly needs them
// again.
const std::vector<float>& BlurredAlpha::Reader::cellRow(int wanted) {
    CellRow& kept = cellRows_[wanted % 2];
    if (kept.index == wanted) return kept.values;
    kept.index = wanted;
    kept.values.resize(row_.size());
    const std::vector<float>& weights = blurred_.weights_;
    const int reach = static_cast<int>(weights.size() / 2);
    const int top = std::max(wanted - reach, 0);
    const int bottom = std::min(wanted + reach, blurred_.rows_ - 1);
    std::vector<const std::uint16_t*> rows;
    for (int y = top; y <= bottom; ++y) rows.push_back(blurred_.cells_.data() + index(y) * row_.size());
    weightedSums(rows, std::span(weights).subspan(index(top - wanted + reach), rows.size()), kept.values);
    return kept.values;
}

void BlurredAlpha::Reader::setRow(int y) {
    const Place place = blurred_.place(y, blurred_.rows_);
    const std::vector<float>& above = cellRow(place.first);
    const std::vector<float>& below = cellRow(place.first + 1);
    for (std::size_t i = 0; i < row_.size(); ++i) {
        // Sums of weights may exceed 1 by their rounding; half a level is added for the cut to a whole one.
        const float alpha = (above[i] + place.weight * (below[i] - above[i])) / CellScale;
        row_[i] = std::min(alpha, 255.0F) + 0.5F;
    }
}

}  // namespace zelto
