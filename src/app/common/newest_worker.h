// SPDX-License-Identifier: GPL-3.0-or-later
// A thread for work that is soon out of date: at most one job waits, and a newer one takes its place. Lives
// until it is destroyed, so that what a thread warms up (fonts, above all) stays warm.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace zelto {

template <class Job>
class NewestWorker {
  public:
    // Makes one job of a waiting one and the newer one that takes its place.
    using Merge = std::function<Job(Job waiting, Job newer)>;

    explicit NewestWorker(
        std::function<void(Job)> work, Merge merge = [](Job, Job newer) { return newer; })
        : work_(std::move(work)), merge_(std::move(merge)), thread_([this](const std::stop_token& stop) {
              while (std::optional<Job> job = next(stop)) work_(std::move(*job));
          }) {}

    // Waits for the job in hand; the waiting one is dropped.
    ~NewestWorker() { stop(); }
    NewestWorker(const NewestWorker&) = delete;
    NewestWorker& operator=(const NewestWorker&) = delete;

    void post(Job job) {
        {
            const std::lock_guard lock(mutex_);
            waiting_ = waiting_ ? merge_(std::move(*waiting_), std::move(job)) : std::move(job);
        }
        wake_.notify_one();
    }

    // Whether a newer job waits; for work in hand that wants to give way.
    bool hasNewer() const {
        const std::lock_guard lock(mutex_);
        return waiting_.has_value();
    }

    void stop() {
        thread_.request_stop();
        if (thread_.joinable()) thread_.join();
    }

  private:
    std::optional<Job> next(const std::stop_token& stop) {
        std::unique_lock lock(mutex_);
        if (!wake_.wait(lock, stop, [this] { return waiting_.has_value(); })) return std::nullopt;
        if (stop.stop_requested()) return std::nullopt;
        return std::exchange(waiting_, std::nullopt);
    }

    std::function<void(Job)> work_;
    Merge merge_;
    mutable std::mutex mutex_;
    std::condition_variable_any wake_;
    std::optional<Job> waiting_;
    std::jthread thread_;
};

}  // namespace zelto
