// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_controller.h"

#include "app/common/in_background.h"
#include "app/common/messages.h"
#include "app/common/my_global_instance.h"
#include "app/window/main_window.h"
#include "platform/path_parts.h"

#include <QApplication>
#include <QDateTime>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zelto {

RunParts standardRunParts() {
    return {
        [](OutputWriter::Settings settings) { return std::make_unique<OutputWriter>(std::move(settings)); },
        desktopResultViewer()};
}

RunController::RunController(MainWindow& window, MyGlobalInstance& shared, RunParts parts)
    : window_(window), shared_(shared), parts_(std::move(parts)), questions_(window), run_(feed_) {
    connect(&window_.controller(), &ZeltoController::ProcessImaging, this, &RunController::ProcessImaging);
    connect(&feed_, &RunFeed::arrived, this, &RunController::follow);
    const ProcessingBar& bar = window_.processing();
    connect(bar.PauseOrResumeProcessing(), &QPushButton::clicked, this,
            &RunController::PauseOrResumeProcessingAction);
    connect(bar.CancelProcessing(), &QPushButton::clicked, this, &RunController::CancelProcessingAction);
    WindowActions& actions = window_.actions();
    actions.connectTo(Act::PauseRun, [this] { PauseOrResumeProcessingAction(); });
    actions.connectTo(Act::CancelRun, [this] { CancelProcessingAction(); });
    actions.connectTo(Act::RetryFailed, [this] { retryFailed(); });
    for (const auto& [act, button] : {std::pair(Act::PauseRun, bar.PauseOrResumeProcessing()),
                                      std::pair(Act::CancelRun, bar.CancelProcessing())}) {
        connect(actions[act], &QAction::changed, button,
                [action = actions[act], button = button] { button->setToolTip(action->toolTip()); });
    }
    const ResultBar& result = window_.result();
    connect(&result, &ResultBar::showTroubles, this,
            [this] { window_.photos().showPhotos(PhotoFilter::FailedOrWarned); });
    connect(&result, &ResultBar::retryFailed, this, &RunController::retryFailed);
    connect(&result, &ResultBar::openResults, this, [this] { ShowOutputImages(report_, parts_.results); });
    window_.setCloseQuestion([this] { return mayClose(); });
}

RunController::~RunController() {
    window_.setCloseQuestion({});
}

bool RunController::isUnderWay() const {
    const BatchRun::State state = run_.state();
    return state != BatchRun::State::Idle && state != BatchRun::State::Stopped;
}

// ---- starting

void RunController::ProcessImaging(const OutputOptions& options) {
    start(options, Photos::Checked);
}

void RunController::retryFailed() {
    if (plan_ && window_.photos().hasPhotosFor(PhotoFilter::Failed))
        start(plan_->request.options, Photos::Failed);
}

void RunController::start(const OutputOptions& options, Photos which) {
    if (isUnderWay()) return;
    window_.DisableControls();
    questions_.begin();
    planAndAsk(options, which);
}

RunController::Plan RunController::makePlan(const OutputOptions& options, Photos which) {
    RunPlan plan = planRun(window_.photos(), window_.document(), options,
                           questions_.rulesFor(options.OutputPath), shared_.SettingDirectory);
    if (which == Photos::Failed) {
        for (std::size_t row = 0; row < plan.request.photos.size(); ++row) {
            BatchPhoto& photo = plan.request.photos[row];
            const bool failed = window_.photos().images()[row].Status == PhotoStatus::Failed;
            // The names of the others stay theirs.
            photo.isElsewhere = photo.checked && !failed;
            photo.checked = failed;
        }
    }
    plan.writing.showGlance = [this](qint64 row, const QImage& glance) { feed_.showGlance(row, glance); };
    return std::make_shared<const RunPlan>(std::move(plan));
}

// Looking for every output on the disk takes a while.
void RunController::planAndAsk(const OutputOptions& options, Photos which) {
    const Plan plan = makePlan(options, which);
    constexpr int PatienceMilliseconds = 300;
    auto* patience = new QTimer(this);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, this,
            [this] { window_.statusBar()->showMessage(tr("Looking at the names of the outputs...")); });
    patience->start(PatienceMilliseconds);
    inBackground(
        this, [plan] { return planOutputs(plan->request, QDateTime::currentDateTime()); },
        [this, plan, which, patience](const OutputPlan& outputs) {
            patience->deleteLater();
            window_.statusBar()->clearMessage();
            const OutputOptions& chosen = plan->request.options;
            questions_.ask(outputs, chosen.OutputPath,
                           [this, plan, chosen, which](RunQuestions::Answer answer) {
                               switch (answer) {
                                   case RunQuestions::Answer::Start:
                                       launch(plan);
                                       return;
                                   case RunQuestions::Answer::PlanAgain:
                                       planAndAsk(chosen, which);
                                       return;
                                   case RunQuestions::Answer::ChooseAnotherFolder:
                                       // Not from within the closing of the question: the options are a dialog of their
                                       // own.
                                       QMetaObject::invokeMethod(&window_.controller(),
                                                                 &ZeltoController::StartWatermarking,
                                                                 Qt::QueuedConnection);
                                       break;
                                   case RunQuestions::Answer::Cancel:
                                       break;
                               }
                               window_.EnableControls();
                           });
        });
}

void RunController::launch(const Plan& plan) {
    plan_ = plan;
    done_ = 0;
    photoInHand_ = 0;
    failed_ = 0;
    std::vector<RowOutcome> begun;  // rows that have an outcome from before
    for (std::size_t row = 0; row < plan_->request.photos.size(); ++row) {
        const bool isFresh = window_.photos().images()[row].Status == PhotoStatus::NotProcessed;
        if (!plan_->request.photos[row].isElsewhere && !isFresh)
            begun.push_back({static_cast<int>(row), PhotoStatus::NotProcessed, {}});
    }
    window_.photos().model().setOutcomes(begun);
    window_.processing().begin(static_cast<int>(plan_->request.photos.size()));
    // A pause that took no effect in the last run holds this one after its first photo.
    window_.processing().setPaused(run_.PauseProcessing());
    workerStarts();
    window_.photos().ChangeImage(QStringLiteral("0"));
    feed_.expectRun();
    run_.ProcessImaging(plan_->request, parts_.makeProcessor(plan_->writing));
}

void RunController::workerStarts() {
    isFollowed_ = true;
    window_.DisableControls();
    window_.photos().showAllPhotos();
    window_.preview().beginRun();
    window_.ShowProcessingControls();
    window_.processing().PauseOrResumeProcessing()->setFocus();
    window_.processing().setPace({});
    pace_.begin(
        plan_->photosFrom(std::min<qint64>(done_, static_cast<qint64>(plan_->request.photos.size()))));
}

// From here on the window shows what the user selects, whatever a cancelled run still tells.
void RunController::stopFollowing() {
    isFollowed_ = false;
    window_.preview().endRun();
}

// ---- what the user asks for

void RunController::PauseOrResumeProcessingAction() {
    const bool isStopped = run_.state() == BatchRun::State::Stopped;
    if (isStopped && run_.PauseProcessing()) {
        resumeStopped();
        return;
    }
    run_.PauseOrResumeProcessingAction();
    const bool pauses = run_.PauseProcessing();
    window_.processing().setPaused(pauses);
    if (!pauses) {
        workerStarts();
        window_.processing().tell(tr("Going on"));
    } else if (!isStopped) {
        window_.processing().tell(tr("Pausing"));
    }
}

// Since the run was stopped, the list and the stack may have changed: it goes on with what they are now.
void RunController::resumeStopped() {
    plan_ = makePlan(plan_->request.options, Photos::Checked);
    window_.processing().ProcessingIndicator()->setMaximum(static_cast<int>(plan_->request.photos.size()));
    window_.processing().setPaused(false);
    workerStarts();
    run_.resumeStopped(plan_->request, parts_.makeProcessor(plan_->writing));
}

void RunController::CancelProcessingAction() {
    window_.processing().tell(tr("Cancelled"));
    window_.HideProcessingControls();
    run_.CancelProcessingAction();
    window_.processing().setPaused(false);
    dropQuestion();
    stopFollowing();
    window_.EnableControls();
    window_.photoList().setFocus();
}

// A question may be dropped from within its own answer.
void RunController::dropQuestion() {
    if (question_) question_->deleteLater();
    question_.clear();
}

bool RunController::mayClose() {
    if (!isUnderWay()) return true;
    if (question_ && question_->isVisible()) return false;
    question_ = openMessageSheet(&window_,
                                 {QMessageBox::Question,
                                  tr("Photos Are Being Watermarked"),
                                  tr("%1 of %2 are done. The photo in hand will be finished.")
                                      .arg(done_)
                                      .arg(plan_->request.photos.size()),
                                  {tr("Stop and Quit"), tr("Keep Running")},
                                  1,
                                  1},
                                 [this](int answer) {
                                     if (answer != 0) return;
                                     CancelProcessingAction();
                                     window_.close();
                                 });
    return false;
}

// ---- showing how it goes

void RunController::follow(const RunNews& news) {
    if (!news.outcomes.empty()) showOutcomes(news.outcomes);
    if (news.report && news.report->end == RunEnd::Cancelled && !isUnderWay()) {
        constexpr int Milliseconds = 15000;
        window_.statusBar()->showMessage(tr("Cancelled") + QStringLiteral(" · ") + counted().counts,
                                         Milliseconds);
    }
    if (!isFollowed_) return;
    if (news.photoInHand) showPhotoInHand(*news.photoInHand);
    if (news.glance && holdsPhoto(news.glance->row)) window_.preview().showRunPicture(news.glance->picture);
    if (news.done) showProgress(*news.done);
    if (news.pdfFailure) pdfFailure_ = *news.pdfFailure;
    if (news.asks && run_.state() == BatchRun::State::Asking) askWhetherToGoOn();
    if (news.report) ended(*news.report);
}

// Whether the list still holds the photo that the run has at `row`: once a run is cancelled the list may change while
// the last photo is being finished.
bool RunController::holdsPhoto(qint64 row) const {
    const auto place = static_cast<std::size_t>(row);
    const std::vector<Image>& images = window_.photos().images();
    return plan_ && place < images.size() && images[place].ImagePath == plan_->request.photos[place].path;
}

void RunController::showOutcomes(const std::vector<PhotoOutcome>& outcomes) {
    std::vector<RowOutcome> rows;
    for (const PhotoOutcome& outcome : outcomes) {
        pace_.advance();
        failed_ += outcome.succeeded() ? 0 : 1;
        if (!holdsPhoto(outcome.row)) continue;
        QStringList warnings;
        for (const PhotoWarning& warning : outcome.warnings) warnings.append(warning.text);
        if (outcome.jpeg && !outcome.jpeg->isLossless)
            warnings.append(tr("Encoded as usual: %1").arg(outcome.jpeg->reason));
        rows.push_back({static_cast<int>(outcome.row),
                        outcome.succeeded() ? PhotoStatus::Written : PhotoStatus::Failed, outcome.error,
                        warnings});
    }
    window_.photos().model().setOutcomes(rows);
}

void RunController::showPhotoInHand(qint64 row) {
    photoInHand_ = row;
    if (!holdsPhoto(row)) return;
    window_.processing().setPhoto(
        lastPathComponent(plan_->request.photos[static_cast<std::size_t>(row)].path));
    window_.photoList().follow(static_cast<int>(row));
}

void RunController::showProgress(qint64 done) {
    done_ = done;
    window_.processing().setProgress(static_cast<int>(done),
                                     failed_ > 0 ? tr("%Ln failed", nullptr, failed_) : QString());
    if (run_.PauseProcessing()) return;
    if (const auto figures = pace_.figures()) {
        window_.processing().setPace(tr("%1 photos/s, %2 left").arg(figures->rate(), figures->timeLeft()));
    }
}

void RunController::askWhetherToGoOn() {
    question_ = openMessageSheet(
        &window_, {QMessageBox::Warning, SuccessiveFailTitle, SuccessiveFailText, {tr("OK"), tr("No")}, 0, 1},
        [this](int answer) { run_.answerSuccessiveFail(answer == 0); });
}

void RunController::ended(const RunReport& report) {
    if (report.end == RunEnd::Cancelled) return;
    if (report.end != RunEnd::Paused) stopFollowing();
    if (report.end == RunEnd::Paused && run_.state() == BatchRun::State::Paused) {
        window_.processing().tell(tr("Paused"));
    } else if (report.end == RunEnd::Stopped) {
        window_.processing().tell(tr("Stopped"));
        window_.EnableControls();
    } else if (report.end == RunEnd::Finished) {
        const QString reason = std::exchange(pdfFailure_, {});
        if (reason.isEmpty()) {
            ShowResults(report);
        } else {
            openMessageSheet(&window_, {QMessageBox::Warning, SummaryTitle, reason},
                             [this, report](int) { ShowResults(report); });
        }
    }
}

// Counts leave out what there is none of.
RunResult RunController::counted() const {
    RunResult result;
    int written = 0;
    for (const Image& photo : window_.photos().images()) {
        written += photo.Status == PhotoStatus::Written ? 1 : 0;
        result.failed += photo.Status == PhotoStatus::Failed ? 1 : 0;
        result.warned += photo.Warnings.isEmpty() ? 0 : 1;
    }
    QStringList counts = {tr("%Ln written", nullptr, written)};
    if (result.failed > 0) counts.append(tr("%Ln failed", nullptr, result.failed));
    if (result.warned > 0) counts.append(tr("%Ln warned", nullptr, result.warned));
    result.counts = counts.join(QStringLiteral(", "));
    return result;
}

RunResult RunController::resultOf(const RunReport& report) const {
    RunResult result = counted();
    result.message = report.message();
    if (!report.OutPutImageList.isEmpty())
        result.open = report.opensCombinedPdf() ? tr("Open P&DF") : tr("Open Fol&der");
    return result;
}

void RunController::ShowResults(const RunReport& report) {
    dropQuestion();
    report_ = report;
    window_.EnableControls();
    window_.HideProcessingControls();
    window_.result().tell(resultOf(report));
    window_.photoList().setFocus();
    QApplication::alert(&window_);
}

}  // namespace zelto
