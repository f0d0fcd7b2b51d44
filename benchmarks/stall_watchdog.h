// SPDX-License-Identifier: GPL-3.0-or-later
// How long the main thread was kept from its event loop at most, while this lives: what a user feels as a window that
// hangs; and how much of that it worked itself. The rest it waited, for another thread or for the machine. Main thread
// only.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <compare>
#include <ctime>

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
    struct Stall {
        double length = 0.0;
        double work = 0.0;  // processor time of this thread

        auto operator<=>(const Stall&) const = default;
    };
    Stall longestStall() {
        tick();
        return longest_;
    }

  private:
    static constexpr int TickMilliseconds = 1;

    static double workedSoFar() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
    }

    void tick() {
        const double length = static_cast<double>(sinceTick_.nsecsElapsed()) * 1e-6 - TickMilliseconds;
        const double worked = workedSoFar();
        if (length > longest_.length) longest_ = {length, worked - worked_};
        worked_ = worked;
        sinceTick_.start();
    }

    QTimer ticks_;
    QElapsedTimer sinceTick_;
    double worked_ = workedSoFar();
    Stall longest_;
};

}  // namespace zelto
