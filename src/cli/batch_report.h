// SPDX-License-Identifier: GPL-3.0-or-later
// What a batch came to, photo by photo: as JSON, as text, and as an exit status.
#pragma once

#include "batch/batch_request.h"
#include "cli/shard.h"
#include "records/photo_warning.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <optional>
#include <vector>

namespace zelto {

namespace exit_status {
inline constexpr int Success = 0;
inline constexpr int SomeFailed = 1;
inline constexpr int CannotBeUsed = 2;
inline constexpr int Interrupted = 130;
}  // namespace exit_status

struct PhotoReport {
    enum class Status { NotRun, Written, Failed };

    qint64 index = 0;  // in the whole list
    QString source;
    QString output;
    Status status = Status::NotRun;
    QSize size = QSize(0, 0);  // pixels written, or to be written
    QString error;
    std::vector<PhotoWarning> warnings;
    std::optional<JpegWay> jpeg;  // see PhotoOutcome
};

struct ReportCounts {
    qint64 written = 0;
    qint64 failed = 0;
    qint64 notRun = 0;
    qint64 warned = 0;
};

struct BatchReport {
    Shard shard;                      // of the list that the run works on
    qint64 total = 0;                 // photos of the whole list
    std::vector<PhotoReport> photos;  // those the run is asked to write, by index
    QString combinedPdf;              // its path; empty where none was written
    ReportCounts passed;              // of photos that are not among `photos` any more
    bool stopped = false;             // by repeated failures
    bool interrupted = false;
    QString message;
    QString error;  // why nothing could be run at all

    qint64 count(PhotoReport::Status status) const;
    qint64 warned() const;  // photos with at least one warning
    int exitStatus() const;
};

// The report before anything has run: every checked photo with the path it is to get, or why it gets none. Pages of
// a combined PDF have no path yet. `request` has its plan.
BatchReport plannedReport(const BatchRequest& request);

// The photo at `row` of the whole list, which must be one of the report's.
PhotoReport& photoAt(BatchReport& report, qint64 row);

// One JSON document, with a line break at its end.
QByteArray toJson(const BatchReport& report);

// The same in one line, and one of `photos` likewise.
QByteArray toJsonLine(const BatchReport& report);
QByteArray toJsonLine(const PhotoReport& photo);

// The message, the counts, and the path of the combined PDF.
QString toText(const BatchReport& report);

}  // namespace zelto
