// SPDX-License-Identifier: GPL-3.0-or-later
// How fast a run goes and how long the rest of it will take, from when its photos were done. One thread at a time.
#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace zelto {

class RunPace {
  public:
    using Clock = std::chrono::steady_clock;

    // From `now` on, so many photos are to be done.
    void begin(qint64 photos, Clock::time_point now = Clock::now());
    void advance() { ++done_; }
    // So many more have come.
    void expect(qint64 photos) { total_ += photos; }

    qint64 done() const { return done_; }
    qint64 total() const { return total_; }

    struct Figures {
        double photosPerSecond = 0.0;
        double secondsLeft = 0.0;

        // "1.5", "25"
        QString rate() const;
        // "0:04", "12:30", "1:02:03"
        QString timeLeft() const;
    };
    // Nothing before there is more to tell than noise.
    std::optional<Figures> figures(Clock::time_point now = Clock::now()) const;

  private:
    Clock::time_point start_ = Clock::now();
    qint64 done_ = 0;
    qint64 total_ = 0;
};

}  // namespace zelto
