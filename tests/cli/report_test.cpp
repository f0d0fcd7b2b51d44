// SPDX-License-Identifier: GPL-3.0-or-later
// What a run tells of itself: the JSON report, the dry run, the exit status, and what is printed where.
#include "cli/batch_program.h"
#include "persistence/setting_file.h"
#include "support/test_pictures.h"

#include <QFile>
#include <QJsonArray>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;
using Report = BatchProgram;

constexpr auto Damaged = "Image may be damaged or use a file format not supported by Zelto."_L1;

// "index status width x height error" of every photo.
QStringList photoLines(const QJsonObject& report) {
    QStringList lines;
    for (const QJsonValue& value : report["photos"_L1].toArray()) {
        const QJsonObject photo = value.toObject();
        lines.append(QStringLiteral("%1 %2 %3x%4 %5")
                         .arg(photo["index"_L1].toInt())
                         .arg(photo["status"_L1].toString())
                         .arg(photo["width"_L1].toInt())
                         .arg(photo["height"_L1].toInt())
                         .arg(photo["error"_L1].toString())
                         .trimmed());
    }
    return lines;
}

QString summary(const QJsonObject& report) {
    const QJsonObject object = report["summary"_L1].toObject();
    return QStringLiteral("%1/%2/%3 %4")
        .arg(object["written"_L1].toInt())
        .arg(object["failed"_L1].toInt())
        .arg(object["notRun"_L1].toInt())
        .arg(object["stopped"_L1].toBool() ? "stopped"_L1 : "through"_L1);
}

TEST_F(Report, DamagedPhotosAmongGoodOnesFailAlone) {
    const QByteArray jpeg = jpegBytes(drawnScene({200, 100}));
    const QString cut = makeFile(u"in/cut.jpg"_s, jpeg.left(jpeg.size() / 2));
    const QStringList photos = {makePhoto(u"a.png"_s),
                                cut,
                                makePhoto(u"b.png"_s, {30, 40}),
                                makeFile(u"in/empty.png"_s, {}),
                                makeFile(u"in/text.tif"_s, "no photo"),
                                makeFile(u"in/c.jpg"_s, jpeg)};
    for (const QString& jobs : {u"1"_s, u"4"_s}) {
        const QJsonObject report = this->report(QStringList{u"-j"_s, jobs} + photos, 1);
        EXPECT_EQ(photoLines(report), QStringList({u"0 written 64x48"_s, u"1 failed 0x0 "_s + Damaged,
                                                   u"2 written 30x40"_s, u"3 failed 0x0 "_s + Damaged,
                                                   u"4 failed 0x0 "_s + Damaged, u"5 written 200x100"_s}));
        EXPECT_EQ(summary(report), u"3/3/0 through"_s);
        EXPECT_EQ(outputs(), QStringList({u"a.png"_s, u"b.png"_s, u"c.jpg"_s}));
        const QJsonObject first = report["photos"_L1].toArray().first().toObject();
        EXPECT_EQ(first["source"_L1].toString(), photos.first());
        EXPECT_EQ(first["output"_L1].toString(), path(u"out/a.png"_s));
        EXPECT_TRUE(report["combinedPdf"_L1].isNull());
        EXPECT_EQ(report["version"_L1].toInt(), 1);
    }
}

TEST_F(Report, RepeatedFailuresStopTheRunUnlessToldToContinue) {
    QStringList photos;
    for (int i = 0; i < 5; ++i) photos.append(makeFile(u"in/%1.jpg"_s.arg(i), "no photo"));
    photos.append(makePhoto(u"5.png"_s));
    const QJsonObject stopped = report(photos, 1);
    EXPECT_EQ(summary(stopped), u"0/3/3 stopped"_s);
    EXPECT_NE(stopped["summary"_L1]["message"_L1].toString(), QString());
    EXPECT_EQ(outputs(), QStringList());
    const QJsonObject continued = report(QStringList{u"--on-repeated-failure"_s, u"continue"_s} + photos, 1);
    EXPECT_EQ(summary(continued), u"1/5/0 through"_s);
}

TEST_F(Report, ASizeOfNothingAndAnUnknownExtensionAreFailures) {
    const QString photo = makePhoto(u"a.png"_s);
    const QString nameless = path(u"in/nameless"_s);
    ASSERT_TRUE(QFile::copy(photo, nameless));
    EXPECT_EQ(photoLines(report({u"--resize-pixels"_s, u"0x0"_s, photo}, 1)),
              QStringList(u"0 failed 0x0 Watermarking failed."_s));
    EXPECT_EQ(photoLines(report({nameless, photo}, 1)),
              QStringList({u"0 failed 0x0 Watermarking failed."_s, u"1 written 64x48"_s}));
    EXPECT_EQ(photoLines(report({u"-f"_s, u"png"_s, nameless}, 0)), QStringList(u"0 written 64x48"_s));
}

TEST_F(Report, ADryRunTellsWhatARunWouldDoAndWritesNothing) {
    WatermarkStack framed;
    framed.Effects.emplace();
    framed.Effects->BlurRadius = 8;
    framed.Effects->Distance = 5;
    framed.Effects->Direction = 315;
    ASSERT_TRUE(SaveWatermarkSettings(framed, path(u"framed.zcs"_s)));
    const QStringList photos = {makePhoto(u"a.png"_s), makeFile(u"in/b.jpg"_s, "no photo"),
                                makePhoto(u"c.bmp"_s, {20, 10})};
    const QStringList arguments =
        QStringList{u"-s"_s, path(u"framed.zcs"_s), u"--rename"_s, u"[O]_[##]"_s} + photos;
    const QJsonObject planned = report(QStringList(u"--dry-run"_s) + arguments, 0);
    EXPECT_FALSE(QFile::exists(path(u"out"_s)));
    EXPECT_EQ(summary(planned), u"0/0/3 through"_s);

    const QJsonArray before = planned["photos"_L1].toArray();
    const QJsonArray after = report(arguments, 1)["photos"_L1].toArray();
    ASSERT_EQ(before.size(), after.size());
    for (qsizetype i = 0; i < after.size(); ++i) {
        EXPECT_EQ(before[i]["status"_L1].toString(), u"not-run"_s);
        for (const auto& key : {"output"_L1, "width"_L1, "height"_L1, "error"_L1})
            EXPECT_EQ(before[i].toObject()[key], after[i].toObject()[key]) << key.data() << " of photo " << i;
    }

    const ProgramRun text = run(QStringList(u"--dry-run"_s) + arguments);
    EXPECT_EQ(
        text.output.split('\n').first(),
        QByteArrayList({path(u"in/a.png"_s).toUtf8(), path(u"out/a_01.png"_s).toUtf8(), "90x74"}).join('\t'));
}

TEST_F(Report, PagesOfACombinedPdfHaveItsPath) {
    const QStringList arguments = {u"-f"_s, u"pdf"_s, u"--combine-pdf"_s, makePhoto(u"a.png"_s),
                                   makePhoto(u"b.png"_s)};
    const QString pdf = path(u"out/WatermarkedPhotos.pdf"_s);
    EXPECT_EQ(report(QStringList(u"--dry-run"_s) + arguments, 0)["photos"_L1][1]["output"_L1].toString(),
              pdf);
    const QJsonObject report = this->report(arguments, 0);
    EXPECT_EQ(report["combinedPdf"_L1].toString(), pdf);
    EXPECT_EQ(report["photos"_L1][1]["output"_L1].toString(), pdf);
}

TEST_F(Report, AJsonReportTellsWhyNothingWasRun) {
    for (const QStringList& arguments : {QStringList(u"--bogus"_s), QStringList(path(u"none.jpg"_s))}) {
        const QJsonObject report = this->report(arguments, 2);
        EXPECT_NE(report["error"_L1].toString(), QString());
        EXPECT_TRUE(report["photos"_L1].toArray().isEmpty());
    }
}

TEST_F(Report, ResultsGoToStandardOutputAndTheRestToStandardError) {
    const QString photo = makePhoto(u"a.png"_s);
    const QString broken = makeFile(u"in/b.png"_s, "no photo");
    const ProgramRun loud = run({photo, broken});
    EXPECT_TRUE(loud.output.contains("1 written, 1 failed"));
    EXPECT_TRUE(loud.errors.contains("[1/2] " + path(u"out/a.png"_s).toUtf8()));
    EXPECT_TRUE(loud.errors.contains(Damaged.data()));
    EXPECT_FALSE(loud.errors.contains('\x1b')) << "no terminal, no colors";
    const ProgramRun quiet = run({u"--quiet"_s, photo, broken});
    EXPECT_EQ(quiet.output, QByteArray());
    EXPECT_EQ(quiet.errors.count('\n'), 1) << quiet.errors.toStdString();
    EXPECT_EQ(run({u"--quiet"_s, photo}).errors, QByteArray());
}

}  // namespace
}  // namespace zelto
