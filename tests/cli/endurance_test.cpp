// SPDX-License-Identifier: GPL-3.0-or-later
// Long lists, damaged photos, sudden ends and full disks: what is written is whole, in order, and the same however
// it comes about.
#include "cli/batch_program.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <future>
#include <random>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

using Endurance = BatchProgram;

const ProgramEnvironment NoExiftool = {{u"ZELTO_EXIFTOOL"_s, u"/nowhere"_s}};

// The file of one photo of a long list: of every kind and size, some of them damaged in every way.
QByteArray photoBytes(int row, const char* format, bool isDamaged) {
    const QSize size(40 + 7 * (row % 31), 30 + 11 * (row % 13));
    QBuffer buffer;
    EXPECT_TRUE((row % 3 == 1 ? drawnSceneWithAlpha(size) : drawnScene(size)).save(&buffer, format));
    const QByteArray damages[] = {{},
                                  "no photo, whatever its name says",
                                  buffer.data().first(20),
                                  buffer.data().first(buffer.size() / 2)};
    return isDamaged ? damages[row % 4] : buffer.data();
}

TEST_F(Endurance, MixedAndDamagedPhotosComeOutTheSameForAnyNumberOfJobs) {
    constexpr int Photos = 120;
    static const char* const formats[] = {"jpg", "png", "tif", "bmp", "png"};
    // Every twelfth, and five in a row.
    const auto isDamaged = [](int row) { return row % 12 == 5 || (row >= 80 && row < 85); };
    QStringList photos;
    for (int row = 0; row < Photos; ++row) {
        const char* const format = formats[row % 5];
        // Some share their names, and the last of them counts.
        const QString name = row % 30 == 8 ? u"same"_s : u"photo%1"_s.arg(row);
        photos.append(makeFile(u"in/%1/%2.%3"_s.arg(row).arg(name, QLatin1String(format)),
                               photoBytes(row, format, isDamaged(row))));
    }
    // A number of its own for each photo, so that none can stand for another.
    WatermarkStack stack;
    stack.Watermarks.emplace_back(watermark_type::Text);
    stack.Watermarks.back().Text = u"<<AUTO:##1+1>>"_s;
    stack.Watermarks.back().FontSize = 14;
    stack.Watermarks.back().TextColor = Color::black();
    stack.Watermarks.back().Transparency = 1.0F;
    useSetting(stack);

    QByteArray firstReport;
    Files firstFiles;
    for (const QString& jobs : {u"1"_s, u"2"_s, u"8"_s}) {
        const ProgramRun result =
            run(QStringList{u"--json"_s, u"--on-repeated-failure"_s, u"continue"_s, u"-j"_s, jobs} + photos);
        ASSERT_EQ(result.exitStatus, 1) << jobs.toStdString();
        const QJsonArray report = QJsonDocument::fromJson(result.output)["photos"_L1].toArray();
        ASSERT_EQ(report.size(), Photos);
        QByteArray progress;
        for (int row = 0; row < Photos; ++row) {
            const QJsonObject photo = report[row].toObject();
            EXPECT_EQ(photo["source"_L1].toString(), photos[row]);
            EXPECT_EQ(photo["status"_L1].toString(), isDamaged(row) ? u"failed"_s : u"written"_s) << row;
            const QString output = photo["output"_L1].toString();
            if (!isDamaged(row)) progress += u"[%1/%2] %3\n"_s.arg(row + 1).arg(Photos).arg(output).toUtf8();
        }
        QByteArray told;
        for (const QByteArray& line : result.errors.split('\n')) {
            if (line.startsWith('[')) told += line + '\n';
        }
        EXPECT_EQ(told, progress) << "in list order";
        const Files files = filesBelow(u"out"_s);
        if (firstFiles.isEmpty()) {
            firstReport = result.output;
            firstFiles = files;
            EXPECT_EQ(QSet<QByteArray>(files.begin(), files.end()).size(), files.size());
        }
        EXPECT_EQ(result.output, firstReport) << jobs.toStdString();
        EXPECT_EQ(differences(files, firstFiles), "") << jobs.toStdString();
        QDir(path(u"out"_s)).removeRecursively();
    }
}

// Photos with metadata, whose outputs can be in two whole states: as they were encoded, and with their metadata.
class WholeFiles : public BatchProgram {
  protected:
    WholeFiles() {
        for (int i = 0; i < 2; ++i) {
            photos_.append(makeFile(u"in/%1.jpg"_s.arg(i), jpegBytes(drawnScene({200 + 200 * i, 150}))));
        }
        EXPECT_TRUE(writeTags({u"-Artist=Ann"_s, u"-GPSLatitude=47"_s, u"-GPSLatitudeRef=N"_s,
                               u"-Comment="_s + QString(5000, u'x')},
                              photos_));
        for (int i = 0; i < 3; ++i) photos_.insert(i, makePhoto(u"plain%1.png"_s.arg(i), {300, 200}));
        sources_ = filesBelow(u"in"_s);
        encoded_ = outputsOf(NoExiftool);
    }
    // To be called first: which metadata the outputs get.
    void choose(const QString& metadata) {
        options_ = QStringList{u"--metadata"_s, metadata};
        complete_ = outputsOf();
        ASSERT_EQ(complete_.keys(), encoded_.keys());
    }
    Files outputsOf(const ProgramEnvironment& environment = {}) const {
        EXPECT_EQ(run(options_ + photos_, environment).exitStatus, 0);
        const Files files = filesBelow(u"out"_s);
        QDir(path(u"out"_s)).removeRecursively();
        return files;
    }
    void expectWhole(const QString& name, const QByteArray& content) const {
        EXPECT_TRUE(content == encoded_[name] || content == complete_[name])
            << name.toStdString() << ": " << content.size();
    }

    QStringList options_;
    QStringList photos_;
    Files sources_;
    Files encoded_;
    Files complete_;
};

TEST_F(WholeFiles, AreAllThatAKilledRunLeavesAndAnotherCompletesThem) {
    photos_.removeLast();  // one with metadata is enough
    encoded_ = outputsOf(NoExiftool);
    choose(u"no-gps"_s);
    QElapsedTimer clock;
    clock.start();
    const QStringList arguments = withSetting(options_ + photos_);
    runAndKill(program(), arguments, 120'000);
    const auto duration = static_cast<int>(clock.elapsed());
    EXPECT_EQ(differences(filesBelow(u"out"_s), complete_), "");

    const unsigned seed = std::random_device()();
    std::mt19937 random(seed);
    for (int round = 0; round < 20; ++round) {
        // Every other time it finds what others have left.
        if (round % 2 == 0) QDir(path(u"out"_s)).removeRecursively();
        const int moment = std::uniform_int_distribution<int>(0, duration)(random);
        SCOPED_TRACE(::testing::Message() << "seed " << seed << ", after " << moment << " ms");
        runAndKill(program(), arguments, moment);
        const Files left = filesBelow(u"out"_s);
        for (auto file = left.begin(); file != left.end(); ++file) {
            // A file that has all its bytes and only waits for its name has one of this kind.
            if (!file.key().startsWith(".zelto-"_L1)) expectWhole(file.key(), *file);
        }
        ASSERT_EQ(differences(filesBelow(u"in"_s), sources_), "");
    }
    EXPECT_EQ(run(options_ + photos_).exitStatus, 0);
    Files files = filesBelow(u"out"_s);
    files.removeIf([](const auto& file) { return file.key().startsWith(".zelto-"_L1); });
    EXPECT_EQ(differences(files, complete_), "");
}

TEST_F(WholeFiles, AreAllThatAFullDiskTakes) {
    // Room for all files but one, which is larger than any may be.
    const QString script =
        u"trap '' XFSZ; ulimit -f %1; exec \"$0\" \"$@\""_s.arg(encoded_[u"1.jpg"_s].size() / 1024);
    for (const QString& metadata : {u"all"_s, u"no-gps"_s}) {
        choose(metadata);
        const ProgramRun result = runProgram(u"bash"_s, QStringList{u"-c"_s, script, program(), u"--json"_s} +
                                                            withSetting(options_ + photos_));
        EXPECT_EQ(result.exitStatus, 1) << result.errors.toStdString();
        QStringList written;
        for (const QJsonValue& photo : QJsonDocument::fromJson(result.output)["photos"_L1].toArray()) {
            const bool succeeded = photo["status"_L1].toString() == "written"_L1;
            if (succeeded) written.append(QFileInfo(photo["output"_L1].toString()).fileName());
            EXPECT_EQ(photo["error"_L1].toString(), succeeded ? QString() : u"Watermarking failed."_s);
        }
        EXPECT_FALSE(written.isEmpty());
        written.sort();
        const Files files = filesBelow(u"out"_s);
        EXPECT_EQ(QStringList(files.keys()).join(u' ').toStdString(), written.join(u' ').toStdString());
        for (auto file = files.begin(); file != files.end(); ++file) expectWhole(file.key(), *file);
        QDir(path(u"out"_s)).removeRecursively();
    }
    EXPECT_EQ(differences(filesBelow(u"in"_s), sources_), "");
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
