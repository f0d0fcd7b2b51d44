// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the report of a run up to date, photo by photo, and shows the progress.
#pragma once

#include "batch/batch_observer.h"
#include "batch/batch_request.h"
#include "cli/batch_report.h"
#include "cli/console.h"

#include <functional>

namespace zelto {

class BatchRun;

// Where a run is one of many over a watched folder. Called on the run's thread.
struct RunHooks {
    // Of a photo that failed: why that counts as not having run, such as that it was taken away; null where it does not.
    std::function<QString(const PhotoOutcome&)> excuse;
    // Whether nothing is to be said of a failure, since it was told before.
    std::function<bool(const PhotoOutcome&)> isOldNews;
    // After each photo that had its turn, those left out by the rules for names included.
    std::function<void(const PhotoReport&, const PhotoOutcome*)> photoEnded;
    std::function<void()> runEnded;
};

class RunReporter : public BatchObserver {
  public:
    // All of them outlive it.
    RunReporter(const BatchRequest& request, BatchReport& report, Console& console, RunHooks hooks = {})
        : request_(request), report_(report), console_(console), hooks_(std::move(hooks)) {}

    // The answer to the question after repeated failures, and the run that asks it.
    void answerThrough(BatchRun& run, bool goesOn);

    void runStarted(bool) override {}
    void photoStarted(qint64) override {}
    void photoFinished(const PhotoOutcome& outcome) override;
    void progressed(qint64 done) override;
    void successiveFail() override;
    void combinedPdfFailed(const QString& reason) override;
    void runEnded(const RunReport& report) override;

  private:
    void tellFailure(PhotoReport& photo, const PhotoOutcome& outcome);
    void throwAwayPages();

    const BatchRequest& request_;
    BatchReport& report_;
    Console& console_;
    const RunHooks hooks_;
    BatchRun* run_ = nullptr;
    bool goesOn_ = false;
};

// Shows the warnings of a photo.
void tellWarnings(const PhotoReport& photo, Console& console);

}  // namespace zelto
