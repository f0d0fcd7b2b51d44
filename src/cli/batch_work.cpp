// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_work.h"

#include "batch/batch_run.h"
#include "batch/output_name.h"
#include "batch/output_size.h"
#include "batch/output_writer.h"
#include "cli/interrupt.h"
#include "pictures/picture_reader.h"
#include "platform/dates.h"

#include <QSet>

#include <memory>

namespace zelto {
namespace {

constexpr QLatin1String StoppedMessage(
    "Stopped: 3 photos in a row failed. --on-repeated-failure continue goes on.");
constexpr QLatin1String InterruptedMessage("Interrupted.");
constexpr QLatin1String DryRunMessage("Dry run: nothing was written.");

// Keeps the report up to date and shows the progress.
class ReportingObserver : public BatchObserver {
  public:
    ReportingObserver(BatchReport& report, Console& console, bool continueAfterFailures)
        : report_(report), console_(console), continueAfterFailures_(continueAfterFailures) {}

    void answerThrough(BatchRun& run) { run_ = &run; }

    void runStarted(bool) override {}
    void photoStarted(qint64) override {}
    void photoFinished(const PhotoOutcome& outcome) override;
    void progressed(qint64) override {}
    void successiveFail() override { run_->answerSuccessiveFail(continueAfterFailures_); }
    void combinedPdfFailed(const QString& reason) override;
    void runEnded(const RunReport& report) override;

  private:
    BatchReport& report_;
    Console& console_;
    const bool continueAfterFailures_;
    BatchRun* run_ = nullptr;
};

void ReportingObserver::photoFinished(const PhotoOutcome& outcome) {
    PhotoReport& photo = photoAt(report_, outcome.row);
    photo.warnings = outcome.warnings;
    for (const PhotoWarning& warning : outcome.warnings) {
        console_.note(outcome.source + QStringLiteral(": ") + warning.text);
    }
    if (outcome.succeeded()) {
        photo.status = PhotoReport::Status::Written;
        photo.size = outcome.size;
        if (!outcome.output.isEmpty()) photo.output = outcome.output;
        console_.advance(outcome.output.isEmpty() ? outcome.source : outcome.output);
        return;
    }
    photo.status = PhotoReport::Status::Failed;
    photo.error = outcome.error;
    const bool tellsMore = !outcome.reason.isEmpty() && outcome.reason != outcome.error;
    console_.problem(outcome.source + QStringLiteral(": ") + outcome.error +
                     (tellsMore ? QStringLiteral(" (%1)").arg(outcome.reason) : QString()));
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

void ReportingObserver::runEnded(const RunReport& report) {
    report_.combinedPdf = report.combinedPdf;
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

// Photos of the same name from different folders are easily overlooked.
void tellOfSharedNames(const BatchReport& report, Console& console) {
    QSet<QString> outputs;
    qint64 replaced = 0;
    for (const PhotoReport& photo : report.photos) {
        if (photo.output.isEmpty()) continue;
        if (outputs.contains(photo.output)) ++replaced;
        outputs.insert(photo.output);
    }
    if (replaced == 0) return;
    console.note(QStringLiteral(
                     "outputs replaced by that of a later photo of the same name: %1 (--keep-structure or a "
                     "number in --rename keeps them apart)")
                     .arg(replaced));
}

}  // namespace

BatchReport runBatch(const BatchPlan& plan, const CommandLine& line, Console& console) {
    BatchReport report = plannedReport(plan.request);
    ReportingObserver observer(report, console, line.continueAfterFailures);
    BatchRun run(observer);
    observer.answerThrough(run);
    const InterruptWatch watch([&] { run.CancelProcessingAction(); });
    tellOfSharedNames(report, console);
    console.begin(static_cast<qint64>(report.photos.size()));
    run.ProcessImaging(plan.request, std::make_unique<OutputWriter>(OutputWriter::Settings{
                                         plan.request.options, plan.stack, userDateLocale(), plan.copyright,
                                         plan.request.limits.jobs}));
    run.wait();
    console.end();
    return report;
}

BatchReport dryRun(const BatchPlan& plan) {
    BatchReport report = plannedReport(plan.request);
    report.message = DryRunMessage;
    const OutputOptions& options = plan.request.options;
    const QString combinedPdf = combinedPdfPath(options.OutputPath);
    for (PhotoReport& photo : report.photos) {
        if (photo.output.isEmpty()) photo.output = combinedPdf;
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
        text +=
            photo.source + QLatin1Char('\t') + photo.output + QLatin1Char('\t') + size + QLatin1Char('\n');
    }
    return text;
}

}  // namespace zelto
