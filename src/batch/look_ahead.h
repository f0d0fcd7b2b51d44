// SPDX-License-Identifier: GPL-3.0-or-later
// Prepares the next photos of a run on a few threads of its own and hands them out in list order. Photos are
// begun in that order too, each as soon as the memory it will need fits into what the photos in flight leave
// of the budget; one that needs more than the whole budget is worked on alone. A photo that reads what an
// earlier one is about to write is not begun before that is committed, so the outcome never depends on how
// many threads there are.
#pragma once

#include "batch/photo_processor.h"
#include "platform/file_identity.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

namespace zelto {

struct LookAheadLimits {
    int jobs = 1;             // photos prepared at a time
    qint64 memoryBudget = 0;  // bytes
    bool givesWay = false;    // whether everything else on the machine goes before it: a window stays quick

    // One thread per core and a quarter of the available memory.
    static LookAheadLimits forThisMachine();
};

class LookAhead {
  public:
    // `nextTask` is asked for one photo after another, from any thread but one call at a time; after the last
    // it keeps giving nothing.
    LookAhead(PhotoProcessor& processor, std::function<std::optional<PhotoTask>()> nextTask,
              LookAheadLimits limits);
    // Waits for the photos being prepared and drops them.
    ~LookAhead();

    struct Ready {
        PhotoTask task;
        Result<PreparedPhoto> photo;
    };

    // Waits for the next photo in order; nothing after the last. Whoever took a photo calls release() before
    // taking another, once it has been committed.
    std::optional<Ready> take();
    void release();

  private:
    struct Slot {
        PhotoTask task;
        FileIdentity outputFile;
        qint64 bytes = 0;  // needed while it is prepared, held from then on
        std::optional<Result<PreparedPhoto>> result;
    };

    void work(const std::stop_token& stop);
    bool prepareNext(const std::stop_token& stop);
    Slot* admit(const std::stop_token& stop);
    bool hasRoomFor(qint64 bytes, const FileIdentity& sourceFile) const;

    PhotoProcessor& processor_;
    const std::function<std::optional<PhotoTask>()> nextTask_;
    const LookAheadLimits limits_;

    std::mutex admission_;  // held by the one thread that begins the next photo

    std::mutex mutex_;  // guards everything below
    bool exhausted_ = false;
    std::condition_variable_any changed_;
    std::deque<Slot> inFlight_;  // in list order; the first is the next to be handed out
    qint64 bytesInFlight_ = 0;

    std::vector<std::jthread> threads_;  // last, so that they end before what they use
};

}  // namespace zelto
