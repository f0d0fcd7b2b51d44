// SPDX-License-Identifier: GPL-3.0-or-later
// One exiftool program kept running, which takes command after command: starting it takes longer than what it does
// for a photo. It belongs to no thread and needs no event loop, but serves one caller at a time. What is asked of it,
// and whether its answer is good news, is left to others.
//
// The program ends by itself when this one does, even when that is killed: what feeds it notices, lets it finish the
// command in hand and makes sure that a command of which only a part has arrived does nothing.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <memory>

namespace zelto {

// A command as the program reads it, one argument a line, ended by the line that has it answered with "{readyN}", N
// being `number`. Any value of a "-TAG=VALUE" argument arrives as it is, except that a zero character ends no value
// and is left out. Error: ErrorCode::InvalidValue for another argument that has a line break in it or is empty or
// starts with a blank or "#".
Result<QByteArray> exiftoolCommand(const QStringList& arguments, int number);

class ExiftoolProcess {
  public:
    // How running a command can fail. In both cases the process is of no further use.
    enum class Failure { Died, TimedOut };

    // Starts the program at the path `program`. Returns at once: the first command waits for it to be ready. Error:
    // ErrorCode::ProgramFailed.
    static Result<std::unique_ptr<ExiftoolProcess>> start(const QString& program);

    // Ends the program: by itself where it does so within seconds, else by force.
    ~ExiftoolProcess();
    ExiftoolProcess(const ExiftoolProcess&) = delete;
    ExiftoolProcess& operator=(const ExiftoolProcess&) = delete;

    // What the program printed for a command made by exiftoolCommand() with `number`, which must be another one for
    // each command. Blocks until then, but not past the `deadline`, which is asked for again several times per second.
    using Deadline = std::function<std::chrono::steady_clock::time_point()>;
    tl::expected<QByteArray, Failure> run(const QByteArray& command, int number, const Deadline& deadline);

    // Tells the program that no command follows. The destructor does so too; several processes end sooner when all
    // are told first.
    void finish();

    // Ends the program by force, with everything it has started.
    void kill();

  private:
    ExiftoolProcess(pid_t group, int socket) : group_(group), socket_(socket) {}

    bool send(QByteArrayView& pending);
    bool receive(QByteArray& answer);

    pid_t group_;  // the feeding shell's id and the process group of all; 0 when they have ended
    int socket_;   // leads to the program's input and from its output
};

}  // namespace zelto
