// SPDX-License-Identifier: GPL-3.0-or-later
// What zelto-batch shows while it works: on a terminal a progress bar, elsewhere one line for each photo.
// Everything here goes to standard error, with control characters escaped. Any thread.
#pragma once

#include "batch/run_pace.h"

#include <QString>

#include <chrono>
#include <mutex>

namespace zelto {

struct ConsoleChoices {
    bool quiet = false;  // problems only
    bool color = true;
    bool bar = true;
};

class Console {
  public:
    // A choice only holds where standard error can serve it: no bar and no color where it is not a terminal or a dumb
    // one, no color where NO_COLOR is set.
    explicit Console(const ConsoleChoices& choices);

    // Starts the count that rate and time left are told from.
    void begin(qint64 total);
    // So many more photos have come to be done.
    void expect(qint64 photos);
    // One more photo is done. `line`, unless it is empty, is shown where there is no bar.
    void advance(const QString& line);
    void problem(const QString& text);
    // Something worth knowing that is not a problem.
    void note(const QString& text);
    // Takes the bar away.
    void end();

  private:
    using Clock = RunPace::Clock;

    QString bar() const;
    void drawBar();
    void clearBar();

    const bool quiet_;
    const bool terminal_;
    const bool color_;
    const bool bar_;

    std::mutex mutex_;  // guards everything below and the terminal's line
    RunPace pace_;
    Clock::time_point drawn_;
    bool shown_ = false;
};

}  // namespace zelto
