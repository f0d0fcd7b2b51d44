// SPDX-License-Identifier: GPL-3.0-or-later
// What a run tells whoever shows it. Every call comes from the run's own thread, one after another; a window
// passes them on to its main thread and returns at once. An observer must not wait for the thread that owns
// the run.
#pragma once

#include "batch/jpeg_way.h"
#include "platform/result.h"
#include "platform/words.h"
#include "records/photo_warning.h"

#include <QLatin1String>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace zelto {

inline constexpr MarkedText WatermarkingFailedMessage(QT_TRANSLATE_NOOP("Words", "Watermarking failed."));

// The question after three failures in a row; its buttons are "OK" and "No".
inline constexpr MarkedText SuccessiveFailTitle(QT_TRANSLATE_NOOP("Words", "Successive Fail"));
inline constexpr MarkedText SuccessiveFailText(
    QT_TRANSLATE_NOOP("Words",
                      "3 Photos in a row failed to save, Would you like to  continue watermarking?\n"
                      "We recommend stopping the process and run as administrator.\n"
                      "Select No to stop watermarking."));

inline constexpr MarkedText SummaryTitle(QT_TRANSLATE_NOOP("Words", "Watermark Output"));
inline constexpr MarkedText SuccessSummary(QT_TRANSLATE_NOOP("Words",
                                                             "Watermark process completed successfully"));
inline constexpr MarkedText FailureSummary(
    QT_TRANSLATE_NOOP("Words",
                      "Watermark process completed but some Photos produced Error\n"
                      "Double Click the Image Entry to know the problem"));

// How one photo ended.
struct PhotoOutcome {
    qint64 row = 0;
    QString source;
    QString output;  // the file written; empty for a page of the combined PDF
    QSize size;      // pixels written
    QString error;   // for the user; empty for a success
    QString reason;  // what lies behind `error`, for a log; may be empty
    std::vector<PhotoWarning> warnings;
    ErrorCode code = ErrorCode::Unsupported;  // what kind of failure it was
    std::optional<JpegWay> jpeg{};  // of a JPEG that was written, where untouched blocks were to be kept

    bool succeeded() const { return error.isEmpty(); }
};

enum class RunEnd {
    Finished,   // every photo had its turn
    Paused,     // may be resumed
    Cancelled,  // broken off by the user
    Stopped     // broken off after repeated failures
};

// What a run, or the part of it since it was last resumed, came to.
struct RunReport {
    RunEnd end = RunEnd::Finished;
    bool ProcessResult = true;    // no photo failed
    QStringList OutPutImageList;  // what to show: files, top folders of a kept structure, or the combined PDF
    QString combinedPdf;          // its path, once written

    // The summary of a finished run.
    QString message() const { return ProcessResult ? SuccessSummary : FailureSummary; }
    // Whether the result is opened itself; otherwise the listed files are shown in their folders.
    bool opensCombinedPdf() const { return !combinedPdf.isEmpty() && OutPutImageList.size() == 1; }
};

class BatchObserver {
  public:
    virtual ~BatchObserver() = default;

    // A worker has begun, for a new run or, with `resumed`, where a paused one left off.
    virtual void runStarted(bool resumed) = 0;
    virtual void photoStarted(qint64 row) = 0;
    virtual void photoFinished(const PhotoOutcome& outcome) = 0;
    // `done` rows of the list have had their turn, unchecked ones included.
    virtual void progressed(qint64 done) = 0;
    // Three photos in a row failed: the run waits for BatchRun::answerSuccessiveFail, which may be called
    // from here.
    virtual void successiveFail() = 0;
    // The combined PDF could not be written; the run goes on to its summary.
    virtual void combinedPdfFailed(const QString& reason) = 0;
    // The worker ends. Nothing follows until the run is started or resumed.
    virtual void runEnded(const RunReport& report) = 0;
};

}  // namespace zelto
