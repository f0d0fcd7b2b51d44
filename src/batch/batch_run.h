// SPDX-License-Identifier: GPL-3.0-or-later
// The run over a photo list: which photo is next, what a failure, a pause, a cancel or the answer to a
// question does, and what the run came to. It works on a thread of its own and reports to a BatchObserver;
// what is done with a photo is the PhotoProcessor's. Photos are prepared ahead, but committed strictly in
// list order, and everything a user asks for takes effect between two commits.
//
//   Idle -> Running -> Idle               finished, with a summary
//           Running -> Paused -> Running  the photo in hand at the pause is written again
//           Running -> Asking -> Running  after three failures in a row
//                      Asking -> Stopped  answered "No"; resumeStopped() goes on
//           any     -> Idle               cancelled
//
// All public functions may be called from any thread.
#pragma once

#include "batch/batch_observer.h"
#include "batch/batch_request.h"
#include "batch/photo_processor.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace zelto {

class BatchRun {
  public:
    enum class State { Idle, Running, Asking, Paused, Stopped };

    explicit BatchRun(BatchObserver& observer) : observer_(observer) {}
    // Cancels, and waits for the photo in hand.
    ~BatchRun();

    // Starts a run. False, and nothing done, unless the state is Idle or Stopped. After a cancel it begins
    // when the cancelled one has finished its photo in hand.
    bool ProcessImaging(BatchRequest request, std::unique_ptr<PhotoProcessor> processor);

    // Resumes a run that was stopped after failures, with the photos, options and processor of now, at the row where it
    // stopped. False, and nothing done, in any other state.
    bool resumeStopped(BatchRequest request, std::unique_ptr<PhotoProcessor> processor);

    // Pauses after the photo in hand, or takes that back, or resumes a paused run. A pause that finds no photo to take
    // effect after stays and holds the next run after its first photo.
    void PauseOrResumeProcessingAction();

    // Ends the run for good; a photo in hand is still finished.
    void CancelProcessingAction();

    // The answer to BatchObserver::successiveFail; without effect when nothing was asked.
    void answerSuccessiveFail(bool goOn);

    State state() const;
    bool PauseProcessing() const;

    // Returns when no worker is at work.
    void wait();

  private:
    struct Job;
    class Worker;

    void launch(bool resumed);  // with mutex_ held

    BatchObserver& observer_;
    mutable std::mutex mutex_;  // guards everything below
    std::condition_variable_any changed_;
    State state_ = State::Idle;
    bool PauseProcessing_ = false;
    std::optional<bool> answer_;
    std::shared_ptr<Job> job_;
    int workers_ = 0;
    std::jthread thread_;
};

}  // namespace zelto
