// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_run.h"

#include "batch/look_ahead.h"
#include "batch/output_name.h"

#include <QDateTime>
#include <QLoggingCategory>
#include <QSet>

#include <exception>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(batchLog, "zelto.batch")

// The streak of failures at which the user is asked.
constexpr int FailuresToAskAt = 3;

// Runs a step that may throw, whose failure is only worth a line in the log.
template <class Step>
void attempt(const char* what, Step step) {
    try {
        step();
    } catch (const std::exception& exception) {
        qCWarning(batchLog, "%s: exception = %s", what, exception.what());
    }
}

Error asError(const std::exception& exception) {
    return {ErrorCode::CannotWrite, QString::fromLocal8Bit(exception.what()), {}};
}

// Whether the message says what the user can understand and change; others are told in general words.
bool isForUsers(const Error& error) {
    return error.code == ErrorCode::Damaged || error.code == ErrorCode::Unsupported ||
           error.code == ErrorCode::OutOfMemory;
}

}  // namespace

// What a run keeps from its start to its end, pauses included.
struct BatchRun::Job {
    BatchRequest request;
    std::unique_ptr<PhotoProcessor> processor;
    std::size_t NextImageNumberForProcessing = 0;
    QSet<std::size_t> writtenNames;  // by the first photo that has the name
    std::shared_ptr<Job> continues;  // the stopped run this one goes on with
};

// One worker: from a start or a resume to the next pause or the end.
class BatchRun::Worker {
  public:
    Worker(BatchRun& run, Job& job, std::stop_token stop)
        : run_(run), observer_(run.observer_), job_(job), request_(job.request), stop_(std::move(stop)) {}

    void StartOrContinueWatermarking(bool resumed);

  private:
    const PlannedOutput& planned(std::size_t row) const { return request_.plan->outputs[row]; }
    bool isWritten(std::size_t row) const {
        return request_.photos[row].checked && planned(row).fate == PlannedOutput::Fate::Write;
    }
    std::optional<PhotoTask> nextTask();
    RunEnd processPhotos();
    void UpdateImage(std::size_t row, LookAhead& ahead);
    Result<void> commit(const PhotoTask& task, PreparedPhoto photo);
    void refuse(std::size_t row);
    bool replacesAnEarlierOutput(std::size_t row) const;
    void recordOutcome(const PhotoOutcome& outcome);
    std::optional<RunEnd> askWhetherToGoOn();
    std::optional<RunEnd> interruption();
    void finishCombinedPdf();
    void end(RunEnd how);

    BatchRun& run_;
    BatchObserver& observer_;
    Job& job_;
    const BatchRequest& request_;
    const std::stop_token stop_;

    RunDestinations destinations_;
    std::size_t nextToPrepare_ = 0;
    RunReport report_;
    int SuccessiveFail_ = 0;
    bool asked_ = false;  // about the present streak of failures
};

void BatchRun::Worker::StartOrContinueWatermarking(bool resumed) {
    observer_.runStarted(resumed);
    if (const auto stopped = std::exchange(job_.continues, nullptr)) {
        job_.processor->takeOver(*stopped->processor);
        job_.NextImageNumberForProcessing = stopped->NextImageNumberForProcessing;
        job_.writtenNames = stopped->writtenNames;
    }
    if (request_.saveLastWatermark) attempt("saving the last watermark", request_.saveLastWatermark);
    if (!request_.plan) {
        job_.request.plan =
            std::make_shared<const OutputPlan>(planOutputs(request_, QDateTime::currentDateTime()));
    }
    destinations_ = runDestinations(request_);
    report_.OutPutImageList = destinations_.topFolders;
    nextToPrepare_ = job_.NextImageNumberForProcessing;
    const RunEnd how = processPhotos();
    if (how == RunEnd::Finished) finishCombinedPdf();
    attempt("settling", [this] { job_.processor->settle(); });
    end(how);
}

std::optional<PhotoTask> BatchRun::Worker::nextTask() {
    while (nextToPrepare_ < request_.photos.size()) {
        const std::size_t row = nextToPrepare_++;
        if (!isWritten(row)) continue;
        return photoTask(request_, destinations_, planned(row), row, QDateTime::currentDateTime());
    }
    return std::nullopt;
}

RunEnd BatchRun::Worker::processPhotos() {
    const std::stop_callback interrupt(stop_, [this] { job_.processor->interrupt(); });
    LookAhead ahead(
        *job_.processor, [this] { return nextTask(); }, request_.limits);
    for (std::size_t i = job_.NextImageNumberForProcessing; i < request_.photos.size(); ++i) {
        if (SuccessiveFail_ == FailuresToAskAt && !asked_) {
            if (const auto how = askWhetherToGoOn()) return *how;
        }
        if (stop_.stop_requested()) return RunEnd::Cancelled;
        const bool isRefused = request_.photos[i].checked && planned(i).fate == PlannedOutput::Fate::Fail;
        if (isRefused) refuse(i);
        if (isWritten(i)) UpdateImage(i, ahead);
        if (isRefused || isWritten(i)) {
            if (const auto how = interruption()) return *how;
        }
        job_.NextImageNumberForProcessing = i + 1;
        observer_.progressed(static_cast<qint64>(i) + 1);
    }
    return RunEnd::Finished;
}

Result<void> BatchRun::Worker::commit(const PhotoTask& task, PreparedPhoto photo) {
    try {
        return job_.processor->commit(task, std::move(photo));
    } catch (const std::exception& exception) {
        return tl::unexpected(asError(exception));
    }
}

// Writes one photo and records how that went.
void BatchRun::Worker::UpdateImage(std::size_t row, LookAhead& ahead) {
    observer_.photoStarted(request_.firstRow + static_cast<qint64>(row));
    std::optional<LookAhead::Ready> ready = ahead.take();
    const PhotoTask& task = ready->task;
    PhotoOutcome outcome{task.row, task.source, {}, {}, {}, {}, {}};
    Result<void> written;
    const bool replaces = replacesAnEarlierOutput(row);
    if (ready->photo) {
        outcome.size = ready->photo->size;
        outcome.warnings = std::move(ready->photo->warnings);
        outcome.jpeg = std::move(ready->photo->jpeg);
        outcome.output = ready->photo->page ? QString() : task.output;
        const std::optional<qint64> lastAutoNumber = ready->photo->lastAutoNumber;
        if (request_.strict && replaces) outcome.warnings.push_back(sameNameWarning());
        if (request_.strict && !outcome.warnings.empty()) {
            written = fail(ErrorCode::Unsupported, outcome.warnings.front().text, task.source);
        } else {
            written = commit(task, std::move(*ready->photo));
        }
        if (written && lastAutoNumber && request_.storeLastAutoNumber) {
            attempt("storing the last number", [&] { request_.storeLastAutoNumber(*lastAutoNumber); });
        }
    } else {
        written = tl::unexpected(ready->photo.error());
    }
    ready.reset();
    ahead.release();
    if (written) {
        if (replaces) outcome.warnings.push_back(sameNameWarning());
        job_.writtenNames.insert(planned(row).sharesNameOf.value_or(row));
    } else {
        outcome.jpeg.reset();
        const Error& error = written.error();
        outcome.error = isForUsers(error) ? error.message : QString(WatermarkingFailedMessage);
        outcome.reason = error.message;
        outcome.code = error.code;
    }
    recordOutcome(outcome);
}

// A photo whose output is not to be written, by the rules for names.
void BatchRun::Worker::refuse(std::size_t row) {
    const qint64 place = request_.firstRow + static_cast<qint64>(row);
    observer_.photoStarted(place);
    recordOutcome({place, request_.photos[row].path, {}, {}, planned(row).reason, {}, {}});
}

bool BatchRun::Worker::replacesAnEarlierOutput(std::size_t row) const {
    if (planned(row).replacesEarlier) return true;
    const std::optional<std::size_t> first = planned(row).sharesNameOf;
    return first && (request_.photos[*first].isElsewhere || job_.writtenNames.contains(*first));
}

void BatchRun::Worker::recordOutcome(const PhotoOutcome& outcome) {
    const OutputOptions& options = request_.options;
    asked_ = false;
    if (outcome.succeeded()) {
        SuccessiveFail_ = 0;
        if (!combinesIntoOnePdf(options) && !options.KeepDirectoryStructure) {
            report_.OutPutImageList.append(outcome.output);
        }
    } else {
        ++SuccessiveFail_;
        report_.ProcessResult = false;
    }
    observer_.photoFinished(outcome);
}

// Waits for the user's answer, or for a cancel; nothing when the run goes on.
std::optional<RunEnd> BatchRun::Worker::askWhetherToGoOn() {
    asked_ = true;
    {
        const std::lock_guard lock(run_.mutex_);
        if (stop_.stop_requested()) return RunEnd::Cancelled;
        run_.answer_.reset();
        run_.state_ = State::Asking;
    }
    observer_.successiveFail();
    std::unique_lock lock(run_.mutex_);
    run_.changed_.wait(lock, stop_, [this] { return run_.answer_.has_value(); });
    // From the moment of a cancel on, the state speaks of the next run.
    if (stop_.stop_requested()) return RunEnd::Cancelled;
    run_.state_ = *run_.answer_ ? State::Running : State::Stopped;
    return *run_.answer_ ? std::nullopt : std::optional(RunEnd::Stopped);
}

// What a user asked for while the photo in hand was written. The state changes with the decision, so that a
// resume right after it starts a worker.
std::optional<RunEnd> BatchRun::Worker::interruption() {
    const std::lock_guard lock(run_.mutex_);
    if (stop_.stop_requested()) return RunEnd::Cancelled;
    if (!run_.PauseProcessing_) return std::nullopt;
    run_.state_ = State::Paused;
    return RunEnd::Paused;
}

void BatchRun::Worker::finishCombinedPdf() {
    Result<QString> path;
    try {
        path = job_.processor->finishCombinedPdf();
    } catch (const std::exception& exception) {
        path = tl::unexpected(asError(exception));
    }
    if (!path) {
        qCWarning(batchLog, "exception = %s", qUtf8Printable(path.error().message));
        observer_.combinedPdfFailed(path.error().message);
    } else if (!path->isEmpty()) {
        report_.combinedPdf = *path;
        report_.OutPutImageList.append(*path);
    }
}

void BatchRun::Worker::end(RunEnd how) {
    if (how == RunEnd::Finished) {
        const std::lock_guard lock(run_.mutex_);
        if (!stop_.stop_requested()) {
            run_.state_ = State::Idle;
            run_.job_.reset();
        }
    }
    report_.end = how;
    observer_.runEnded(report_);
}

BatchRun::~BatchRun() {
    CancelProcessingAction();
    // The thread uses the other members, so it is joined before any of them goes.
    thread_ = {};
}

bool BatchRun::ProcessImaging(BatchRequest request, std::unique_ptr<PhotoProcessor> processor) {
    const std::lock_guard lock(mutex_);
    if (state_ != State::Idle && state_ != State::Stopped) return false;
    job_ = std::make_shared<Job>(Job{std::move(request), std::move(processor), 0, {}, nullptr});
    launch(false);
    return true;
}

bool BatchRun::resumeStopped(BatchRequest request, std::unique_ptr<PhotoProcessor> processor) {
    const std::lock_guard lock(mutex_);
    if (state_ != State::Stopped) return false;
    PauseProcessing_ = false;
    job_ = std::make_shared<Job>(Job{std::move(request), std::move(processor), 0, {}, std::move(job_)});
    launch(true);
    return true;
}

void BatchRun::PauseOrResumeProcessingAction() {
    const std::lock_guard lock(mutex_);
    PauseProcessing_ = !PauseProcessing_;
    if (!PauseProcessing_ && state_ == State::Paused) launch(true);
}

void BatchRun::CancelProcessingAction() {
    const std::lock_guard lock(mutex_);
    thread_.request_stop();
    PauseProcessing_ = false;
    state_ = State::Idle;
    job_.reset();
}

void BatchRun::answerSuccessiveFail(bool goOn) {
    const std::lock_guard lock(mutex_);
    if (state_ == State::Asking) answer_ = goOn;
    changed_.notify_all();
}

BatchRun::State BatchRun::state() const {
    const std::lock_guard lock(mutex_);
    return state_;
}

bool BatchRun::PauseProcessing() const {
    const std::lock_guard lock(mutex_);
    return PauseProcessing_;
}

void BatchRun::wait() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return workers_ == 0; });
}

void BatchRun::launch(bool resumed) {
    state_ = State::Running;
    ++workers_;
    thread_ = std::jthread(
        [this, resumed, job = job_, previous = std::move(thread_)](std::stop_token stop) mutable {
            if (previous.joinable()) previous.join();
            Worker(*this, *job, std::move(stop)).StartOrContinueWatermarking(resumed);
            job.reset();
            const std::lock_guard lock(mutex_);
            --workers_;
            changed_.notify_all();
        });
}

}  // namespace zelto
