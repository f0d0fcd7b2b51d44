// SPDX-License-Identifier: GPL-3.0-or-later
// What a run tells of itself: the JSON report, the dry run, the exit status, and what is printed where.
#include "cli/batch_program.h"
#include "persistence/setting_file.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace zelto {
namespace {

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
    const QJsonObject report = this->report(photos, 1);
    EXPECT_EQ(photoLines(report), QStringList({u"0 written 64x48"_s, u"1 failed 0x0 "_s + Damaged,
                                               u"2 written 30x40"_s, u"3 failed 0x0 "_s + Damaged,
                                               u"4 failed 0x0 "_s + Damaged, u"5 written 200x100"_s}));
    EXPECT_EQ(summary(report), u"3/3/0 through"_s);
    EXPECT_EQ(outputs(), QStringList({u"a.png"_s, u"b.png"_s, u"c.jpg"_s}));
    EXPECT_EQ(report["photos"_L1][0]["output"_L1].toString(), path(u"out/a.png"_s));
    EXPECT_TRUE(report["combinedPdf"_L1].isNull());
    EXPECT_EQ(report["version"_L1].toInt(), 1);
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
    // The pages of a document that is thrown away were not written.
    const QStringList pages = QStringList{u"-f"_s, u"pdf"_s, u"--combine-pdf"_s, photos.last()} + photos;
    const QJsonObject thrownAway = report(pages, 1);
    EXPECT_EQ(summary(thrownAway), u"0/3/3 stopped"_s);
    EXPECT_EQ(photoLines(thrownAway).first(), u"0 not-run 0x0 The combined PDF was not finished."_s);
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

    QDir(path(u"out"_s)).removeRecursively();
    QDir().mkpath(path(u"out"_s));
    const QDateTime made = QFileInfo(path(u"out"_s)).lastModified();
    const ProgramRun text = run(QStringList(u"--dry-run"_s) + arguments);
    EXPECT_EQ(QFileInfo(path(u"out"_s)).lastModified(), made) << "not even for a moment";
    EXPECT_EQ(
        text.output.split('\n').first(),
        QByteArrayList({path(u"in/a.png"_s).toUtf8(), path(u"out/a_01.png"_s).toUtf8(), "90x74"}).join('\t'));
}

TEST_F(Report, OutputsOfOneNameAreToldAndKeptApartAsAsked) {
    const QString in = path(u"in"_s);
    const QStringList photos = {makePhoto(u"1/a.png"_s, {30, 20}), makePhoto(u"2/a.png"_s, {40, 20}),
                                makeFile(u"in/3/a.png"_s, "no photo"), makePhoto(u"4/a.png"_s, {50, 20})};
    const auto kinds = [](const QJsonObject& report) {
        QString told;
        for (const QJsonValue& photo : report["photos"_L1].toArray())
            told += photo["warnings"_L1][0]["kind"_L1].toString() + u'.';
        return told;
    };
    const QJsonObject replaced = report(photos, 1);
    EXPECT_EQ(kinds(replaced), u".same-name..same-name."_s);
    EXPECT_EQ(replaced["summary"_L1]["warned"_L1].toInt(), 2);
    EXPECT_EQ(output(u"a.png"_s).width(), 50);

    const QStringList numbered = QStringList{u"--same-name"_s, u"number"_s} + photos;
    const QJsonObject planned = report(QStringList(u"--dry-run"_s) + numbered, 0);
    const QJsonObject written = report(numbered, 1);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(planned["photos"_L1][i]["output"_L1], written["photos"_L1][i]["output"_L1]);
    EXPECT_EQ(kinds(written), u"...."_s);
    EXPECT_EQ(output(u"a1.png"_s).width(), 40);
    EXPECT_EQ(output(u"a3.png"_s).width(), 50) << "a photo that fails keeps its name";

    const QStringList careful = QStringList{u"--same-name"_s, u"fail"_s, u"--existing"_s, u"skip"_s} + photos;
    const QJsonObject refused = report(careful, 1);
    EXPECT_EQ(summary(refused), u"0/3/1 through"_s) << "left out: a.png exists already";
    EXPECT_NE(refused["photos"_L1][0]["error"_L1].toString(), QString());
    EXPECT_EQ(outputs(), QStringList({u"a.png"_s, u"a1.png"_s, u"a3.png"_s}));
    // In place, but under other names: nothing is replaced, so nothing is refused.
    EXPECT_EQ(run({u"-o"_s, path(u"in/1"_s), u"--existing"_s, u"number"_s, photos.first()}).exitStatus, 0);
    EXPECT_EQ(filesBelow(u"in/1"_s).keys(), QStringList({u"a.png"_s, u"a1.png"_s}));
}

TEST_F(Report, WhatIsPrintedCannotDriveATerminalAndJsonStaysExact) {
    const QString name = u"in/a\x1b[2J\n\x7f\u009b\u2028\u202e.png"_s;
    const QString photo = path(name);
    ASSERT_TRUE(QFile::copy(makePhoto(u"b.png"_s), photo));
    const QByteArray shown = R"(a\u001B[2J\u000A\u007F\u009B\u2028\u202E.png)";
    const ProgramRun good = run({photo});
    EXPECT_EQ(good.errors, "[1/1] " + path(u"out/"_s).toUtf8() + shown + '\n');
    EXPECT_TRUE(run({u"--dry-run"_s, photo}).output.startsWith(path(u"in/"_s).toUtf8() + shown + '\t'));
    EXPECT_TRUE(run({path(u"none\n"_s)}).errors.contains(R"(none\u000A)"));
    const ProgramRun json = run({u"--json"_s, photo});
    EXPECT_TRUE(json.output.contains(R"([2J\n\u007F\u009B)")) << json.output.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(json.output)["photos"_L1][0]["source"_L1].toString(), photo);
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
    for (const auto& torn : {u">&-"_s, u">/dev/full"_s, u"2>/dev/full"_s, u">&- 2>&- <&-"_s}) {
        const QStringList line = {u"-c"_s, u"exec \"$0\" \"$@\" "_s + torn, program()};
        EXPECT_EQ(runProgram(u"/bin/sh"_s, line + withSetting({photo})).exitStatus, 0) << torn.toStdString();
    }
}

TEST_F(Report, TellsWhyAMarkDidNotArriveAndStrictLeavesThatPhotoUnwritten) {
    WatermarkStack stack;
    stack.Watermarks.emplace_back(watermark_type::Image).ImagePath = path(u"gone.png"_s);
    useSetting(stack);
    const QString photo = makePhoto(u"a.png"_s);
    for (const bool strict : {true, false}) {
        const QStringList arguments = strict ? QStringList{u"--strict"_s, photo} : QStringList{photo};
        EXPECT_EQ(run(arguments).errors.count("gone.png"), 1) << "told once";
        const QJsonObject report = this->report(arguments, strict);
        const QJsonObject told = report["photos"_L1].toArray().first().toObject();
        const QJsonObject warning = told["warnings"_L1].toArray().first().toObject();
        EXPECT_EQ(warning["kind"_L1], u"logo-unreadable"_s);
        EXPECT_EQ(warning["watermark"_L1], 0);
        EXPECT_EQ(report["summary"_L1].toObject()["warned"_L1], 1);
        EXPECT_EQ(told["error"_L1], strict ? warning["text"_L1] : QJsonValue(u""_s));
        EXPECT_EQ(outputs().isEmpty(), strict);
    }
}

}  // namespace
}  // namespace zelto
