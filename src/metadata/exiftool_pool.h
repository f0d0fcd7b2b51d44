// SPDX-License-Identifier: GPL-3.0-or-later
// A few exiftool programs kept running for whoever needs one. A program that crashes or hangs is replaced, but after two
// that hung none is asked any more; one that cannot be found is told to the log once. Any thread.
#pragma once

#include "metadata/exiftool_process.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

namespace zelto {

// The exiftool that the environment variable ZELTO_EXIFTOOL names; without one, that among the resources
// ("Exif/exiftool"), and where none ships with the program, the system's.
QString exiftoolProgram();

class ExiftoolPool {
  public:
    // At most `processes` programs run at a time; each is started when it is first needed.
    explicit ExiftoolPool(int processes, QString program = exiftoolProgram());

    // Waits for commands in hand and ends the programs. No other thread may call run() any more.
    ~ExiftoolPool();
    ExiftoolPool(const ExiftoolPool&) = delete;
    ExiftoolPool& operator=(const ExiftoolPool&) = delete;

    // Starts a first program where none runs, without waiting for it to be ready.
    void warmUp();

    // Has one command run and returns what was printed for it; blocks until then. `timeout` counts from when the
    // command is sent, and for each of two tries: a program that dies is tried anew once. Error:
    // ErrorCode::ProgramFailed, or that of exiftoolCommand().
    Result<QString> run(const QStringList& arguments, std::chrono::milliseconds timeout);

    // From now on no command gets more than two seconds in all, and none is begun after that.
    void interrupt() { interrupted_ = Clock::now().time_since_epoch(); }

  private:
    using Clock = std::chrono::steady_clock;

    std::unique_ptr<ExiftoolProcess> take();
    Clock::time_point deadline(Clock::time_point asked) const;
    void giveBack(std::unique_ptr<ExiftoolProcess> process);
    tl::unexpected<Error> failed(const QString& why) const;

    const QString program_;
    std::once_flag missingIsLogged_;
    std::atomic<Clock::duration> interrupted_{};  // when, since the clock's start; 0 where it was not
    std::atomic<int> timeOuts_ = 0;
    std::mutex mutex_;
    std::condition_variable freed_;
    std::vector<std::unique_ptr<ExiftoolProcess>> free_;  // null for one that is not running
    int lastNumber_ = 0;
};

}  // namespace zelto
