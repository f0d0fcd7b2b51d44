// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_controller.h"

#include "app/common/in_background.h"
#include "app/common/messages.h"
#include "app/common/my_global_instance.h"
#include "app/window/main_window.h"
#include "platform/path_parts.h"

#include <QDateTime>

#include <utility>

namespace zelto {
namespace {

constexpr qsizetype MostNames = 5;  // that a question lists

QString listed(const QStringList& paths) {
    QStringList names;
    for (const QString& path : paths.mid(0, MostNames)) names.append(lastPathComponent(path));
    const qsizetype more = paths.size() - names.size();
    if (more > 0) names.append(RunController::tr("and %1 more").arg(more));
    return names.join(QLatin1Char('\n'));
}

}  // namespace

RunParts standardRunParts() {
    return {
        [](OutputWriter::Settings settings) { return std::make_unique<OutputWriter>(std::move(settings)); },
        desktopResultViewer()};
}

RunController::RunController(MainWindow& window, MyGlobalInstance& shared, RunParts parts)
    : window_(window), shared_(shared), parts_(std::move(parts)), run_(feed_) {
    connect(&window_.controller(), &ZeltoController::ProcessImaging, this, &RunController::ProcessImaging);
    connect(&feed_, &RunFeed::arrived, this, &RunController::follow);
    const ProcessingBar& bar = window_.processing();
    connect(bar.PauseOrResumeProcessing(), &QPushButton::clicked, this,
            &RunController::PauseOrResumeProcessingAction);
    connect(bar.CancelProcessing(), &QPushButton::clicked, this, &RunController::CancelProcessingAction);
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
    if (isUnderWay()) return;
    window_.DisableControls();
    const auto plan = std::make_shared<const RunPlan>(
        planRun(window_.photos(), window_.document(), options, shared_.SettingDirectory));
    // Looking for every photo on the disk takes a while.
    inBackground(
        this, [plan] { return planOutputs(plan->request, QDateTime::currentDateTime()).replacedPhotos; },
        [this, plan](const QStringList& replaced) {
            if (replaced.isEmpty()) {
                launch(plan);
            } else {
                askBeforeReplacing(plan, replaced);
            }
        });
}

void RunController::askBeforeReplacing(const Plan& plan, const QStringList& replaced) {
    enum Answer { Replace, ChooseAnotherFolder, Cancel };
    const QString title = replaced.size() == 1 ? tr("A Photo Would Be Replaced")
                                               : tr("%1 Photos Would Be Replaced").arg(replaced.size());
    const QString text =
        tr("Their watermarked copies would take the place of the originals, which would be lost:\n%1");
    question_ = openMessageSheet(&window_,
                                 {QMessageBox::Warning,
                                  title,
                                  text.arg(listed(replaced)),
                                  {tr("Replace"), tr("Choose Another Folder"), tr("Cancel")},
                                  Cancel,
                                  Cancel},
                                 [this, plan](int answer) {
                                     if (answer == Replace) {
                                         launch(plan);
                                         return;
                                     }
                                     window_.EnableControls();
                                     if (answer == ChooseAnotherFolder) {
                                         // Not from within the closing of the question: the options are a dialog of their own.
                                         QMetaObject::invokeMethod(&window_.controller(),
                                                                   &ZeltoController::StartWatermarking,
                                                                   Qt::QueuedConnection);
                                     }
                                 });
}

void RunController::launch(const Plan& plan) {
    plan_ = plan;
    done_ = 0;
    photoInHand_ = 0;
    window_.photos().model().markUnprocessed();
    window_.photos().ChangeImage(QStringLiteral("0"));
    window_.processing().begin(static_cast<int>(plan_->request.photos.size()));
    // A pause that took no effect in the last run holds this one after its first photo.
    window_.processing().setPaused(run_.PauseProcessing());
    workerStarts();
    run_.ProcessImaging(plan_->request, parts_.makeProcessor(plan_->writing));
}

void RunController::workerStarts() {
    window_.DisableControls();
    window_.ShowProcessingControls();
    window_.processing().PauseOrResumeProcessing()->setFocus();
    window_.processing().setPace({});
    pace_.begin(plan_->photosFrom(done_));
}

// ---- what the user asks for

void RunController::PauseOrResumeProcessingAction() {
    run_.PauseOrResumeProcessingAction();
    const bool pauses = run_.PauseProcessing();
    window_.processing().setPaused(pauses);
    if (pauses) {
        window_.processing().setPace(tr("Pausing"));
    } else {
        workerStarts();
    }
}

void RunController::CancelProcessingAction() {
    window_.HideProcessingControls();
    run_.CancelProcessingAction();
    window_.processing().setPaused(false);
    dropQuestion();
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
    if (news.photoInHand) showPhotoInHand(*news.photoInHand);
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
        if (!holdsPhoto(outcome.row)) continue;
        rows.push_back({static_cast<int>(outcome.row),
                        outcome.succeeded() ? PhotoStatus::Written : PhotoStatus::Failed, outcome.error});
    }
    window_.photos().model().setOutcomes(rows);
}

void RunController::showPhotoInHand(qint64 row) {
    photoInHand_ = row;
    if (!holdsPhoto(row)) return;
    window_.processing().setPhoto(
        lastPathComponent(plan_->request.photos[static_cast<std::size_t>(row)].path));
    window_.photoList().scrollTo(window_.photos().model().index(static_cast<int>(row)));
}

void RunController::showProgress(qint64 done) {
    done_ = done;
    window_.processing().setProgress(static_cast<int>(done));
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
    if (holdsPhoto(photoInHand_)) window_.photos().ChangeImage(QString::number(photoInHand_));
    if (report.end == RunEnd::Paused && run_.state() == BatchRun::State::Paused) {
        window_.processing().setPace(tr("Paused"));
    } else if (report.end == RunEnd::Stopped) {
        window_.processing().setPace(tr("Stopped"));
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

void RunController::ShowResults(const RunReport& report) {
    dropQuestion();
    openMessageSheet(&window_,
                     {report.ProcessResult ? QMessageBox::Information : QMessageBox::Warning, SummaryTitle,
                      report.message()},
                     [this, report](int) { showTheEnd(report); });
}

void RunController::showTheEnd(const RunReport& report) {
    ShowOutputImages(report, parts_.results);
    window_.EnableControls();
    window_.HideProcessingControls();
    window_.photoList().setFocus();
}

}  // namespace zelto
