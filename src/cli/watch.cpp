// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/watch.h"

#include "batch/batch_run.h"
#include "batch/folder_watch.h"
#include "batch/output_name.h"
#include "cli/batch_work.h"
#include "cli/interrupt.h"
#include "cli/run_reporter.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <QDir>
#include <QFileInfo>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <deque>
#include <memory>
#include <mutex>
#include <system_error>
#include <utility>

namespace zelto {
namespace {

using Clock = FolderWatch::Clock;
using Arrivals = std::vector<FolderWatch::Arrival>;

constexpr std::size_t PhotosPerRun = 256;
// After so many photos, or so long without one, everything that writes them is begun anew.
constexpr std::size_t PhotosPerWriter = 1000;
constexpr auto IdleWriter = std::chrono::minutes(1);
constexpr int FailuresToStopAt = 3;

// Lends one processor to run after run, so that what it keeps open stays so.
class LentProcessor : public PhotoProcessor {
  public:
    explicit LentProcessor(PhotoProcessor& lent) : lent_(lent) {}

    qint64 memoryNeeded(const PhotoTask& task) override { return lent_.memoryNeeded(task); }
    Result<PreparedPhoto> prepare(const PhotoTask& task) override { return lent_.prepare(task); }
    Result<void> commit(const PhotoTask& task, PreparedPhoto photo) override {
        return lent_.commit(task, std::move(photo));
    }
    Result<QString> finishCombinedPdf() override { return QString(); }
    void settle() override {}  // its owner has it settle
    void interrupt() override { lent_.interrupt(); }

  private:
    PhotoProcessor& lent_;
};

class WakeUp {
  public:
    WakeUp() : event_(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
        if (event_ < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    ~WakeUp() { ::close(event_); }
    WakeUp(const WakeUp&) = delete;
    WakeUp& operator=(const WakeUp&) = delete;

    int descriptor() const { return event_; }
    void call() const { [[maybe_unused]] const int ignored = ::eventfd_write(event_, 1); }
    void clear() const {
        eventfd_t count = 0;
        [[maybe_unused]] const int ignored = ::eventfd_read(event_, &count);
    }

  private:
    const int event_;
};

QStringList absoluteFolders(const QStringList& inputs) {
    QStringList folders;
    QStringList seen;
    for (const QString& input : inputs) {
        const QString canonical = QFileInfo(input).canonicalFilePath();
        if (seen.contains(canonical)) continue;
        seen.append(canonical);
        folders.append(QDir::cleanPath(QFileInfo(input).absoluteFilePath()));
    }
    return folders;
}

WatchedFolders watchedFolders(const CommandLine& line, const OutputOptions& options) {
    return {absoluteFolders(line.inputs), line.recursive, GetExtensionList(line.extensions),
            options.OutputPath};
}

class Watch {
  public:
    Watch(const BatchPlan& plan, const CommandLine& line, Console& console,
          const std::function<void(const PhotoReport&)>& photoEnded)
        : plan_(plan),
          console_(console),
          photoEnded_(photoEnded),
          goesOn_(line.continueAfterFailures.value_or(true)),
          roots_(absoluteFolders(line.inputs)),
          folders_(watchedFolders(line, plan.request.options)) {}

    BatchReport watch();

  private:
    void wait();
    void beginRun();
    Arrivals nextArrivals();
    BatchRequest requestFor(const Arrivals& arrivals) const;
    bool refuses(const BatchRequest& request);
    void launch();
    RunHooks hooks();
    void finishRun();
    void count(const PhotoReport& photo, const FolderWatch::Arrival& arrival);
    void dropWriter();
    bool isEnough();

    FolderWatch::Arrival& arrivalAt(qint64 row) {
        return arrivals_[static_cast<std::size_t>(row - request_.firstRow)];
    }

    const BatchPlan& plan_;
    Console& console_;
    const std::function<void(const PhotoReport&)>& photoEnded_;
    const bool goesOn_;  // after repeated failures
    const QStringList roots_;
    FolderWatch folders_;
    const std::shared_ptr<EarlierOutputs> earlier_ = std::make_shared<EarlierOutputs>();
    BatchReport total_;
    int failuresInARow_ = 0;

    std::unique_ptr<OutputWriter> writer_;
    std::size_t photosOfWriter_ = 0;
    Clock::time_point lastRun_ = Clock::now();

    // The present run.
    Arrivals arrivals_;
    std::deque<FolderWatch::Arrival> alone_;  // to be run one at a time
    std::vector<bool> canBeTriedAgain_;       // set on the run's thread
    BatchRequest request_;
    BatchReport report_;
    std::optional<RunReporter> reporter_;

    const WakeUp wakeUp_;
    std::mutex mutex_;  // guards what follows
    std::unique_ptr<BatchRun> run_;
    bool hasEnded_ = false;
    bool isInterrupted_ = false;
};

BatchReport Watch::watch() {
    const InterruptWatch interrupt([this] {
        const std::lock_guard lock(mutex_);
        isInterrupted_ = true;
        if (run_) run_->CancelProcessingAction();
        wakeUp_.call();
    });
    console_.note(Words::tr("watching %1; Ctrl+C ends it").arg(roots_.join(QStringLiteral(", "))));
    while (!isEnough()) {
        wait();
        folders_.look();
        for (const ScanProblem& problem : folders_.takeProblems())
            console_.problem(problem.path + QStringLiteral(": ") + problem.text);
        finishRun();
        if (!isEnough()) beginRun();
        if (!run_ && writer_ && Clock::now() >= lastRun_ + IdleWriter) dropWriter();
    }
    dropWriter();
    total_.interrupted = !total_.stopped;
    if (total_.interrupted) total_.message = Words::tr("Interrupted.");
    return std::move(total_);
}

// Until there is something to do.
void Watch::wait() {
    int milliseconds = -1;
    if (!run_) {
        std::optional<Clock::time_point> next = alone_.empty() ? folders_.nextLook() : Clock::now();
        if (writer_) next = std::min(next.value_or(Clock::time_point::max()), lastRun_ + IdleWriter);
        if (next) {
            const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now()).count();
            constexpr decltype(left) LongestWait = 3'600'000;
            milliseconds = static_cast<int>(std::clamp<decltype(left)>(left, 0, LongestWait));
        }
    }
    std::array<pollfd, 2> sources = {{{wakeUp_.descriptor(), POLLIN, 0}, {folders_.descriptor(), POLLIN, 0}}};
    ::poll(sources.data(), sources.size(), milliseconds);
    wakeUp_.clear();
}

bool Watch::isEnough() {
    const std::lock_guard lock(mutex_);
    return !run_ && (isInterrupted_ || total_.stopped);
}

Arrivals Watch::nextArrivals() {
    if (alone_.empty()) return folders_.takeReady(PhotosPerRun);
    const FolderWatch::Arrival first = alone_.front();
    alone_.pop_front();
    return {first};
}

BatchRequest Watch::requestFor(const Arrivals& arrivals) const {
    BatchRequest request = plan_.request;
    request.firstRow = total_.total;
    request.earlier = earlier_;
    // The folders that were named, so that a structure does not depend on what has arrived so far.
    for (const QString& root : roots_) request.folders.insert(root, {});
    for (const FolderWatch::Arrival& arrival : arrivals) {
        request.photos.push_back({arrival.photo});
        request.folders.insert(withoutLastPathComponent(arrival.photo), {});
    }
    request.limits.jobs = std::min(request.limits.jobs, static_cast<int>(arrivals.size()));
    request.plan = std::make_shared<const OutputPlan>(planOutputs(request, QDateTime::currentDateTime()));
    return request;
}

// An output that would replace a photo, as links can have it, is never written; the photos beside it are.
bool Watch::refuses(const BatchRequest& request) {
    if (request.plan->replacedPhotos.isEmpty()) return false;
    if (arrivals_.size() > 1) {
        alone_.assign(arrivals_.begin(), arrivals_.end());
        return true;
    }
    PhotoReport photo = plannedReport(request).photos.front();
    photo.status = PhotoReport::Status::Failed;
    photo.error = Words::tr("its output “%1” would replace the photo itself").arg(photo.output);
    console_.problem(photo.source + QStringLiteral(": ") + photo.error);
    if (photoEnded_) photoEnded_(photo);
    count(photo, arrivals_.front());
    ++total_.total;
    return true;
}

void Watch::beginRun() {
    if (run_) return;
    arrivals_ = nextArrivals();
    if (arrivals_.empty()) return;
    request_ = requestFor(arrivals_);
    if (!refuses(request_)) launch();
}

void Watch::launch() {
    total_.total += static_cast<qint64>(arrivals_.size());
    canBeTriedAgain_.assign(arrivals_.size(), false);
    report_ = plannedReport(request_);
    console_.expect(static_cast<qint64>(arrivals_.size()));
    if (photosOfWriter_ >= PhotosPerWriter) dropWriter();
    if (!writer_) writer_ = std::make_unique<OutputWriter>(writerSettings(plan_));
    photosOfWriter_ += arrivals_.size();

    const std::lock_guard lock(mutex_);
    reporter_.emplace(request_, report_, console_, hooks());
    run_ = std::make_unique<BatchRun>(*reporter_);
    reporter_->answerThrough(*run_, goesOn_);
    run_->ProcessImaging(request_, std::make_unique<LentProcessor>(*writer_));
    if (isInterrupted_) run_->CancelProcessingAction();
}

RunHooks Watch::hooks() {
    RunHooks hooks;
    hooks.excuse = [](const PhotoOutcome& outcome) {
        return QFileInfo::exists(outcome.source)
                   ? QString()
                   : Words::tr("was taken away before its turn; nothing was written");
    };
    hooks.isOldNews = [this](const PhotoOutcome& outcome) { return arrivalAt(outcome.row).tries > 0; };
    hooks.photoEnded = [this](const PhotoReport& photo, const PhotoOutcome* outcome) {
        const bool hasFailed = photo.status == PhotoReport::Status::Failed;
        const bool isFirstTry = arrivalAt(photo.index).tries == 0;
        if (hasFailed && outcome != nullptr &&
            (outcome->code == ErrorCode::CannotWrite || outcome->code == ErrorCode::OutOfMemory)) {
            canBeTriedAgain_[static_cast<std::size_t>(photo.index - request_.firstRow)] = true;
            if (isFirstTry)
                console_.note(photo.source + QStringLiteral(": ") +
                              Words::tr("will be tried again until it can be written"));
        }
        if (photoEnded_ && (!hasFailed || isFirstTry)) photoEnded_(photo);
    };
    hooks.runEnded = [this] {
        const std::lock_guard lock(mutex_);
        hasEnded_ = true;
        wakeUp_.call();
    };
    return hooks;
}

void Watch::finishRun() {
    std::unique_ptr<BatchRun> ended;
    {
        const std::lock_guard lock(mutex_);
        if (!hasEnded_) return;
        hasEnded_ = false;
        ended = std::move(run_);
    }
    ended->wait();
    ended.reset();
    for (const PhotoReport& photo : report_.photos) count(photo, arrivalAt(photo.index));
    for (std::size_t i = 0; i < arrivals_.size(); ++i) {
        if (canBeTriedAgain_[i]) folders_.tryAgain(arrivals_[i]);
    }
    total_.stopped = total_.stopped || report_.stopped || (!goesOn_ && failuresInARow_ >= FailuresToStopAt);
    if (total_.stopped) total_.message = report_.message;
    lastRun_ = Clock::now();
}

void Watch::count(const PhotoReport& photo, const FolderWatch::Arrival& arrival) {
    ReportCounts& counts = total_.passed;
    if (!photo.warnings.empty()) ++counts.warned;
    switch (photo.status) {
        case PhotoReport::Status::Written:
            earlier_->add(photo.output, photo.source);
            ++counts.written;
            if (arrival.tries > 0) --counts.failed;
            failuresInARow_ = 0;
            break;
        case PhotoReport::Status::Failed:
            if (arrival.tries == 0) ++counts.failed;
            ++failuresInARow_;
            break;
        case PhotoReport::Status::NotRun:
            ++counts.notRun;
            break;
    }
}

void Watch::dropWriter() {
    photosOfWriter_ = 0;
    const std::unique_ptr<OutputWriter> dropped = std::move(writer_);
    try {
        if (dropped) dropped->settle();
    } catch (const std::exception& exception) {
        console_.problem(QString::fromLocal8Bit(exception.what()));
    }
}

}  // namespace

Result<void> checkWatch(const CommandLine& line, const OutputOptions& options) {
    const auto refuse = [](const QString& why) { return fail(ErrorCode::InvalidValue, why); };
    if (combinesIntoOnePdf(options))
        return refuse(Words::tr("a combined PDF would never be finished by --watch; leave one of them out"));
    const NamedPhoto first{QStringLiteral("photo"), 0, QDate::currentDate()};
    const NamedPhoto second{first.path, 1, first.today};
    const QString& pattern = options.RenameFormat;
    if (options.Rename && !line.existing && filledPattern(pattern, first) != filledPattern(pattern, second)) {
        return refuse(
            Words::tr("the numbers of --rename begin again whenever --watch is started; say with "
                      "--existing what becomes of outputs that stand there: number, skip, fail or "
                      "replace"));
    }
    const QString output =
        QFileInfo(options.OutputPath).canonicalFilePath();  // empty where there is none yet
    for (const QString& input : line.inputs) {
        const QFileInfo folder(input);
        if (!folder.isDir()) return refuse(Words::tr("--watch takes folders, and “%1” is none").arg(input));
        const QString watched = folder.canonicalFilePath();
        if (watched == output) {
            return refuse(
                Words::tr("outputs in the watched folder “%1” would be marked again and again; choose "
                          "another --output")
                    .arg(input));
        }
        if (options.KeepDirectoryStructure && !output.isEmpty() &&
            watched.startsWith(output + QLatin1Char('/'))) {
            return refuse(
                Words::tr("with --keep-structure, outputs in “%1” could get into the watched folder “%2” "
                          "and be marked again; choose another --output")
                    .arg(options.OutputPath, input));
        }
    }
    return {};
}

BatchReport watchFolders(const BatchPlan& plan, const CommandLine& line, Console& console,
                         const std::function<void(const PhotoReport&)>& photoEnded) {
    return Watch(plan, line, console, photoEnded).watch();
}

}  // namespace zelto
