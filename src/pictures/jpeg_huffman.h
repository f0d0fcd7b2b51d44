// SPDX-License-Identifier: GPL-3.0-or-later
// Huffman tables for coefficients that are taken over from another file.
#pragma once

#include "pictures/libjpeg.h"

namespace zelto {

// `table` where it has a code for every symbol that 8-bit samples can need; a table that a program has made for one
// picture seldom does. Otherwise one for all of them, with codes as long as in `table` to a bit or so, by ITU-T T.81
// annex K.2 with frequencies that the lengths of its codes tell. `table` has been read by libjpeg. Any thread.
JHUFF_TBL completedDcTable(const JHUFF_TBL& table);
JHUFF_TBL completedAcTable(const JHUFF_TBL& table);

}  // namespace zelto
