// SPDX-License-Identifier: GPL-3.0-or-later
// Huffman tables for coefficients that are taken over from another file.
#pragma once

#include "pictures/libjpeg.h"

#include <array>
#include <cstddef>

namespace zelto {

// What 8-bit samples can need.
constexpr std::size_t MostMeanBits = 11;  // of the difference of two means
constexpr std::size_t MostBits = 10;      // of any other coefficient

// `table` where it has a code for every symbol that 8-bit samples can need; a table that a program has made for one
// picture seldom does. Otherwise one for all of them, with codes as long as in `table` to a bit or so, by ITU-T T.81
// annex K.2 with frequencies that the lengths of its codes tell. `table` has been read by libjpeg. Any thread.
JHUFF_TBL completedDcTable(const JHUFF_TBL& table);
JHUFF_TBL completedAcTable(const JHUFF_TBL& table);

// Whether such a table has codes for the blocks of one component, whatever their order: a file may have been made to
// hold larger coefficients, and libjpeg writes rubbish for them. One thread at a time.
class CodeRange {
  public:
    // False once there has been a block for which it has none.
    bool takes(const JBLOCK* blocks, int count);

  private:
    // Of each coefficient, and of 0.
    std::array<JCOEF, DCTSIZE2> least_{};
    std::array<JCOEF, DCTSIZE2> largest_{};
};

}  // namespace zelto
