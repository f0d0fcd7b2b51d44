// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/exiftool_process.h"

#include "platform/words.h"

#include <QFile>
#include <QRegularExpression>

#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

extern char** environ;

namespace zelto {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds TimeToEnd{5};

// The end of its input alone does not end exiftool, so the feeder tells it to; "-if 0" in front keeps a command that
// was cut off from touching any file. When exiftool ends or crashes the last line ends the feeder; where it hangs after
// this program's end, the feeder ends it.
constexpr const char* Shell = "/bin/sh";
constexpr const char* Supervision =
    "{ cat; printf '\\n-if\\n0\\n-stay_open\\nFalse\\n'; exec >&-; sleep 60; kill -KILL 0; } | "
    "{ \"$0\" -stay_open True -@ -; kill -KILL 0; }";

// No answer is longer; of one that is, the end is kept.
constexpr qsizetype MaximumAnswer = 1 << 20;

// "-TAG=" in front of a value. Other arguments are names of tags and files, and options.
const QRegularExpression& assignmentStart() {
    static const QRegularExpression expression(QStringLiteral("^-[-:\\w]+#?="));
    return expression;
}

bool hasLineBreak(const QString& text) {
    return text.contains(u'\n') || text.contains(u'\r');
}

bool isPlainLine(const QString& argument) {
    return !argument.isEmpty() && !hasLineBreak(argument) && argument[0] != u'#' && !argument[0].isSpace();
}

QString escaped(const QString& value) {
    QString result = value.toHtmlEscaped();
    return result.replace(u'\n', QLatin1String("&#10;")).replace(u'\r', QLatin1String("&#13;"));
}

// exiftool drops one blank after the "=".
QString withFirstBlankKept(const QString& value) {
    return value.startsWith(u' ') ? u' ' + value : value;
}

// `signal` as the system has it by default, `attributes` set so that the program starts with a clean slate: in a
// process group of its own, with no signal blocked or ignored.
void prepare(posix_spawnattr_t& attributes) {
    sigset_t defaults;
    sigset_t none;
    sigemptyset(&none);
    sigfillset(&defaults);
    sigdelset(&defaults, SIGKILL);
    sigdelset(&defaults, SIGSTOP);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
}

// Waits until the socket can be read (or, where `too` says so, written); false at the deadline.
bool waitFor(int socket, bool writing, const ExiftoolProcess::Deadline& deadline) {
    constexpr qint64 LongestWait = 200;  // milliseconds
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline() - Clock::now()).count();
        if (left <= 0) return false;
        pollfd waited{socket, static_cast<short>(POLLIN | (writing ? POLLOUT : 0)), 0};
        const int ready = ::poll(&waited, 1, static_cast<int>(std::min<qint64>(left, LongestWait)));
        if (ready > 0) return true;
        if (ready < 0 && errno != EINTR) return false;
    }
}

// The answer up to the line that ends it, without that line; nothing as long as it has not come.
std::optional<QByteArray> completeAnswer(const QByteArray& received, const QByteArray& lastLine) {
    if (received.startsWith(lastLine)) return QByteArray();
    const qsizetype at = received.indexOf('\n' + lastLine);
    if (at < 0) return std::nullopt;
    return received.first(at + 1);
}

}  // namespace

Result<QByteArray> exiftoolCommand(const QStringList& arguments, int number) {
    const auto isAssignment = [](const QString& argument) {
        return assignmentStart().match(argument).hasMatch();
    };
    // A value that has a line break is escaped as in HTML, and then every value of the command. (exiftool's own
    // form for such lines, a C string, cannot hold "$" or "@" without a backslash in front.)
    const bool escapes = std::any_of(arguments.begin(), arguments.end(), [&](const QString& argument) {
        return hasLineBreak(argument) && isAssignment(argument);
    });
    QStringList lines;
    if (escapes) lines += QStringLiteral("-E");
    for (const QString& argument : arguments) {
        const auto start = assignmentStart().match(argument);
        if (start.hasMatch()) {
            const QString value = argument.mid(start.capturedLength()).remove(QChar(0));
            lines += start.captured() + withFirstBlankKept(escapes ? escaped(value) : value);
        } else if (isPlainLine(argument)) {
            lines += argument;
        } else {
            return fail(ErrorCode::InvalidValue, Words::tr("exiftool cannot be told “%1”.").arg(argument));
        }
    }
    lines += QStringLiteral("-execute%1\n").arg(number);
    return lines.join(u'\n').toUtf8();
}

Result<std::unique_ptr<ExiftoolProcess>> ExiftoolProcess::start(const QString& program) {
    const auto failed = [&program](int code) {
        return fail(ErrorCode::ProgramFailed,
                    Words::tr("“%1” cannot be started: %2").arg(program, qt_error_string(code)), program);
    };
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return failed(errno);
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        posix_spawn_file_actions_adddup2(&actions, ends[1], standard);
    }
    prepare(attributes);
    QByteArray shell = Shell;
    QByteArray option = "-c";
    QByteArray supervision = Supervision;
    QByteArray path = QFile::encodeName(program);
    const std::array<char*, 5> arguments = {shell.data(), option.data(), supervision.data(), path.data(),
                                            nullptr};
    pid_t id = 0;
    const int error = ::posix_spawn(&id, Shell, &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    if (error != 0) {
        ::close(ends[0]);
        return failed(error);
    }
    return std::unique_ptr<ExiftoolProcess>(new ExiftoolProcess(id, ends[0]));
}

ExiftoolProcess::~ExiftoolProcess() {
    if (group_ != 0) {
        finish();
        const auto deadline = [end = Clock::now() + TimeToEnd] { return end; };
        QByteArray ignored;
        while (waitFor(socket_, false, deadline) && receive(ignored)) {
        }
        kill();
    }
    ::close(socket_);
}

void ExiftoolProcess::finish() {
    ::shutdown(socket_, SHUT_WR);
}

void ExiftoolProcess::kill() {
    if (group_ == 0) return;
    ::kill(-group_, SIGKILL);
    while (::waitpid(group_, nullptr, 0) < 0 && errno == EINTR) {
    }
    group_ = 0;
}

bool ExiftoolProcess::send(QByteArrayView& pending) {
    const ssize_t sent = ::send(socket_, pending.data(), static_cast<std::size_t>(pending.size()),
                                MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent >= 0) pending = pending.sliced(sent);
    return sent >= 0 || errno == EAGAIN || errno == EINTR;
}

bool ExiftoolProcess::receive(QByteArray& answer) {
    std::array<char, 4096> buffer{};
    const ssize_t received = ::recv(socket_, buffer.data(), buffer.size(), MSG_DONTWAIT);
    if (received < 0) return errno == EAGAIN || errno == EINTR;
    answer.append(buffer.data(), received);
    if (answer.size() > 2 * MaximumAnswer) answer = answer.last(MaximumAnswer);
    return received > 0;
}

tl::expected<QByteArray, ExiftoolProcess::Failure> ExiftoolProcess::run(const QByteArray& command, int number,
                                                                        const Deadline& deadline) try {
    if (group_ == 0) return tl::unexpected(Failure::Died);
    const QByteArray lastLine = "{ready" + QByteArray::number(number) + "}\n";
    QByteArrayView pending(command);
    QByteArray received;
    while (true) {
        if (!waitFor(socket_, !pending.isEmpty(), deadline)) return tl::unexpected(Failure::TimedOut);
        if (!pending.isEmpty() && !send(pending)) return tl::unexpected(Failure::Died);
        if (!receive(received)) return tl::unexpected(Failure::Died);
        if (std::optional<QByteArray> answer = completeAnswer(received, lastLine)) return *std::move(answer);
    }
} catch (...) {
    // What it has still to say would be taken for the answer to another command.
    kill();
    throw;
}

}  // namespace zelto
