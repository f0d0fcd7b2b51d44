// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/interrupt.h"

#include "cli/batch_report.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

namespace zelto {
namespace {

constexpr std::array Signals = {SIGINT, SIGTERM, SIGHUP};
constexpr char SignalCame = 's';
constexpr char WatchEnds = 'e';

// What a signal handler may use: lock-free, and set before it is installed.
std::atomic<int> signalsCame = 0;
std::array<int, 2> wakeUpPipe = {-1, -1};
static_assert(std::atomic<int>::is_always_lock_free);

void wakeUp(char reason) {
    // Nothing can be done about a full or closed pipe in a signal handler.
    [[maybe_unused]] const ssize_t written = write(wakeUpPipe[1], &reason, 1);
}

extern "C" void onSignal(int) {
    const int savedError = errno;
    if (++signalsCame > 1) _exit(exit_status::Interrupted);
    wakeUp(SignalCame);
    errno = savedError;
}

void handleSignals(void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : Signals) {
        // What the caller had ignored, as nohup does, stays so.
        struct sigaction present {};
        sigaction(signal, nullptr, &present);
        if (present.sa_handler != SIG_IGN) sigaction(signal, &action, nullptr);
    }
}

char nextReason() {
    char reason = WatchEnds;
    while (read(wakeUpPipe[0], &reason, 1) < 0 && errno == EINTR) {
    }
    return reason;
}

}  // namespace

InterruptWatch::InterruptWatch(std::function<void()> onFirst) {
    if (pipe2(wakeUpPipe.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe2");
    signalsCame = 0;
    thread_ = std::thread([onFirst = std::move(onFirst)] {
        while (nextReason() == SignalCame) onFirst();
    });
    handleSignals(onSignal);
}

InterruptWatch::~InterruptWatch() {
    handleSignals(SIG_DFL);
    wakeUp(WatchEnds);
    thread_.join();
    for (const int end : wakeUpPipe) close(end);
}

}  // namespace zelto
