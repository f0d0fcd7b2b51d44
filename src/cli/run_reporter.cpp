// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/run_reporter.h"

#include "batch/batch_run.h"
#include "batch/output_name.h"
#include "platform/words.h"

namespace zelto {
namespace {

constexpr MarkedText StoppedMessage(
    QT_TRANSLATE_NOOP("Words", "Stopped: 3 photos in a row failed. --on-repeated-failure continue goes on."));
constexpr MarkedText InterruptedMessage(QT_TRANSLATE_NOOP("Words", "Interrupted."));
constexpr MarkedText UnfinishedPdfMessage(QT_TRANSLATE_NOOP("Words", "The combined PDF was not finished."));

}  // namespace

void tellWarnings(const PhotoReport& photo, Console& console) {
    for (const PhotoWarning& warning : photo.warnings) {
        // Where it is why the photo fails, it is told as that.
        if (warning.text != photo.error) console.note(photo.source + QStringLiteral(": ") + warning.text);
    }
}

void RunReporter::photoFinished(const PhotoOutcome& outcome) {
    PhotoReport& photo = photoAt(report_, outcome.row);
    photo.warnings = outcome.warnings;
    photo.error = outcome.error;
    if (outcome.succeeded()) {
        tellWarnings(photo, console_);
        photo.status = PhotoReport::Status::Written;
        photo.size = outcome.size;
        photo.jpeg = outcome.jpeg;
        if (photo.jpeg && !photo.jpeg->isLossless)
            console_.note(Words::tr("%1: encoded as usual. %2").arg(photo.source, photo.jpeg->reason));
        if (!outcome.output.isEmpty()) photo.output = outcome.output;
        console_.advance(outcome.output.isEmpty() ? outcome.source : outcome.output);
    } else {
        tellFailure(photo, outcome);
        console_.advance({});
    }
    if (hooks_.photoEnded) hooks_.photoEnded(photo, &outcome);
}

void RunReporter::tellFailure(PhotoReport& photo, const PhotoOutcome& outcome) {
    const QString excuse = hooks_.excuse ? hooks_.excuse(outcome) : QString();
    if (!excuse.isNull()) {
        photo.error = excuse;
        console_.note(outcome.source + QStringLiteral(": ") + excuse);
        return;
    }
    photo.status = PhotoReport::Status::Failed;
    if (hooks_.isOldNews && hooks_.isOldNews(outcome)) return;
    tellWarnings(photo, console_);
    const bool tellsMore = !outcome.reason.isEmpty() && outcome.reason != outcome.error;
    console_.problem(outcome.source + QStringLiteral(": ") + outcome.error +
                     (tellsMore ? QStringLiteral(" (%1)").arg(outcome.reason) : QString()));
}

// Photos that the rules for names leave out have their turn like all others.
void RunReporter::progressed(qint64 done) {
    const auto row = static_cast<std::size_t>(done - 1);
    const bool isSkipped =
        request_.photos[row].checked && request_.plan->outputs[row].fate == PlannedOutput::Fate::Skip;
    if (!isSkipped) return;
    console_.note(request_.photos[row].path + QStringLiteral(": ") + request_.plan->outputs[row].reason);
    console_.advance({});
    if (hooks_.photoEnded) hooks_.photoEnded(photoAt(report_, request_.firstRow + done - 1), nullptr);
}

void RunReporter::answerThrough(BatchRun& run, bool goesOn) {
    run_ = &run;
    goesOn_ = goesOn;
}

void RunReporter::successiveFail() {
    run_->answerSuccessiveFail(goesOn_);
}

// Its pages were good, but none of them has reached the disk.
void RunReporter::combinedPdfFailed(const QString& reason) {
    console_.problem(Words::tr("the combined PDF could not be written: %1").arg(reason));
    for (PhotoReport& photo : report_.photos) {
        if (photo.status != PhotoReport::Status::Written) continue;
        photo.status = PhotoReport::Status::Failed;
        photo.size = QSize(0, 0);
        photo.error = WatermarkingFailedMessage;
    }
}

// The pages of a document that was not finished are gone with it.
void RunReporter::throwAwayPages() {
    for (PhotoReport& photo : report_.photos) {
        if (photo.status != PhotoReport::Status::Written) continue;
        photo.status = PhotoReport::Status::NotRun;
        photo.size = QSize(0, 0);
        photo.error = UnfinishedPdfMessage;
    }
}

void RunReporter::runEnded(const RunReport& report) {
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
    if (hooks_.runEnded) hooks_.runEnded();
}

}  // namespace zelto
