// SPDX-License-Identifier: GPL-3.0-or-later
// Running SIMD code on every instruction set it was built for, not only on the best one of the machine at
// hand.
#pragma once

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include <cstdint>

namespace zelto {

// Calls `body` once for each instruction set that this machine can run; a failure names the set.
template <class Body>
void forEachInstructionSet(Body&& body) {
    const auto use = [](std::int64_t targets) {  // 0: whatever the machine has
        hwy::SetSupportedTargetsForTest(targets);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
    };
    for (const std::int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        use(target);
        body();
    }
    use(0);
}

}  // namespace zelto
