// SPDX-License-Identifier: GPL-3.0-or-later
// libjxl's work on the threads that all pictures share (parallel_rows.h), within a limit of time.
#pragma once

#include "pictures/decoding_time.h"

#include <jxl/parallel_runner.h>

namespace zelto {

// A JxlParallelRunner. `limit` points to the DecodingTime that the work is taken off; where none is left, the work ends
// and libjxl fails. Null: the work may take as long as it takes.
JxlParallelRetCode runJxlInParallel(void* limit, void* work, JxlParallelRunInit begin,
                                    JxlParallelRunFunction run, std::uint32_t first, std::uint32_t end);

}  // namespace zelto
