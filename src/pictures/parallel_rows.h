// SPDX-License-Identifier: GPL-3.0-or-later
// Spreading the rows of a picture over the cores. One small set of threads serves the whole program, so that
// several photos worked on at a time share the cores instead of crowding them.
#pragma once

#include <functional>

namespace zelto {

// Calls `body(first, end)` for bands of rows [first, end) that together cover [0, rows) exactly once, on the
// calling thread and on idle cores, and returns when all are done. `rowWidth` is the pixels of a row: small
// pictures stay on the calling thread, where handing out work would cost more than it saves. The body must
// write only what belongs to its rows. Where it throws std::bad_alloc, so does this once all bands are done with;
// it may throw nothing else. Any thread, any number at a time, also from within
// a body.
void parallelRows(int rows, int rowWidth, const std::function<void(int first, int end)>& body);

}  // namespace zelto
