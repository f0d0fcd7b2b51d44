// SPDX-License-Identifier: GPL-3.0-or-later
// The run in the window: starts it with what the window holds, shows how it goes, passes on what the user asks for,
// and switches the controls. What a run does, and when, are BatchRun's rules. Main thread only.
#pragma once

#include "app/run/result_viewer.h"
#include "app/run/run_feed.h"
#include "app/run/run_plan.h"
#include "app/run/run_questions.h"
#include "app/window/result_bar.h"
#include "batch/batch_run.h"
#include "batch/run_pace.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

namespace zelto {

class MainWindow;
class MyGlobalInstance;

// What a run stands on outside the window; tests put their own here.
struct RunParts {
    std::function<std::unique_ptr<PhotoProcessor>(OutputWriter::Settings)> makeProcessor;
    ResultViewer results;
};
RunParts standardRunParts();

class RunController : public QObject {
    Q_OBJECT

  public:
    // Both outlive it.
    RunController(MainWindow& window, MyGlobalInstance& shared, RunParts parts = standardRunParts());
    // Cancels, and waits for the photo in hand.
    ~RunController() override;

    // Starts a run, after asking where it would replace photos of the list or files that are there.
    void ProcessImaging(const OutputOptions& options);
    // The same as the last time, for the photos that failed; the others keep their outputs and how they went.
    void retryFailed();
    void PauseOrResumeProcessingAction();
    void CancelProcessingAction();

    // From the start of a run to its end, pauses included.
    bool isUnderWay() const;

  private:
    using Plan = std::shared_ptr<const RunPlan>;

    enum class Photos { Checked, Failed };

    void start(const OutputOptions& options, Photos which);
    Plan makePlan(const OutputOptions& options, Photos which);
    void planAndAsk(const OutputOptions& options, Photos which);
    void launch(const Plan& plan);
    void workerStarts();
    void stopFollowing();
    void resumeStopped();
    void follow(const RunNews& news);
    void showOutcomes(const std::vector<PhotoOutcome>& outcomes);
    void showPhotoInHand(qint64 row);
    void showProgress(qint64 done);
    void askWhetherToGoOn();
    void ended(const RunReport& report);
    void ShowResults(const RunReport& report);
    RunResult counted() const;
    RunResult resultOf(const RunReport& report) const;
    bool holdsPhoto(qint64 row) const;
    bool mayClose();
    void dropQuestion();

    MainWindow& window_;
    MyGlobalInstance& shared_;
    RunParts parts_;
    Plan plan_;
    qint64 done_ = 0;          // rows that have had their turn
    qint64 photoInHand_ = 0;   // its row
    int failed_ = 0;           // in this run
    bool isFollowed_ = false;  // the window shows where the run is
    RunPace pace_;
    QString pdfFailure_;
    RunReport report_;                // of the run that ended last
    QPointer<QMessageBox> question_;  // that only makes sense while the run goes on
    RunQuestions questions_;
    RunFeed feed_;
    BatchRun run_;  // tells feed_
};

}  // namespace zelto
