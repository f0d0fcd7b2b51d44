// SPDX-License-Identifier: GPL-3.0-or-later
// A limit for the processor time of decoders whose work cannot be told from a file's headers, so that a small file
// cannot keep the program busy for hours. It lies far above what any real photo takes: a few seconds, and more for
// large files.
#pragma once

#include <QtGlobal>

#include <atomic>
#include <ctime>
#include <exception>

namespace zelto {

struct OutOfDecodingTime : std::exception {};

// What this thread has worked so far, in nanoseconds.
inline qint64 threadTime() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

class DecodingTime {
  public:
    explicit DecodingTime(qint64 fileBytes, qint64 secondsForAny = 8)
        : left_(secondsForAny * 1'000'000'000 + fileBytes * NanosecondsPerByte) {}

    // The thread that made this asks, now and then.
    bool isLeft() {
        const qint64 now = threadTime();
        const qint64 worked = now - lastAsked_;
        lastAsked_ = now;
        return take(worked);
    }

    // For what other threads have worked: whether some is left after it. Any thread.
    bool take(qint64 nanoseconds) { return (left_ -= nanoseconds) > 0; }

  private:
    static constexpr qint64 NanosecondsPerByte = 4000;  // some 4 s a megabyte

    std::atomic<qint64> left_;
    qint64 lastAsked_ = threadTime();
};

}  // namespace zelto
