// SPDX-License-Identifier: GPL-3.0-or-later
// Which photos of a list stand for all of it. Pure functions.
#pragma once

#include <QSize>

#include <vector>

namespace zelto {

// At most `count` places in `sizes`, ascending, `first` among them: photos that differ in shape and size as much as any,
// and where they do not, that lie far apart in the list. Photos without a size are not chosen.
std::vector<int> differentPhotos(const std::vector<QSize>& sizes, int first, int count);

// At most `count` of the rows of a list, spread over all of it, `row` among them.
std::vector<int> spreadRows(const std::vector<int>& rows, int row, int count);

}  // namespace zelto
