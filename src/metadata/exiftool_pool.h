// SPDX-License-Identifier: GPL-3.0-or-later
// A few exiftool programs kept running for whoever needs one. A program that crashes or hangs is replaced; one that
// cannot be found is told to the log once. Any thread.
#pragma once

#include "metadata/exiftool_process.h"
#include "platform/result.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

namespace zelto {

// The exiftool among the resources, or the one that the environment variable ZELTO_EXIFTOOL names.
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

  private:
    std::unique_ptr<ExiftoolProcess> take();
    void giveBack(std::unique_ptr<ExiftoolProcess> process);
    tl::unexpected<Error> failed(const QString& what) const;

    const QString program_;
    std::once_flag missingIsLogged_;
    std::mutex mutex_;
    std::condition_variable freed_;
    std::vector<std::unique_ptr<ExiftoolProcess>> free_;  // null for one that is not running
    int lastNumber_ = 0;
};

}  // namespace zelto
