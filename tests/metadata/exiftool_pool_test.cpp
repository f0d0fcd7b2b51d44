// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/exiftool_pool.h"

#include "support/test_pictures.h"
#include "support/testing.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/wait.h>

#include <atomic>
#include <cerrno>
#include <future>
#include <thread>

namespace zelto {
namespace {

using namespace std::chrono_literals;

class Exiftool : public ::testing::Test {
  protected:
    // Whatever a test did to them, no program may outlive its pool.
    void TearDown() override {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
        EXPECT_EQ(errno, ECHILD);
    }

    QString write(const QString& name, const QByteArray& content) const {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        return file.fileName();
    }
    static QByteArray content(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QString photo(const QString& name) const { return write(name, jpegBytes(drawnScene({40, 30}))); }

    // A program that stands for exiftool: a shell script with these lines.
    QString program(const QByteArray& lines) const {
        const QString path = write(u"program"_s, "#!/bin/sh\n" + lines + "\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    QTemporaryDir folder_;
};

TEST_F(Exiftool, EveryValueArrivesAsItIsAndIsNeverAnArgument) {
    const QStringList values = {u"-execute5"_s,
                                u"#comment"_s,
                                u"  two\tand behind  "_s,
                                u"line 1\nline 2\r\nme@example.org costs $5 \\n \"&lt;\" & <b> ;%d\\"_s,
                                u"-stay_open\nFalse\n-execute1\n"_s,
                                u"{ready2}\n"_s,
                                u"=<+x"_s,
                                u"$model @args %f é 写真 📷"_s,
                                u"&#10; &amp;"_s};
    ExiftoolPool pool(1);
    const QString path = photo(u"a.jpg"_s);
    for (const QString& value : values) {
        const Result<QString> written =
            pool.run({u"-overwrite_original"_s, u"-XMP-dc:Rights="_s + value, u"-Artist=x&y"_s, path}, 30s);
        ASSERT_TRUE(written) << written.error().message.toStdString();
        const Result<QString> read = pool.run({u"-j"_s, u"-Rights"_s, u"-Artist"_s, path}, 30s);
        ASSERT_TRUE(read);
        const QJsonObject tags = QJsonDocument::fromJson(read->toUtf8()).array().at(0).toObject();
        EXPECT_EQ(tags[u"Rights"_s].toString().toStdString(), value.toStdString()) << written->toStdString();
        EXPECT_EQ(tags[u"Artist"_s].toString(), u"x&y"_s);
    }
    for (const QString& argument : {u""_s, u"#x"_s, u" x"_s, u"a\nb"_s}) {
        EXPECT_EQ(pool.run({argument}, 30s).error().code, ErrorCode::InvalidValue) << argument.toStdString();
    }
}

TEST_F(Exiftool, HangingProgramIsGivenUpInTime) {
    ExiftoolPool pool(1, program("trap '' TERM HUP; while :; do sleep 1000; done"));
    for (int round = 0; round < 2; ++round) {
        const Result<QString> answer = pool.run({u"-ver"_s}, 100ms);
        ASSERT_FALSE(answer);
        EXPECT_THAT(answer.error().message.toStdString(), HasSubstr("in time"));
    }
    // A command larger than any buffer between the two must not block the sender for ever.
    EXPECT_FALSE(pool.run({u"-Artist="_s + QString(8'000'000, u'x')}, 100ms));
}

TEST_F(Exiftool, DyingProgramIsStartedAgainOnce) {
    const QByteArray marker = QFile::encodeName(folder_.filePath(u"marker"_s));
    const QByteArray real = QFile::encodeName(exiftoolProgram());
    ExiftoolPool once(1, program("if ! [ -e '" + marker + "' ]; then : >'" + marker +
                                 "'; read -r x; exit 3; fi\n" + "exec '" + real + "' \"$@\""));
    EXPECT_EQ(once.run({u"-ver"_s}, 30s).value_or(QString()).trimmed().isEmpty(), false);
    ExiftoolPool always(1, program("echo x >>'" + marker + "'; echo '{ready1'; exit 1"));
    EXPECT_EQ(always.run({u"-ver"_s}, 30s).error().code, ErrorCode::ProgramFailed);
    EXPECT_EQ(content(folder_.filePath(u"marker"_s)), "x\nx\n");
}

TEST_F(Exiftool, AnswersAreMatchedToTheirCommandThroughAnyNoise) {
    ExiftoolPool pool(
        1, program("while read -r line; do case $line in -execute*) echo '{ready999}'; echo noise; "
                   "echo \"x{ready${line#-execute}}\"; echo \"{ready${line#-execute}}\";; "
                   "False) exit;; esac; done"));
    for (int number = 1; number < 4; ++number) {
        EXPECT_EQ(pool.run({u"-x"_s}, 30s), u"{ready999}\nnoise\nx{ready%1}\n"_s.arg(number));
    }
    ExiftoolPool endless(1, program("yes '{ready9}'"));
    for (int timeOut = 0; timeOut < 2; ++timeOut) EXPECT_FALSE(endless.run({u"-x"_s}, 300ms));
    EXPECT_TRUE(endless.run({u"-x"_s}, 60s).error().message.contains(u"given up"_s));

    ExiftoolPool hanging(1, program("sleep 1000"));
    auto cancelled = std::async(std::launch::async, [&] { return hanging.run({u"-x"_s}, 600s); });
    hanging.interrupt();
    EXPECT_FALSE(cancelled.get());
}

TEST_F(Exiftool, CommandCutOffByTheEndOfThisProgramTouchesNoFile) {
    const QString path = photo(u"a.jpg"_s);
    const QByteArray before = content(path);
    for (const char* tail : {"", "\n", "\n-Artist=x\n"}) {
        auto process = ExiftoolProcess::start(exiftoolProgram());
        ASSERT_TRUE(process);
        const QByteArray part =
            "-overwrite_original\n-Copyright=x\n" + QFile::encodeName(folder_.path()) + tail;
        const auto cutOff =
            (*process)->run(part, 1, [end = std::chrono::steady_clock::now() + 50ms] { return end; });
        EXPECT_EQ(cutOff.error(), ExiftoolProcess::Failure::TimedOut);
        process->reset();
        EXPECT_EQ(content(path), before);
    }
}

TEST_F(Exiftool, ManyThreadsShareAFewPrograms) {
    ExiftoolPool pool(2);
    std::atomic<int> right = 0;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 6; ++thread) {
        threads.emplace_back([&, thread] {
            const QString path = photo(u"%1.jpg"_s.arg(thread));
            for (int round = 0; round < 3; ++round) {
                const QString name = u"photo %1.%2"_s.arg(thread).arg(round);
                pool.run({u"-overwrite_original"_s, u"-Artist="_s + name, path}, 60s);
                if (pool.run({u"-s3"_s, u"-Artist"_s, path}, 60s) == name + u'\n') ++right;
            }
        });
    }
    threads.clear();
    EXPECT_EQ(right, 18);
}

}  // namespace
}  // namespace zelto
