// SPDX-License-Identifier: GPL-3.0-or-later
// How long the main thread was kept from its event loop at most, while this lives: what a user feels as a window that
// hangs. Main thread only.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

namespace zelto {

class StallWatchdog {
  public:
    StallWatchdog() {
        ticks_.setTimerType(Qt::PreciseTimer);
        ticks_.callOnTimeout([this] { tick(); });
        sinceTick_.start();
        ticks_.start(TickMilliseconds);
    }

    // Milliseconds.
    double longestStall() {
        tick();
        return longest_;
    }

  private:
    static constexpr int TickMilliseconds = 1;

    void tick() {
        const double between = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-6;
        longest_ = std::max(longest_, between - TickMilliseconds);
        sinceTick_.start();
    }

    QTimer ticks_;
    QElapsedTimer sinceTick_;
    double longest_ = 0.0;
};

}  // namespace zelto
