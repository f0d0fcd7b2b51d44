// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/batch_report.h"

#include "batch/output_name.h"
#include "cli/printable.h"
#include "platform/words.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

QLatin1String statusWord(PhotoReport::Status status) {
    switch (status) {
        case PhotoReport::Status::Written:
            return "written"_L1;
        case PhotoReport::Status::Failed:
            return "failed"_L1;
        case PhotoReport::Status::NotRun:
            break;
    }
    return "not-run"_L1;
}

QJsonArray warningList(const PhotoReport& photo) {
    QJsonArray list;
    for (const PhotoWarning& warning : photo.warnings) {
        list.append(QJsonObject{{"watermark"_L1, static_cast<qint64>(warning.watermark)},
                                {"kind"_L1, warning.kind},
                                {"text"_L1, warning.text}});
    }
    return list;
}

// Empty where no JPEG was written, or the run encodes all of them as usual.
QString jpegWord(const std::optional<JpegWay>& jpeg) {
    if (!jpeg) return {};
    return jpeg->isLossless ? u"lossless"_s : u"encoded"_s;
}

QJsonObject photoObject(const PhotoReport& photo) {
    return {{"index"_L1, photo.index},
            {"source"_L1, photo.source},
            {"status"_L1, statusWord(photo.status)},
            {"output"_L1, photo.output},
            {"width"_L1, photo.size.width()},
            {"height"_L1, photo.size.height()},
            {"error"_L1, photo.error},
            {"jpeg"_L1, jpegWord(photo.jpeg)},
            {"jpegReason"_L1, photo.jpeg ? photo.jpeg->reason : QString()},
            {"warnings"_L1, warningList(photo)}};
}

}  // namespace

qint64 BatchReport::count(PhotoReport::Status status) const {
    const qint64 listed = std::count_if(photos.begin(), photos.end(),
                                        [&](const PhotoReport& photo) { return photo.status == status; });
    switch (status) {
        case PhotoReport::Status::Written:
            return listed + passed.written;
        case PhotoReport::Status::Failed:
            return listed + passed.failed;
        case PhotoReport::Status::NotRun:
            break;
    }
    return listed + passed.notRun;
}

qint64 BatchReport::warned() const {
    return passed.warned + std::count_if(photos.begin(), photos.end(),
                                         [](const PhotoReport& photo) { return !photo.warnings.empty(); });
}

int BatchReport::exitStatus() const {
    if (!error.isEmpty()) return exit_status::CannotBeUsed;
    if (interrupted) return exit_status::Interrupted;
    return stopped || count(PhotoReport::Status::Failed) > 0 ? exit_status::SomeFailed : exit_status::Success;
}

BatchReport plannedReport(const BatchRequest& request) {
    const RunDestinations destinations = runDestinations(request);
    const QDateTime now = QDateTime::currentDateTime();
    const bool combined = combinesIntoOnePdf(request.options);
    BatchReport report;
    report.total = static_cast<qint64>(request.photos.size());
    for (std::size_t row = 0; row < request.photos.size(); ++row) {
        if (!request.photos[row].checked) continue;
        const PlannedOutput& planned = request.plan->outputs[row];
        const PhotoTask task = photoTask(request, destinations, planned, row, now);
        PhotoReport& photo = report.photos.emplace_back();
        photo.index = task.row;
        photo.source = task.source;
        if (!combined) photo.output = task.output;
        photo.error = planned.reason;
    }
    return report;
}

PhotoReport& photoAt(BatchReport& report, qint64 row) {
    return *std::lower_bound(report.photos.begin(), report.photos.end(), row,
                             [](const PhotoReport& photo, qint64 wanted) { return photo.index < wanted; });
}

namespace {

QJsonDocument document(const BatchReport& report) {
    QJsonArray photos;
    for (const PhotoReport& photo : report.photos) photos.append(photoObject(photo));
    const QJsonObject summary = {{"written"_L1, report.count(PhotoReport::Status::Written)},
                                 {"failed"_L1, report.count(PhotoReport::Status::Failed)},
                                 {"notRun"_L1, report.count(PhotoReport::Status::NotRun)},
                                 {"stopped"_L1, report.stopped},
                                 {"interrupted"_L1, report.interrupted},
                                 {"warned"_L1, report.warned()},
                                 {"message"_L1, report.message}};
    return QJsonDocument(
        {{"version"_L1, 1},
         {"shard"_L1, shardText(report.shard)},
         {"total"_L1, report.total},
         {"photos"_L1, photos},
         {"combinedPdf"_L1, report.combinedPdf.isEmpty() ? QJsonValue() : report.combinedPdf},
         {"summary"_L1, summary},
         {"error"_L1, report.error}});
}

QByteArray inOneLine(const QJsonDocument& json) {
    return printableJson(json.toJson(QJsonDocument::Compact)) + '\n';
}

}  // namespace

QByteArray toJson(const BatchReport& report) {
    return printableJson(document(report).toJson());
}

QByteArray toJsonLine(const BatchReport& report) {
    return inOneLine(document(report));
}

QByteArray toJsonLine(const PhotoReport& photo) {
    return inOneLine(QJsonDocument(photoObject(photo)));
}

QString toText(const BatchReport& report) {
    QStringList counts = {
        Words::tr("%Ln written", nullptr, static_cast<int>(report.count(PhotoReport::Status::Written)))};
    if (const qint64 failed = report.count(PhotoReport::Status::Failed); failed > 0) {
        counts.append(Words::tr("%Ln failed", nullptr, static_cast<int>(failed)));
    }
    if (const qint64 notRun = report.count(PhotoReport::Status::NotRun); notRun > 0) {
        counts.append(Words::tr("%Ln not run", nullptr, static_cast<int>(notRun)));
    }
    if (const qint64 warned = report.warned(); warned > 0) {
        counts.append(Words::tr("%Ln with a warning", nullptr, static_cast<int>(warned)));
    }
    // The second line of a message speaks of a window.
    QString text = report.message.section(QLatin1Char('\n'), 0, 0) + QLatin1Char('\n') +
                   counts.join(QStringLiteral(", ")) + QLatin1Char('\n');
    if (!report.combinedPdf.isEmpty()) text += printable(report.combinedPdf) + QLatin1Char('\n');
    return text;
}

}  // namespace zelto
