// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/look_ahead.h"

#include "pictures/picture_memory.h"
#include "platform/machine_limits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <exception>
#include <system_error>
#include <utility>

namespace zelto {
namespace {

// Finished photos wait for a slow one before them as encoded files, which are small: the memory budget alone
// would let thousands pile up while a run is asking its question.
constexpr std::size_t PhotosInFlightPerJob = 8;

Result<PreparedPhoto> prepared(PhotoProcessor& processor, const PhotoTask& task) {
    try {
        return processor.prepare(task);
    } catch (const std::bad_alloc&) {
        return outOfMemory(task.source);
    } catch (const std::exception& exception) {
        return fail(ErrorCode::InvalidValue, QString::fromLocal8Bit(exception.what()), task.source);
    }
}

qint64 memoryNeeded(PhotoProcessor& processor, const PhotoTask& task) {
    try {
        return processor.memoryNeeded(task);
    } catch (const std::exception&) {
        return 0;  // preparing it will tell
    }
}

// Has the scheduler prefer other threads to this one for good. Linux counts niceness by thread.
void giveWay() {
    constexpr int Niceness = 10;
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), Niceness);
}

}  // namespace

LookAheadLimits LookAheadLimits::forThisMachine() {
    return {static_cast<int>(std::max(1U, std::thread::hardware_concurrency())), availableMemory() / 4};
}

LookAhead::LookAhead(PhotoProcessor& processor, std::function<std::optional<PhotoTask>()> nextTask,
                     LookAheadLimits limits)
    : processor_(processor), nextTask_(std::move(nextTask)), limits_(limits) {
    threads_.reserve(static_cast<std::size_t>(limits_.jobs));
    try {
        for (int i = 0; i < limits_.jobs; ++i) {
            threads_.emplace_back([this](const std::stop_token& stop) {
                if (limits_.givesWay) giveWay();
                work(stop);
            });
        }
    } catch (const std::system_error&) {
        // With fewer threads than asked for, or at worst on the caller's own, the photos are the same.
    }
}

LookAhead::~LookAhead() {
    // All are told before the first is waited for.
    for (std::jthread& thread : threads_) thread.request_stop();
}

std::optional<LookAhead::Ready> LookAhead::take() {
    if (threads_.empty()) prepareNext({});
    std::unique_lock lock(mutex_);
    changed_.wait(lock,
                  [this] { return inFlight_.empty() ? exhausted_ : inFlight_.front().result.has_value(); });
    if (inFlight_.empty()) return std::nullopt;
    Slot& first = inFlight_.front();
    return Ready{first.task, std::move(*first.result)};
}

void LookAhead::release() {
    const std::lock_guard lock(mutex_);
    bytesInFlight_ -= inFlight_.front().bytes;
    inFlight_.pop_front();
    changed_.notify_all();
}

void LookAhead::work(const std::stop_token& stop) {
    while (prepareNext(stop)) {
    }
}

// False when there is no next photo or the thread is to end.
bool LookAhead::prepareNext(const std::stop_token& stop) {
    Slot* const slot = admit(stop);
    if (slot == nullptr) return false;
    Result<PreparedPhoto> result = prepared(processor_, slot->task);
    const std::lock_guard lock(mutex_);
    const qint64 held = result ? result->bytes() : 0;
    bytesInFlight_ += held - slot->bytes;
    slot->bytes = held;
    slot->result.emplace(std::move(result));
    changed_.notify_all();
    return true;
}

// The slot of the next photo, once there is room for it; null when there is none or the thread is to end.
// Others queue behind the one thread in here, so that a large photo is not overtaken by small ones for ever.
LookAhead::Slot* LookAhead::admit(const std::stop_token& stop) {
    const std::lock_guard turn(admission_);
    if (stop.stop_requested()) return nullptr;
    std::optional<PhotoTask> task = nextTask_();
    const qint64 bytes = task ? memoryNeeded(processor_, *task) : 0;
    if (task) task->memory = bytes;
    const FileIdentity sourceFile = task ? fileIdentity(task->source) : FileIdentity();
    const FileIdentity outputFile = task ? fileIdentity(task->output) : FileIdentity();

    std::unique_lock lock(mutex_);
    if (!task) {
        exhausted_ = true;
        changed_.notify_all();
        return nullptr;
    }
    if (!changed_.wait(lock, stop, [&] { return hasRoomFor(bytes, sourceFile); })) return nullptr;
    bytesInFlight_ += bytes;
    // A deque keeps its other elements where they are when one is added or removed at an end.
    return &inFlight_.emplace_back(Slot{std::move(*task), outputFile, bytes, std::nullopt});
}

bool LookAhead::hasRoomFor(qint64 bytes, const FileIdentity& sourceFile) const {
    if (inFlight_.empty()) return true;
    if (inFlight_.size() >= static_cast<std::size_t>(limits_.jobs) * PhotosInFlightPerJob) return false;
    if (bytesInFlight_ + bytes > limits_.memoryBudget) return false;
    return std::none_of(inFlight_.begin(), inFlight_.end(),
                        [&](const Slot& slot) { return isSameFile(slot.outputFile, sourceFile); });
}

}  // namespace zelto
