// SPDX-License-Identifier: GPL-3.0-or-later
// The readers of what strangers may have made, each as a function that takes any bytes. A target checks what its reader
// promises of every input and aborts where that does not hold; whatever else goes wrong (a crash, memory, time) is seen
// from outside. A program per target (preset "fuzz", scripts/fuzz) searches for such inputs, and replay_test.cpp gives
// every target the inputs of its folder corpus/NAME and those that once did harm, hostile/NAME.
#pragma once

#include <QByteArrayView>

#include <span>

namespace zelto {

struct FuzzTarget {
    const char* name;
    void (*run)(QByteArrayView input);
};

std::span<const FuzzTarget> fuzzTargets();

}  // namespace zelto
