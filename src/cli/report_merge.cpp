// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/report_merge.h"

#include "batch/batch_observer.h"
#include "cli/batch_report.h"
#include "cli/printable.h"
#include "cli/shard.h"
#include "platform/words.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

struct ShardReport {
    QString file;
    Shard shard;
    qint64 total = 0;
    QJsonObject summary;
    QJsonArray photos;
};

tl::unexpected<Error> wrongReport(const QString& what) {
    return fail(ErrorCode::InvalidValue, what);
}

Result<ShardReport> readReport(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return wrongReport(Words::tr("“%1” cannot be read: %2").arg(path, file.errorString()));
    const QJsonObject report = QJsonDocument::fromJson(file.readAll()).object();
    const QString place = report["shard"_L1].toString();
    if (report["version"_L1].toInt() != 1 || place.isEmpty())
        return wrongReport(Words::tr("“%1” is no report of a shard").arg(path));
    const Result<Shard> shard = parseShard(place, [](const char*) { return QString(); });
    if (!shard) return wrongReport(Words::tr("“%1” is no report of a shard: “%2”").arg(path, place));
    if (const QString error = report["error"_L1].toString(); !error.isEmpty())
        return wrongReport(Words::tr("shard %1 could not be run (“%2”): %3").arg(place, path, error));
    return ShardReport{path, *shard, report["total"_L1].toInteger(), report["summary"_L1].toObject(),
                       report["photos"_L1].toArray()};
}

// Puts the report's photos where they belong in the whole list.
Result<void> place(const ShardReport& report, QMap<qint64, QJsonValue>& photos) {
    const qint64 expected =
        report.total / report.shard.count + (report.total % report.shard.count > report.shard.index ? 1 : 0);
    for (const QJsonValue& photo : report.photos) {
        const qint64 index = photo["index"_L1].toInteger(-1);
        if (index < 0 || index >= report.total || !report.shard.contains(index)) {
            return wrongReport(
                Words::tr("“%1” tells of the photo with the index %2, which shard %3 does not have")
                    .arg(report.file)
                    .arg(index)
                    .arg(shardText(report.shard)));
        }
        if (photos.contains(index))
            return wrongReport(
                Words::tr("“%1” tells of the photo with the index %2 twice").arg(report.file).arg(index));
        photos.insert(index, photo);
    }
    if (report.photos.size() == expected) return {};
    return wrongReport(Words::tr("“%1” tells of %2 photos, but shard %3 has %4")
                           .arg(report.file)
                           .arg(report.photos.size())
                           .arg(shardText(report.shard))
                           .arg(expected));
}

// All photos of the list by their index.
Result<QMap<qint64, QJsonValue>> wholeList(const std::vector<ShardReport>& reports) {
    const ShardReport& first = reports.front();
    QMap<qint64, QString> files;  // by the shard's index
    QMap<qint64, QJsonValue> photos;
    for (const ShardReport& report : reports) {
        if (report.shard.count != first.shard.count || report.total != first.total) {
            return wrongReport(
                Words::tr("“%1” is shard %2 of %3 photos, and “%4” is shard %5 of %6: they are not of "
                          "one list")
                    .arg(report.file, shardText(report.shard))
                    .arg(report.total)
                    .arg(first.file, shardText(first.shard))
                    .arg(first.total));
        }
        if (files.contains(report.shard.index)) {
            return wrongReport(Words::tr("shard %1 is there twice: “%2” and “%3”")
                                   .arg(shardText(report.shard), files[report.shard.index], report.file));
        }
        files.insert(report.shard.index, report.file);
        if (const Result<void> placed = place(report, photos); !placed) return tl::unexpected(placed.error());
    }
    QStringList missing;
    for (qint64 i = 0; i < first.shard.count; ++i)
        if (!files.contains(i)) missing.append(shardText({i, first.shard.count}));
    if (missing.isEmpty()) return photos;
    return wrongReport(
        Words::tr("the reports of these shards are missing: %1").arg(missing.join(QStringLiteral(", "))));
}

}  // namespace

Result<MergedReport> mergeReports(const QStringList& files) {
    std::vector<ShardReport> reports;
    for (const QString& file : files) {
        Result<ShardReport> report = readReport(file);
        if (!report) return tl::unexpected(std::move(report.error()));
        reports.push_back(*std::move(report));
    }
    const auto list = wholeList(reports);
    if (!list) return tl::unexpected(list.error());

    QJsonArray photos;
    for (const QJsonValue& photo : *list) photos.append(photo);
    // Every count is the sum of the shards', so that counts which this version does not know stay right as well.
    QJsonObject summary;
    QStringList messages;
    bool isStopped = false;
    bool isInterrupted = false;
    for (const ShardReport& report : reports) {
        for (auto entry = report.summary.begin(); entry != report.summary.end(); ++entry) {
            if (entry->isDouble())
                summary[entry.key()] = summary[entry.key()].toInteger() + entry->toInteger();
        }
        isStopped = isStopped || report.summary["stopped"_L1].toBool();
        isInterrupted = isInterrupted || report.summary["interrupted"_L1].toBool();
        // A run that was broken off says so.
        const bool isBrokenOff =
            report.summary["stopped"_L1].toBool() || report.summary["interrupted"_L1].toBool();
        if (isBrokenOff)
            messages.append(shardText(report.shard) + u": "_s + report.summary["message"_L1].toString());
    }
    const bool hasFailures = summary["failed"_L1].toInteger() > 0;
    summary["stopped"_L1] = isStopped;
    summary["interrupted"_L1] = isInterrupted;
    summary["message"_L1] =
        !messages.isEmpty() ? messages.join(u' ') : QString(hasFailures ? FailureSummary : SuccessSummary);
    const QJsonObject merged = {
        {"version"_L1, 1},      {"shard"_L1, shardText({})},      {"total"_L1, reports.front().total},
        {"photos"_L1, photos},  {"combinedPdf"_L1, QJsonValue()}, {"summary"_L1, summary},
        {"error"_L1, QString()}};
    return MergedReport{printableJson(QJsonDocument(merged).toJson()),
                        isInterrupted              ? exit_status::Interrupted
                        : isStopped || hasFailures ? exit_status::SomeFailed
                                                   : exit_status::Success};
}

}  // namespace zelto
