// SPDX-License-Identifier: GPL-3.0-or-later
// A saved setting in one line. Any thread.
#pragma once

#include "records/watermark_stack.h"

#include <QString>

namespace zelto {

// What `stack` holds, its first watermarks by their content.
QString settingSummary(const WatermarkStack& stack);

}  // namespace zelto
