// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_work.h"

#include "batch/batch_run.h"
#include "batch/output_name.h"
#include "batch/output_size.h"
#include "batch/output_writer.h"
#include "cli/interrupt.h"
#include "cli/printable.h"
#include "cli/run_reporter.h"
#include "pictures/picture_reader.h"
#include "platform/dates.h"
#include "platform/words.h"

#include <memory>

namespace zelto {
namespace {

constexpr MarkedText DryRunMessage(QT_TRANSLATE_NOOP("Words", "Dry run: nothing was written."));

}  // namespace

OutputWriter::Settings writerSettings(const BatchPlan& plan) {
    return {plan.request.options, plan.stack,          userDateLocale(),
            plan.copyright,       plan.request.strict, plan.request.limits.jobs};
}

BatchReport runBatch(const BatchPlan& plan, const CommandLine& line, Console& console) {
    BatchReport report = plannedReport(plan.request);
    RunReporter observer(plan.request, report, console);
    BatchRun run(observer);
    observer.answerThrough(run, line.continueAfterFailures.value_or(false));
    const InterruptWatch watch([&] { run.CancelProcessingAction(); });
    console.begin(static_cast<qint64>(report.photos.size()));
    run.ProcessImaging(plan.request, std::make_unique<OutputWriter>(writerSettings(plan)));
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
