// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs with an exiftool that cannot be relied on: they take their time, and every file is whole.
#include "batch/output_writer.h"

#include "batch/batch_run.h"
#include "platform/whole_file.h"
#include "support/exiftool.h"
#include "support/test_pictures.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <future>

namespace zelto {
namespace {

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

using Files = QMap<QString, QByteArray>;

class CountingObserver : public BatchObserver {
  public:
    void runStarted(bool) override {}
    void photoStarted(qint64) override {}
    void photoFinished(const PhotoOutcome& outcome) override { succeeded += outcome.succeeded(); }
    void progressed(qint64) override {}
    void successiveFail() override {}
    void combinedPdfFailed(const QString&) override {}
    void runEnded(const RunReport& report) override { end = report.end; }

    int succeeded = 0;
    std::optional<RunEnd> end;
};

class UnreliableExiftool : public ::testing::Test {
  protected:
    UnreliableExiftool() {
        for (int i = 0; i < 4; ++i) {
            photos_.append(folder_.filePath(u"%1.jpg"_s.arg(i)));
            EXPECT_TRUE(writeWholeFile(photos_.last(), jpegBytes(drawnScene({60 + 20 * i, 40}))));
        }
        EXPECT_TRUE(writeTags({u"-Artist=Ann"_s}, photos_));
        photos_.insert(1, folder_.filePath(u"plain.png"_s));
        EXPECT_TRUE(drawnScene({50, 40}).save(photos_[1]));
        real_ = QFile::encodeName(exiftoolProgram());
    }
    ~UnreliableExiftool() override { qputenv("ZELTO_EXIFTOOL", real_); }

    // What a run with a program of these lines writes, hidden files included.
    Files written(const QByteArray& lines, std::chrono::milliseconds timeout) {
        const QString program = folder_.filePath(u"program"_s);
        EXPECT_TRUE(writeWholeFile(program, "#!/bin/sh\n" + lines + "\n"));
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("ZELTO_EXIFTOOL", QFile::encodeName(program));
        const QTemporaryDir out;
        BatchRequest request;
        for (const QString& photo : photos_) request.photos.push_back({photo});
        request.options.OutputPath = out.path();
        request.options.OutputFormat = SameAsSourceFormat;
        CountingObserver observer;
        // On a thread that has started no program: starting one leaves the thread sanitizer deaf to its locks.
        std::async(std::launch::async, [&] {
            BatchRun run(observer);
            run.ProcessImaging(request, std::make_unique<OutputWriter>(OutputWriter::Settings{
                                            .options = request.options,
                                            .stack = std::make_shared<WatermarkStack>(),
                                            .locale = QLocale::c(),
                                            .copyright = {},
                                            .metadataJobs = 1,
                                            .metadataTimeout = timeout}));
            run.wait();
        }).get();
        EXPECT_EQ(observer.end, RunEnd::Finished);
        EXPECT_EQ(observer.succeeded, photos_.size());
        Files files;
        for (const QString& name : QDir(out.path()).entryList(QDir::Files | QDir::Hidden)) {
            QFile file(out.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            files.insert(name, file.readAll());
        }
        return files;
    }

    const QTemporaryDir folder_;
    QStringList photos_;
    QByteArray real_;
};

TEST_F(UnreliableExiftool, DelaysARunButNeitherStopsItNorBreaksAFile) {
    const Files encoded = written("exit 1", 60s);
    const Files complete = written("exec '" + real_ + "' \"$@\"", 60s);
    ASSERT_EQ(encoded.keys(), complete.keys());
    const struct {
        const char* name;
        QByteArray program;
        std::chrono::milliseconds timeout;
        int leastComplete;  // outputs that have their metadata all the same, the plain one among them
    } rows[] = {
        {"hangs at its second command", "sed -u '/^-execute2$/q' | '" + real_ + "' \"$@\"", 2s, 1},
        {"ends after every command",
         "sed -u '/^-execute/{p;s/.*/-stay_open\\nFalse/;q}' | '" + real_ + "' \"$@\"", 60s, 5},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const Files files = written(row.program, row.timeout);
        EXPECT_EQ(files.keys(), encoded.keys());
        int completed = 0;
        for (auto file = files.begin(); file != files.end(); ++file) {
            const bool isComplete = *file == complete[file.key()];
            completed += isComplete;
            EXPECT_TRUE(isComplete || *file == encoded[file.key()]) << file.key().toStdString();
        }
        EXPECT_GE(completed, row.leastComplete);
    }
}

}  // namespace
}  // namespace zelto
