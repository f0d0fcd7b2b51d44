// SPDX-License-Identifier: GPL-3.0-or-later
// The inner loops of the filters. Pixels are premultiplied ARGB in one 32-bit word each; `source` and
// `target` may be the same. Any thread.
#pragma once

#include "pictures/filter_pass.h"

#include <cstddef>
#include <cstdint>

namespace zelto {

// `count` pixels of row `y` from column `x` on. Without `hasAlpha` the pixels count as opaque and come out
// opaque.
void filterPixels(const FilterPass& pass, const std::uint32_t* source, std::uint32_t* target,
                  std::size_t count, int x, int y, bool hasAlpha);

}  // namespace zelto
