// SPDX-License-Identifier: GPL-3.0-or-later
// The opacity a record asks for.
#pragma once

#include <algorithm>

namespace zelto {

// Between 0 and 1; what is not a number is 0.
inline double opacityOf(float transparency) {
    return transparency > 0.0F ? std::min(static_cast<double>(transparency), 1.0) : 0.0;
}

}  // namespace zelto
