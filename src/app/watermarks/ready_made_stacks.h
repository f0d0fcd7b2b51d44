// SPDX-License-Identifier: GPL-3.0-or-later
// Stacks to begin with, made for photos of any size. Main thread only.
#pragma once

#include "platform/words.h"
#include "records/watermark_stack.h"

#include <vector>

namespace zelto {

struct ReadyMadeStack {
    MarkedText name;
    MarkedText tip;  // what it holds, in one line
    WatermarkStack (*make)();
};

const std::vector<ReadyMadeStack>& readyMadeStacks();

}  // namespace zelto
