// SPDX-License-Identifier: GPL-3.0-or-later
// A picture's alpha blurred by a Gaussian of sigma = blur / 2 that ends at +-blur. For a wide blur the alpha is first
// averaged over cells an eighth of the blur wide, and the blurred cells are interpolated. The result stays within two
// levels of 255 of the full sum, and a wider blur costs less instead of more.
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

namespace zelto {

// The weights of the offsets -blur ... blur; they add up to 1.
std::vector<float> gaussianWeights(int blur);

class BlurredAlpha {
    // Between the cells `first` and `first + 1`, nearer to the second the larger `weight` is.
    struct Place {
        int first;
        float weight;
    };

  public:
    // `picture` is premultiplied ARGB32; only its alpha is read. The work is spread over the cores.
    BlurredAlpha(const QImage& picture, int blur);

    // Reads rows, quickest one after the other. Each thread makes its own.
    class Reader {
      public:
        // Rows start at the picture's column `left` and have `width` values; both may lie outside of the
        // picture.
        Reader(const BlurredAlpha& blurred, int left, int width);

        // Makes the picture's row `y`, which may lie outside of it, the one that level() reads.
        void setRow(int y);

        // Level 0 to 255 of the row's value `x`.
        std::uint8_t level(int x) const {
            const auto& [first, weight] = places_[static_cast<std::size_t>(x)];
            const float* const cell = row_.data() + first;
            return static_cast<std::uint8_t>(cell[0] + weight * (cell[1] - cell[0]));
        }

      private:
        struct CellRow {
            int index = -1;
            std::vector<float> values;
        };
        const std::vector<float>& cellRow(int index);

        const BlurredAlpha& blurred_;
        std::vector<Place> places_;  // of the row's values between the cells
        CellRow cellRows_[2];
        std::vector<float> row_;  // a value for each cell, to be cut down to a whole level
    };

  private:
    Place place(int pixel, int cells) const;

    void gatherCells(const QImage& picture);
    void blurAcross();

    int cellSize_;                // pixels
    std::vector<float> weights_;  // of a cell and those around it
    int margin_;                  // cells around the picture that its blur reaches, and one more
    int columns_;
    int rows_;
    std::vector<std::uint16_t> cells_;  // alpha * 256, blurred across but not yet down
};

}  // namespace zelto
