// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/parallel_rows.h"

#include <QThread>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <exception>
#include <latch>
#include <memory>
#include <mutex>
#include <new>
#include <thread>
#include <vector>

namespace zelto {
namespace {

// Large enough that handing a band out costs nothing beside it, small enough that the cores end together.
constexpr std::int64_t PixelsPerBand = 1 << 18;

// The bands of one call. Whoever has time takes the next one; a helper that comes late finds none left, so
// the caller waits only for bands that somebody has begun.
class Bands {
  public:
    Bands(int rows, int count, const std::function<void(int, int)>& body)
        : rows_(rows), count_(count), body_(&body), unfinished_(count) {}

    void work() {
        for (int band = next_++; band < count_; band = next_++) {
            try {
                (*body_)(edge(band), edge(band + 1));
            } catch (const std::bad_alloc&) {
                ranOutOfMemory_ = true;
            }
            unfinished_.count_down();
        }
    }

    void waitUntilDone() {
        unfinished_.wait();
        if (ranOutOfMemory_) throw std::bad_alloc();
    }

  private:
    int edge(int band) const { return static_cast<int>(std::int64_t{rows_} * band / count_); }

    const int rows_;
    const int count_;
    const std::function<void(int, int)>* const body_;  // outlives every band, though not a late helper
    std::atomic<int> next_ = 0;
    std::atomic<bool> ranOutOfMemory_ = false;
    std::latch unfinished_;
};

// One thread fewer than there are cores: the caller is the last one.
class Helpers {
  public:
    Helpers() {
        try {
            for (int i = 1; i < QThread::idealThreadCount(); ++i) threads_.emplace_back([this] { run(); });
        } catch (const std::exception&) {
            // Fewer of them do as well.
        }
    }

    ~Helpers() {
        {
            const std::lock_guard lock(mutex_);
            ending_ = true;
        }
        wake_.notify_all();
        for (std::thread& thread : threads_) thread.join();
    }

    Helpers(const Helpers&) = delete;
    Helpers& operator=(const Helpers&) = delete;

    int count() const { return static_cast<int>(threads_.size()); }

    void call(const std::shared_ptr<Bands>& bands, int helpers) {
        try {
            const std::lock_guard lock(mutex_);
            for (int i = 0; i < helpers; ++i) waiting_.push_back(bands);
        } catch (const std::bad_alloc&) {
            // The caller does all of them.
        }
        wake_.notify_all();
    }

  private:
    void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            wake_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
            if (ending_) return;
            const std::shared_ptr<Bands> bands = std::move(waiting_.front());
            waiting_.pop_front();
            lock.unlock();
            bands->work();
            lock.lock();
        }
    }

    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::shared_ptr<Bands>> waiting_;
    bool ending_ = false;
    std::vector<std::thread> threads_;
};

}  // namespace

void parallelRows(int rows, int rowWidth, const std::function<void(int, int)>& body) {
    if (rows <= 0) return;
    const std::int64_t pixels = std::int64_t{rows} * std::max(rowWidth, 1);
    const int count = static_cast<int>(std::clamp<std::int64_t>(pixels / PixelsPerBand, 1, rows));
    if (count == 1) {
        body(0, rows);
        return;
    }
    static Helpers helpers;
    const auto bands = std::make_shared<Bands>(rows, count, body);
    helpers.call(bands, std::min(helpers.count(), count - 1));
    bands->work();
    bands->waitUntilDone();
}

}  // namespace zelto
