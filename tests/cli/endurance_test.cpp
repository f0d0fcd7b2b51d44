// SPDX-License-Identifier: GPL-3.0-or-later
// Long lists, damaged photos, sudden ends and full disks: what is written is whole, in order, and the same however
// it comes about.
#include "cli/batch_program.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <random>

namespace zelto {
namespace {

using namespace Qt::Literals::StringLiterals;

using Endurance = BatchProgram;

const ProgramEnvironment NoExiftool = {{u"ZELTO_EXIFTOOL"_s, u"/nowhere"_s}};

// A photo of every kind, by a name with its extension; no two of one size.
QList<std::pair<QString, QByteArray>> photoKinds() {
    QList<std::pair<QString, QByteArray>> kinds;
    const auto jpeg = [&](QSize size, const TestJpeg& options) {
        kinds.append({u"jpg"_s, jpegBytes(drawnScene(size), options)});
    };
    jpeg({160, 120}, {.fullChroma = false, .orientation = 6, .exifDpi = 300});
    jpeg({97, 61}, {.progressive = true, .jfifDensity = 118, .jfifUnit = 2, .profile = adobeRgbProfile()});
    jpeg({1, 1}, {.grey = true});
    kinds.append({u"jpg"_s, cmykJpegBytes(QByteArray(4 * 40 * 30, '\x40'), {40, 30}, true, true)});
    int step = 0;
    for (const char* format :
         {"tif", "png", "png", "bmp", "png", "bmp", "png", "png", "bmp", "png", "bmp", "png"}) {
        const QSize size(3 + 31 * step, 150 - 12 * step);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        EXPECT_TRUE((step % 3 == 2 ? drawnSceneWithAlpha(size) : drawnScene(size)).save(&buffer, format));
        kinds.append({QLatin1String(format), bytes});
        ++step;
    }
    return kinds;
}

QByteArray damaged(const QByteArray& photo, int way) {
    switch (way % 4) {
        case 0:
            return {};
        case 1:
            return "no photo, whatever its name says";
        case 2:
            return photo.first(photo.size() / 2);
        default:
            return photo.first(20);
    }
}

TEST_F(Endurance, MixedAndDamagedPhotosComeOutTheSameForAnyNumberOfJobs) {
    constexpr int Photos = 300;
    // Every twelfth, and five in a row.
    const auto isDamaged = [](int row) { return row % 12 == 5 || (row >= 200 && row < 205); };
    const auto kinds = photoKinds();
    QStringList photos;
    for (int row = 0; row < Photos; ++row) {
        const auto& [extension, bytes] = kinds[row % kinds.size()];
        // Some share their names, and the last of them counts.
        const QString name = row % 30 == 8 ? u"same"_s : u"photo%1"_s.arg(row);
        photos.append(makeFile(u"in/%1/%2.%3"_s.arg(row).arg(name, extension),
                               isDamaged(row) ? damaged(bytes, row) : bytes));
    }
    // A number of its own for each photo, so that none can stand for another.
    WatermarkStack stack;
    stack.Watermarks.emplace_back(watermark_type::Text);
    stack.Watermarks.back().Text = u"<<AUTO:##1+1>> <<IMGNAME>>"_s;
    stack.Watermarks.back().FontSize = 14;
    stack.Watermarks.back().TextColor = Color::black();
    stack.Watermarks.back().Transparency = 1.0F;
    useSetting(stack);

    QByteArray firstReport;
    Files firstFiles;
    for (const QString& jobs : {u"1"_s, u"2"_s, u"8"_s}) {
        const QStringList arguments = {u"--json"_s, u"--on-repeated-failure"_s, u"continue"_s, u"-j"_s, jobs};
        const ProgramRun result = run(arguments + photos);
        ASSERT_EQ(result.exitStatus, 1) << jobs.toStdString();
        const QJsonArray report = QJsonDocument::fromJson(result.output)["photos"_L1].toArray();
        ASSERT_EQ(report.size(), Photos);
        QByteArray progress;
        for (int row = 0; row < Photos; ++row) {
            const QJsonObject photo = report[row].toObject();
            EXPECT_EQ(photo["source"_L1].toString(), photos[row]);
            EXPECT_EQ(photo["status"_L1].toString(), isDamaged(row) ? u"failed"_s : u"written"_s) << row;
            EXPECT_EQ(photo["error"_L1].toString().isEmpty(), !isDamaged(row)) << row;
            if (isDamaged(row)) continue;
            const QString output = photo["output"_L1].toString();
            progress += u"[%1/300] %2\n"_s.arg(row + 1).arg(output).toUtf8();
            if (output.contains("/same"_L1)) continue;
            EXPECT_EQ(QImage(output).size(), QSize(photo["width"_L1].toInt(), photo["height"_L1].toInt()));
        }
        QByteArray told;
        for (const QByteArray& line : result.errors.split('\n')) {
            if (line.startsWith('[')) told += line + '\n';
        }
        EXPECT_EQ(told, progress) << "in list order";
        EXPECT_FALSE(result.errors.contains("metadata")) << result.errors.toStdString();
        const Files files = filesBelow(u"out"_s);
        if (firstFiles.isEmpty()) {
            firstReport = result.output;
            firstFiles = files;
            EXPECT_GT(QSet<QByteArray>(files.begin(), files.end()).size(), files.size() * 3 / 4)
                << "only the tiniest have no room for their number";
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

    struct LittleRoom {
        QStringList shell;
        QString command;  // takes room away from the folder $0
        QStringList photos;
        int exitStatus;
    };
    void expectWholeIn(const LittleRoom& room) const {
        SCOPED_TRACE((options_ + QStringList(room.command)).join(u' ').toStdString());
        const QString out = path(u"out"_s);
        ASSERT_TRUE(QDir().mkpath(out));
        const QString script =
            room.command + u" || exit 9; \"$@\"; status=$?; cp -a \"$0\" \"$0.kept\"; exit $status"_s;
        const QStringList batch = {
            u"-c"_s, script, out, program(), u"--json"_s, u"--on-repeated-failure"_s, u"continue"_s};
        const ProgramRun result =
            runProgram(room.shell.first(), room.shell.mid(1) + batch + withSetting(options_ + room.photos));
        EXPECT_EQ(result.exitStatus, room.exitStatus) << result.errors.toStdString();
        QStringList written;
        for (const QJsonValue& photo : QJsonDocument::fromJson(result.output)["photos"_L1].toArray()) {
            const bool succeeded = photo["status"_L1].toString() == "written"_L1;
            if (succeeded) written.append(QFileInfo(photo["output"_L1].toString()).fileName());
            EXPECT_EQ(photo["error"_L1].toString(), succeeded ? QString() : u"Watermarking failed."_s);
        }
        EXPECT_FALSE(written.isEmpty());
        const Files files = filesBelow(u"out.kept"_s);
        written.sort();
        EXPECT_EQ(QStringList(files.keys()).join(u' ').toStdString(), written.join(u' ').toStdString());
        for (auto file = files.begin(); file != files.end(); ++file) expectWhole(file.key(), *file);
        for (const QString& folder : {out, out + u".kept"_s}) QDir(folder).removeRecursively();
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
    for (int round = 0; round < 50; ++round) {
        // Every other time it finds what others have left.
        if (round % 2 == 0) QDir(path(u"out"_s)).removeRecursively();
        const int moment = std::uniform_int_distribution<int>(0, duration)(random);
        SCOPED_TRACE(::testing::Message()
                     << "seed " << seed << ", round " << round << ", after " << moment << " ms");
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
    const qint64 size = encoded_[u"1.jpg"_s].size();
    // Files can be kept small everywhere; a disk of its own needs the right to mount one.
    QList<LittleRoom> rows = {{{u"bash"_s}, u"trap '' XFSZ; ulimit -f %1"_s.arg(size / 1024), photos_, 1}};
    const QStringList unshare = {u"unshare"_s, u"-Urm"_s};
    if (runProgram(unshare[0],
                   unshare.mid(1) + QStringList{u"mount"_s, u"-t"_s, u"tmpfs"_s, u"none"_s, u"/tmp"_s})
            .exitStatus == 0) {
        const auto disk = [](qint64 bytes) { return u"mount -t tmpfs -o size=%1 none \"$0\""_s.arg(bytes); };
        // For an output and one step of its metadata; for a part of the outputs.
        rows.append({unshare + QStringList(u"bash"_s), disk(size * 5 / 2), {photos_.last()}, 0});
        rows.append({unshare + QStringList(u"bash"_s), disk(size * 5 / 4), photos_, 1});
    }
    for (const QString& metadata : {u"all"_s, u"no-gps"_s}) {
        choose(metadata);
        for (const LittleRoom& row : rows) expectWholeIn(row);
    }
    EXPECT_EQ(differences(filesBelow(u"in"_s), sources_), "");
}

}  // namespace
}  // namespace zelto
