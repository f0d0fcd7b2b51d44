// SPDX-License-Identifier: GPL-3.0-or-later
// Originals stay, and whatever ends a run leaves whole files only.
#include "cli/batch_program.h"
#include "support/records.h"
#include "support/testing.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>

namespace zelto {
namespace {

using Safety = BatchProgram;

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(Safety, OutputsThatWouldReplaceOriginalsAreRefused) {
    const QString photo = makePhoto(u"a.png"_s);
    const QString other = makePhoto(u"sub/b.png"_s);
    const QByteArray before = contents(photo);
    ASSERT_TRUE(QFile::link(path(u"in"_s), path(u"alias"_s)));
    const QStringList named = {u"-s"_s, path(u"mark.zcs"_s), u"-o"_s};
    const std::pair<QStringList, int> rows[] = {
        {named + QStringList{path(u"in"_s), photo}, 2},
        {named + QStringList{path(u"in/sub/.."_s), photo}, 2},
        {named + QStringList{path(u"alias"_s), photo}, 2},
        {named + QStringList{path(u"in"_s), path(u"alias/a.png"_s)}, 2},
        {named + QStringList{path(QString()), u"-r"_s, u"--keep-structure"_s, path(u"in"_s)}, 2},
        {named + QStringList{path(u"in"_s), u"--rename"_s, u"a"_s, other, photo}, 2},
        {named + QStringList{path(u"in"_s), u"--dry-run"_s, photo}, 2},
        {named + QStringList{path(u"in"_s), u"-f"_s, u"jpg"_s, photo}, 0},
        {named + QStringList{path(u"in"_s), u"--shard"_s, u"1/2"_s, photo, other}, 0},
    };
    for (const auto& [arguments, exitStatus] : rows) {
        const ProgramRun result = runBare(arguments);
        EXPECT_EQ(result.exitStatus, exitStatus) << arguments.join(u' ').toStdString();
        EXPECT_EQ(result.errors.contains("--overwrite-originals"), exitStatus == 2);
        EXPECT_EQ(contents(photo), before);
    }
    EXPECT_EQ(runBare(named + QStringList{path(u"in"_s), u"--overwrite-originals"_s, photo}).exitStatus, 0);
    EXPECT_TRUE(isMarked(QImage(photo)));
}

TEST_F(Safety, OriginalsAreKnownWhereLetterCaseIsIgnored) {
    const QString photo = makePhoto(u"IMG_1.PNG"_s);
    const QByteArray before = contents(photo);
    const ProgramRun result =
        runBare({u"-s"_s, path(u"mark.zcs"_s), u"-o"_s, path(u"in"_s), photo},
                {{u"LD_PRELOAD"_s, QStringLiteral(ZELTO_FAULTS)}, {u"FOLD_BELOW"_s, path(QString())}});
    EXPECT_EQ(result.exitStatus, 2) << result.errors.toStdString();
    EXPECT_EQ(contents(photo), before);
    EXPECT_EQ(filesBelow(u"in"_s).keys(), QStringList(u"IMG_1.PNG"_s));
}

TEST_F(Safety, NothingIsPrintedButLinesOfOurOwnWhateverThePicturesHold) {
    QStringList photos;
    for (const QString& kind :
         {u"jpeg"_s, u"png"_s, u"tiff"_s, u"gif"_s, u"bmp"_s, u"webp"_s, u"heif"_s, u"jxl"_s, u"raw"_s}) {
        QDirIterator files(QStringLiteral(ZELTO_SOURCE_DIR "/fuzz/corpus/") + kind, QDir::Files);
        while (files.hasNext()) {
            QByteArray bytes = contents(files.next());
            const auto add = [&](const QByteArray& damaged) {
                photos += makeFile(u"in/%1.%2"_s.arg(photos.size()).arg(kind), damaged);
            };
            for (const int part : {3, 5, 7}) add(bytes.first(bytes.size() * part / 8));
            for (const int part : {1, 2, 3, 4, 5, 6, 7}) {
                QByteArray faulty = bytes;
                faulty[faulty.size() * part / 8] =
                    static_cast<char>(faulty.at(faulty.size() * part / 8) ^ 0x5A);
                add(faulty);
            }
        }
    }
    const ProgramRun result = run(QStringList{u"--on-repeated-failure"_s, u"continue"_s} + photos);
    EXPECT_EQ(result.exitStatus, 1);
    int failed = 0;
    for (const QByteArray& line : result.errors.split('\n')) {
        failed += line.startsWith("zelto-batch: ") ? 1 : 0;
        EXPECT_TRUE(line.isEmpty() || line.startsWith("zelto-batch: /") || line.startsWith("["))
            << line.constData();
    }
    EXPECT_GT(failed, photos.size() / 3);
}

TEST_F(Safety, LittleMemoryIsToldInWords) {
    // A text and a picture large enough that Qt would draw them on threads of its own.
    useSetting(everyKind());
    const QString photo = makePhoto(u"a.png"_s, {600, 400});
    ASSERT_EQ(run({photo}).exitStatus, 0);
    const Files whole = filesBelow(u"out"_s);
    int written = 0;
    for (const int megabytes : {110, 130, 150, 170, 190, 210, 230, 260, 1000}) {
        QDir(path(u"out"_s)).removeRecursively();
        const QString limited = u"ulimit -v %1; exec \"$0\" \"$@\""_s.arg(megabytes * 1024);
        const ProgramRun result =
            runProgram(u"/bin/sh"_s, QStringList{u"-c"_s, limited, program()} + withSetting({photo}));
        SCOPED_TRACE(::testing::Message() << megabytes << " MB: " << result.errors.toStdString());
        EXPECT_THAT(result.exitStatus, ::testing::AnyOf(0, 1, 2));
        EXPECT_EQ(differences(filesBelow(u"out"_s), result.exitStatus == 0 ? whole : Files()), "");
        EXPECT_TRUE(result.exitStatus == 0 || result.errors.contains("memory"));
        written += result.exitStatus == 0 ? 1 : 0;
    }
    EXPECT_GT(written, 0);
}

TEST_F(Safety, AnOutputReadByALaterPhotoIsReadAsItWasWritten) {
    // The second photo is what the first one's output has replaced by then, whatever is prepared ahead.
    const QString first = makePhoto(u"first/a.png"_s, {40, 30});
    const QString second = makePhoto(u"a.png"_s, {80, 60});
    ASSERT_EQ(
        run({u"-o"_s, path(u"in"_s), u"--overwrite-originals"_s, u"-j"_s, u"4"_s, first, second}).exitStatus,
        0);
    EXPECT_EQ(QImage(second).size(), QSize(40, 30));
}

TEST_F(Safety, BySignalARunEndsAfterThePhotoInHandAndSaysWhatItDid) {
    // Enough copies of one photo that no machine is through before a signal arrives.
    constexpr int Photos = 400;
    QStringList photos = {makePhoto(u"original.png"_s, {640, 480})};
    while (photos.size() < Photos) {
        photos.append(path(u"in/%1.png"_s.arg(photos.size())));
        EXPECT_TRUE(QFile::link(photos.first(), photos.last()));
    }
    for (const int signal : {SIGINT, SIGTERM}) {
        const ProgramRun result =
            runAndSignal(program(), withSetting(QStringList{u"--json"_s} + photos), 2, signal);
        EXPECT_EQ(result.exitStatus, 130);
        const QJsonObject report = QJsonDocument::fromJson(result.output).object();
        QStringList written;
        for (const QJsonValue& photo : report["photos"_L1].toArray()) {
            if (photo["status"_L1].toString() == "written"_L1) written.append(photo["output"_L1].toString());
        }
        ASSERT_GE(written.size(), 2);
        EXPECT_LT(written.size(), photos.size());
        EXPECT_EQ(outputs().size(), written.size());
        for (const QString& name : outputs()) EXPECT_TRUE(isMarked(output(name))) << name.toStdString();
        QDir(path(u"out"_s)).removeRecursively();
    }
}

}  // namespace
}  // namespace zelto
