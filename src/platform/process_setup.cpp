// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/process_setup.h"

#include "platform/words.h"

#include <QScopeGuard>
#include <QThreadPool>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <initializer_list>
#include <latch>
#include <system_error>
#include <thread>
#include <vector>

namespace zelto {
namespace {

// How many threads the system lets run at once, up to `wanted`. The pool cannot tell: it counts on each it asks for.
int threadsAllowed(int wanted) {
    std::latch all(1);
    std::vector<std::jthread> threads;
    threads.reserve(static_cast<std::size_t>(wanted));
    const auto done = qScopeGuard([&] { all.count_down(); });
    try {
        while (threads.size() < static_cast<std::size_t>(wanted))
            threads.emplace_back([&all] { all.wait(); });
    } catch (const std::system_error&) {
        // No more than these.
    }
    return static_cast<int>(threads.size());
}

}  // namespace

void prepareProcess() {
    // Opening takes the lowest free number, so in ascending order each gets its own.
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(standard, F_GETFD) < 0)
            ::open("/dev/null", standard == STDIN_FILENO ? O_RDONLY : O_WRONLY);  // NOLINT: kept open
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

Result<void> startDrawingThreads() {
    QThreadPool& pool = *QThreadPool::globalInstance();
    const int threads = threadsAllowed(pool.maxThreadCount());
    if (threads == 0) return fail(ErrorCode::OutOfMemory, Words::tr("no thread can be started"));
    pool.setMaxThreadCount(threads);
    pool.setExpiryTimeout(-1);
    std::latch all(threads);
    int started = 0;
    // Each waits for all, and must not where memory does not suffice for the rest.
    const auto done = qScopeGuard([&] {
        all.count_down(threads - started);
        pool.waitForDone();
    });
    for (; started < threads; ++started) pool.start([&all] { all.arrive_and_wait(); });
    return {};
}

void keepLibrariesQuiet() {
    // In the GNU C library standard error is a variable that may be set like any other.
    if (std::FILE* const nowhere = std::fopen("/dev/null", "we")) stderr = nowhere;
}

void printError(const QByteArray& text) {
    for (qsizetype done = 0; done < text.size();) {
        const auto left = static_cast<std::size_t>(text.size() - done);
        const ssize_t written = ::write(STDERR_FILENO, text.constData() + done, left);
        if (written < 0 && errno != EINTR) return;
        done += std::max<ssize_t>(written, 0);
    }
}

}  // namespace zelto
