// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_work.h"

#include "batch/batch_run.h"
#include "batch/output_name.h"
#include "batch/output_size.h"
#include "batch/output_writer.h"
#include "cli/interrupt.h"
#include "cli/printable.h"
#include "pictures/picture_reader.h"
#include "platform/dates.h"

#include <memory>

namespace zelto {
namespace {

constexpr QLatin1String StoppedMessage(
    "Stopped: 3 photos in a row failed. --on-repeated-failure continue goes on.");
constexpr QLatin1String InterruptedMessage("Interrupted.");
constexpr QLatin1String DryRunMessage("Dry run: nothing was written.");
constexpr QLatin1String UnfinishedPdfMessage("The combined PDF was not finished.");

void tellWarnings(const PhotoReport& photo, Console& console) {
    for (const PhotoWarning& warning : photo.warnings) {
        // Where it is why the photo fails, it is told as that.
        if (warning.text != photo.error) console.note(photo.source + QStringLiteral(": ") + warning.text);
    }
}

// Keeps the report up to date and shows the progress.
class ReportingObserver : public BatchObserver {
  public:
    ReportingObserver(const BatchRequest& request, BatchReport& report, Console& console,
                      bool continueAfterFailures)
        : request_(request),
          report_(report),
          console_(console),
          continueAfterFailures_(continueAfterFailures) {}

    void answerThrough(BatchRun& run) { run_ = &run; }

    void runStarted(bool) override {}
    void photoStarted(qint64) override {}
    void photoFinished(const PhotoOutcome& outcome) override;
    void progressed(qint64 done) override;
    void successiveFail() override { run_->answerSuccessiveFail(continueAfterFailures_); }
    void combinedPdfFailed(const QString& reason) override;
    void runEnded(const RunReport& report) override;

  private:
    void throwAwayPages();

    const BatchRequest& request_;
    BatchReport& report_;
    Console& console_;
    const bool continueAfterFailures_;
    BatchRun* run_ = nullptr;
};

void ReportingObserver::photoFinished(const PhotoOutcome& outcome) {
    PhotoReport& photo = photoAt(report_, outcome.row);
    photo.warnings = outcome.warnings;
    photo.error = outcome.error;
    tellWarnings(photo, console_);
    if (outcome.succeeded()) {
        photo.status = PhotoReport::Status::Written;
        photo.size = outcome.size;
        photo.jpeg = outcome.jpeg;
        if (photo.jpeg && !photo.jpeg->isLossless)
            console_.note(photo.source + QStringLiteral(": encoded as usual. ") + photo.jpeg->reason);
        if (!outcome.output.isEmpty()) photo.output = outcome.output;
        console_.advance(outcome.output.isEmpty() ? outcome.source : outcome.output);
        return;
    }
    photo.status = PhotoReport::Status::Failed;
    const bool tellsMore = !outcome.reason.isEmpty() && outcome.reason != outcome.error;
    console_.problem(outcome.source + QStringLiteral(": ") + outcome.error +
                     (tellsMore ? QStringLiteral(" (%1)").arg(outcome.reason) : QString()));
    console_.advance({});
}

// Photos that the rules for names leave out have their turn like all others.
void ReportingObserver::progressed(qint64 done) {
    const auto row = static_cast<std::size_t>(done - 1);
    const bool isSkipped =
        request_.photos[row].checked && request_.plan->outputs[row].fate == PlannedOutput::Fate::Skip;
    if (!isSkipped) return;
    console_.note(request_.photos[row].path + QStringLiteral(": ") + request_.plan->outputs[row].reason);
    console_.advance({});
}

// Its pages were good, but none of them has reached the disk.
void ReportingObserver::combinedPdfFailed(const QString& reason) {
    console_.problem(QStringLiteral("the combined PDF could not be written: ") + reason);
    for (PhotoReport& photo : report_.photos) {
        if (photo.status != PhotoReport::Status::Written) continue;
        photo.status = PhotoReport::Status::Failed;
        photo.size = QSize(0, 0);
        photo.error = WatermarkingFailedMessage;
    }
}

// The pages of a document that was not finished are gone with it.
void ReportingObserver::throwAwayPages() {
    for (PhotoReport& photo : report_.photos) {
        if (photo.status != PhotoReport::Status::Written) continue;
        photo.status = PhotoReport::Status::NotRun;
        photo.size = QSize(0, 0);
        photo.error = UnfinishedPdfMessage;
    }
}

void ReportingObserver::runEnded(const RunReport& report) {
    report_.combinedPdf = report.combinedPdf;
    if (report.end != RunEnd::Finished && combinesIntoOnePdf(request_.options)) throwAwayPages();
    for (PhotoReport& photo : report_.photos) {
        if (photo.output.isEmpty() && photo.status == PhotoReport::Status::Written)
            photo.output = report.combinedPdf;
    }
    report_.stopped = report.end == RunEnd::Stopped;
    report_.interrupted = report.end == RunEnd::Cancelled;
    report_.message = report_.stopped       ? QString(StoppedMessage)
                      : report_.interrupted ? QString(InterruptedMessage)
                                            : report.message();
}

}  // namespace

BatchReport runBatch(const BatchPlan& plan, const CommandLine& line, Console& console) {
    BatchReport report = plannedReport(plan.request);
    ReportingObserver observer(plan.request, report, console, line.continueAfterFailures.value_or(false));
    BatchRun run(observer);
    observer.answerThrough(run);
    const InterruptWatch watch([&] { run.CancelProcessingAction(); });
    console.begin(static_cast<qint64>(report.photos.size()));
    run.ProcessImaging(plan.request, std::make_unique<OutputWriter>(OutputWriter::Settings{
                                         plan.request.options, plan.stack, userDateLocale(), plan.copyright,
                                         plan.request.strict, plan.request.limits.jobs}));
    run.wait();
    console.end();
    return report;
}

BatchReport dryRun(const BatchPlan& plan, Console& console) {
    BatchReport report = plannedReport(plan.request);
    report.message = DryRunMessage;
    const OutputOptions& options = plan.request.options;
    const QString combinedPdf = combinedPdfPath(options.OutputPath);
    for (PhotoReport& photo : report.photos) {
        if (photo.output.isEmpty()) photo.output = combinedPdf;
        const PlannedOutput& planned = plan.request.plan->outputs[static_cast<std::size_t>(photo.index)];
        if (planned.sharesNameOf && planned.fate == PlannedOutput::Fate::Write) {
            photo.warnings.push_back(sameNameWarning());
            tellWarnings(photo, console);
        }
        const Result<QSize> size = readPictureSize(photo.source);
        if (!size) {
            photo.error = DamagedPictureMessage;
        } else {
            photo.size = writtenSize(*size, options, plan.stack->Effects);
        }
    }
    return report;
}

QString dryRunText(const BatchReport& report) {
    QString text;
    for (const PhotoReport& photo : report.photos) {
        const QString size = photo.error.isEmpty()
                                 ? QStringLiteral("%1x%2").arg(photo.size.width()).arg(photo.size.height())
                                 : photo.error;
        text += QStringList{printable(photo.source), printable(photo.output), size}.join(QLatin1Char('\t')) +
                QLatin1Char('\n');
    }
    return text;
}

}  // namespace zelto
