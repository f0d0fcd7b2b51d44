// SPDX-License-Identifier: GPL-3.0-or-later
// Long lists, damaged photos and sudden ends: what is written is whole, in order, and the same however it comes about.
#include "cli/batch_program.h"
#include "pictures/picture_writer.h"
#include "support/exiftool.h"
#include "support/records.h"
#include "support/testing.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <future>
#include <random>

namespace zelto {
namespace {

using Endurance = BatchProgram;

TEST_F(Endurance, MixedAndDamagedPhotosComeOutTheSameForAnyNumberOfJobs) {
    QStringList extensions{u"jpg"_s,  u"png"_s, u"tif"_s,  u"bmp"_s, u"webp"_s,
                           u"avif"_s, u"jxl"_s, u"heic"_s, u"png"_s};
    extensions.removeIf([](const QString& extension) { return !pictureFormatForExtension(extension); });
    const auto isDamaged = [](qsizetype row) { return row % 11 == 5; };
    QStringList photos;
    for (int row = 0; row < 90; ++row) {
        const QSize size(40 + 7 * (row % 31), 30 + 11 * (row % 13));
        // Some share their names, and the last of them counts.
        const QString name = row % 30 == 8 ? u"same"_s : u"photo%1"_s.arg(row);
        const QString& extension = extensions[row % extensions.size()];
        const QImage scene = row % 3 == 1 ? drawnSceneWithAlpha(size) : drawnScene(size);
        const QByteArray whole =
            encodePicture(scene, pictureFormatForExtension(extension).value(), {}).value();
        photos.append(makeFile(u"in/%1/%2.%3"_s.arg(row).arg(name, extension),
                               isDamaged(row) ? whole.first(whole.size() * 2 / 3) : whole));
    }
    // A number of its own for each photo, so that none can stand for another.
    WatermarkStack stack = everyKind();
    stack.Watermarks.push_back(textRecord(u"<<AUTO:##1+1>> <<MODDATE[DD, D. MM]>>"_s, 14));
    useSetting(stack);

    ProgramRun first;
    Files firstFiles;
    for (const QString& jobs : {u"1"_s, u"2"_s, u"8"_s}) {
        const ProgramRun result = run(QStringList{u"--json"_s, u"-j"_s, jobs} + photos);
        ASSERT_EQ(result.exitStatus, 1) << jobs.toStdString();
        const Files files = filesBelow(u"out"_s);
        if (jobs == u"1"_s) {
            first = result;
            firstFiles = files;
            EXPECT_EQ(QSet<QByteArray>(files.begin(), files.end()).size(), files.size());
            const QJsonArray report = QJsonDocument::fromJson(result.output)["photos"_L1].toArray();
            ASSERT_EQ(report.size(), photos.size());
            for (qsizetype row = 0; row < report.size(); ++row) {
                EXPECT_EQ(report[row]["source"_L1].toString(), photos[row]);
                EXPECT_EQ(report[row]["status"_L1].toString(), isDamaged(row) ? u"failed"_s : u"written"_s);
            }
        }
        EXPECT_EQ(result.output, first.output) << jobs.toStdString();
        EXPECT_EQ(result.errors, first.errors) << "progress in list order, " << jobs.toStdString();
        EXPECT_EQ(differences(files, firstFiles), "") << jobs.toStdString();
        QDir(path(u"out"_s)).removeRecursively();
    }
}

TEST_F(Endurance, AKilledRunLeavesWholeFilesAndAnotherCompletesThem) {
    QStringList photos;
    for (int i = 0; i < 3; ++i) photos.append(makePhoto(u"plain%1.png"_s.arg(i), {300, 200}));
    photos.append(makeFile(u"in/tagged.jpg"_s, jpegBytes(drawnScene({200, 150}))));
    ASSERT_TRUE(writeTags({u"-Artist=Ann"_s, u"-GPSLatitude=47"_s, u"-GPSLatitudeRef=N"_s}, {photos.last()}));
    const Files sources = filesBelow(u"in"_s);
    const QStringList arguments = QStringList{u"--metadata"_s, u"no-gps"_s} + photos;
    const auto outputsOf = [&](const ProgramEnvironment& environment) {
        EXPECT_EQ(run(arguments, environment).exitStatus, 0);
        Files files = filesBelow(u"out"_s);
        // A file that has all its bytes and only waits for its name has one of this kind.
        files.removeIf([](const auto& file) { return file.key().startsWith(".zelto-"_L1); });
        return files;
    };
    // An output has two whole states: as it was encoded, and with its metadata.
    const Files encoded = outputsOf({{u"ZELTO_EXIFTOOL"_s, u"/nowhere"_s}});
    QElapsedTimer clock;
    clock.start();
    const Files complete = outputsOf({});
    const auto duration = static_cast<int>(clock.elapsed());

    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    for (int round = 0; round < 20; ++round) {
        // Every other time it finds what others have left.
        if (round % 2 == 0) QDir(path(u"out"_s)).removeRecursively();
        const int moment = std::uniform_int_distribution<int>(0, duration)(random);
        SCOPED_TRACE(::testing::Message() << "seed " << seed << ", after " << moment << " ms");
        runAndKill(program(), withSetting(arguments), moment);
        const Files left = filesBelow(u"out"_s);
        for (auto file = left.begin(); file != left.end(); ++file) {
            EXPECT_TRUE(file.key().startsWith(".zelto-"_L1) || *file == encoded[file.key()] ||
                        *file == complete[file.key()])
                << file.key().toStdString() << ": " << file->size();
        }
        ASSERT_EQ(differences(filesBelow(u"in"_s), sources), "");
    }
    EXPECT_EQ(differences(outputsOf({}), complete), "");
}

TEST_F(Endurance, RunsAtOnceOverTheSameOutputsLoseNone) {
    QStringList photos;
    for (int i = 0; i < 6; ++i) photos.append(makePhoto(u"%1.jpg"_s.arg(i)));
    ASSERT_TRUE(writeTags({u"-Artist=Ann"_s}, photos));
    ASSERT_EQ(run(photos).exitStatus, 0);
    const Files alone = filesBelow(u"out"_s);
    for (int round = 0; round < 3; ++round) {
        QDir(path(u"out"_s)).removeRecursively();
        std::vector<std::future<ProgramRun>> runs;
        for (int i = 0; i < 3; ++i)
            runs.push_back(std::async(std::launch::async, [&] { return run(photos); }));
        for (std::future<ProgramRun>& ended : runs) EXPECT_EQ(ended.get().exitStatus, 0);
        EXPECT_EQ(differences(alone, filesBelow(u"out"_s)), "");
    }
}

}  // namespace
}  // namespace zelto
