// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/run_program.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <sys/prctl.h>
#include <sys/wait.h>

#include <cerrno>
#include <csignal>

namespace zelto {
namespace {

constexpr int Patience = 120'000;  // milliseconds; only a hanging program takes that long

void start(QProcess& process, const QString& program, const QStringList& arguments) {
    process.start(program, arguments, QIODevice::ReadOnly);
    process.waitForStarted(Patience);
}

ProgramRun finished(QProcess& process, const QByteArray& earlierErrors) {
    const bool ended = process.waitForFinished(Patience);
    if (!ended) process.kill();
    const bool exited = ended && process.exitStatus() == QProcess::NormalExit;
    return {exited ? process.exitCode() : -1, process.readAllStandardOutput(),
            earlierErrors + process.readAllStandardError()};
}

}  // namespace

ProgramRun runProgram(const QString& program, const QStringList& arguments,
                      const ProgramEnvironment& environment) {
    QProcess process;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable) {
        variables.remove(variable.key());
        if (!variable->isNull()) variables.insert(variable.key(), *variable);
    }
    process.setProcessEnvironment(variables);
    start(process, program, arguments);
    return finished(process, {});
}

ProgramRun runAndSignal(const QString& program, const QStringList& arguments, int lines, int signal) {
    QProcess process;
    start(process, program, arguments);
    QByteArray errors;
    process.setReadChannel(QProcess::StandardError);
    while (errors.count('\n') < lines && process.waitForReadyRead(Patience)) {
        errors += process.readAllStandardError();
    }
    if (process.state() == QProcess::Running) kill(static_cast<pid_t>(process.processId()), signal);
    return finished(process, errors);
}

void runAndKill(const QString& program, const QStringList& arguments, int milliseconds) {
    prctl(PR_SET_CHILD_SUBREAPER, 1);  // what the program leaves behind becomes a child of this one
    QProcess process;
    start(process, program, arguments);
    if (!process.waitForFinished(milliseconds)) process.kill();
    process.waitForFinished(Patience);
    while (waitpid(-1, nullptr, 0) > 0 || errno == EINTR) {
    }
}

}  // namespace zelto
