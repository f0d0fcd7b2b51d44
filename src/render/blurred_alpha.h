// SPDX-License-Identifier: GPL-3.0-or-later
// A picture's alpha under a Gaussian of sigma = blur / 2 that ends at +-blur. Wide blurs are taken of a
// picture of coarser cells, an eighth of the blur wide, and read between their centres: the result stays
// within two levels of 255 of the full sum, and the work falls with the blur instead of growing with it.
#pragma once

#include <QImage>

#include <cstdint>
#include <vector>

namespace zelto {

// The weights of the offsets -blur ... blur; they add up to 1.
std::vector<float> gaussianWeights(int blur);

class BlurredAlpha {
  public:
    // `picture` is premultiplied ARGB32; only its alpha is read.
    BlurredAlpha(const QImage& picture, int blur);

    // Reads rows one after the other; each thread makes its own.
    class Reader {
      public:
        // Every row starts at the picture's column `left`, which may lie outside of it, and has `width`
        // values.
        Reader(const BlurredAlpha& blurred, int left, int width);

        // Levels 0 to 255 of the picture's row `y`, which may lie outside of it. Valid until the next call.
        const std::uint8_t* row(int y);

      private:
        const float* cellRow(int index);

        const BlurredAlpha& blurred_;
        std::vector<int> cell_;      // left of the two cells a column lies between
        std::vector<float> weight_;  // of the right one
        struct Cached {
            int index = -1;
            std::vector<float> values;
        };
        Cached cached_[2];
        std::vector<float> between_;
        std::vector<std::uint8_t> levels_;
    };

  private:
    // A place on the cell grid: between cells `first` and `first + 1`, nearer to the second the larger
    // `weight`.
    struct Place {
        int first;
        float weight;
    };
    Place place(int pixel, int cells) const;

    void readCells(const QImage& picture);
    void blurAcross();

    int cellSize_;                // pixels
    std::vector<float> weights_;  // of the cells about one, from left to right
    int margin_;                  // cells around the picture that its blur reaches, and one beyond
    int columns_;
    int rows_;
    std::vector<std::uint16_t> cells_;  // alpha * 256, blurred across but not yet down
};

}  // namespace zelto
