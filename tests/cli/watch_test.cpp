// SPDX-License-Identifier: GPL-3.0-or-later
// Folders that are watched: what arrives in them, however it does, is marked once it is whole.
#include "cli/batch_program.h"
#include "support/testing.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <csignal>

namespace zelto {
namespace {

class Watching : public BatchProgram {
  protected:
    // Watches in/ and tells each photo as a line of JSON.
    void start(const QStringList& arguments = {}) {
        QDir().mkpath(path(u"in"_s));
        process_.start(program(),
                       withSetting(arguments + QStringList{u"--watch"_s, u"--json"_s, path(u"in"_s)}));
        ASSERT_TRUE(process_.waitForStarted());
    }
    ~Watching() override {
        process_.kill();
        process_.waitForFinished();
    }
    void read() {
        process_.waitForReadyRead(20);
        while (process_.canReadLine()) told_.append(QJsonDocument::fromJson(process_.readLine()).object());
    }
    // Until so many photos have been told of.
    bool waitFor(qsizetype photos) {
        QElapsedTimer timer;
        for (timer.start(); told_.size() < photos && timer.elapsed() < 60'000;) read();
        return told_.size() == photos;
    }
    // Ends the watch, which must have told of no more photos, and returns its last line.
    QJsonObject end() {
        const qsizetype photos = told_.size();
        ::kill(static_cast<pid_t>(process_.processId()), SIGTERM);
        EXPECT_TRUE(process_.waitForFinished());
        EXPECT_EQ(process_.exitCode(), 130) << process_.readAllStandardError().toStdString();
        read();
        EXPECT_EQ(told_.size(), photos + 1);
        return told_.takeLast()[u"summary"_s].toObject();
    }
    QString status(qsizetype place) const { return told_[place][u"status"_s].toString(); }
    QString outputOf(qsizetype place) const {
        return told_[place][u"output"_s].toString().mid(path(u"out/"_s).size());
    }

    QProcess process_;
    QList<QJsonObject> told_;
};

QByteArray bytesOf(const QString& file) {
    QFile read(file);
    EXPECT_TRUE(read.open(QFile::ReadOnly));
    return read.readAll();
}

TEST_F(Watching, MarksWhatArrivesOnceItIsWhole) {
    makePhoto(u"first.png"_s);
    start({u"--recursive"_s, u"--keep-structure"_s, u"-o"_s, path(u"in/marked"_s)});
    ASSERT_TRUE(waitFor(1)) << "what is there at the start";

    // Slowly, with a pause longer than the one that counts as quiet after a file was closed.
    const QByteArray photo = bytesOf(path(u"in/first.png"_s));
    QFile slow(path(u"in/slow.png"_s));
    ASSERT_TRUE(slow.open(QFile::WriteOnly | QFile::Unbuffered));
    slow.write(photo.left(photo.size() / 2));
    QElapsedTimer pause;
    for (pause.start(); pause.elapsed() < 1500;) read();
    EXPECT_EQ(told_.size(), 1) << "half a photo";
    slow.write(photo.mid(photo.size() / 2));
    slow.close();
    ASSERT_TRUE(waitFor(2));
    makeFile(u"elsewhere.png"_s, photo);
    ASSERT_TRUE(QFile::rename(path(u"elsewhere.png"_s), path(u"in/moved.png"_s)));
    ASSERT_TRUE(waitFor(3));
    makeFile(u"in/new/deep/lower.png"_s, photo);
    ASSERT_TRUE(waitFor(4)) << "in a folder that was made meanwhile";
    makeFile(u"in/.hidden.png"_s, photo);
    makeFile(u"in/damaged.png"_s, photo.left(100));
    ASSERT_TRUE(waitFor(5));
    EXPECT_EQ(status(4), u"failed"_s);
    makeFile(u"in/damaged.png"_s, photo);
    ASSERT_TRUE(waitFor(6)) << "written again";
    for (const char* name : {"first", "slow", "moved", "new/deep/lower", "damaged"})
        EXPECT_TRUE(isMarked(QImage(path(u"in/marked/in/%1.png"_s.arg(QLatin1String(name)))))) << name;
    const QJsonObject summary = end();
    EXPECT_EQ(summary[u"written"_s].toInt(), 5);
    EXPECT_EQ(summary[u"failed"_s].toInt(), 1);
}

TEST_F(Watching, NamesHoldAcrossTheWholeWatch) {
    start({u"--recursive"_s, u"--same-name"_s, u"number"_s, u"--existing"_s, u"skip"_s});
    makeFile(u"out/there.png"_s, "foreign");
    makePhoto(u"a/x.png"_s);
    ASSERT_TRUE(waitFor(1));
    makePhoto(u"b/x.png"_s);
    ASSERT_TRUE(waitFor(2));
    makePhoto(u"b/x.png"_s, {48, 48});
    ASSERT_TRUE(waitFor(3));
    makePhoto(u"there.png"_s);
    ASSERT_TRUE(waitFor(4));
    EXPECT_EQ(outputOf(1), u"x1.png"_s);
    EXPECT_EQ(outputOf(2), u"x1.png"_s) << "the same photo, written again";
    EXPECT_EQ(output(u"x1.png"_s).width(), 48);
    EXPECT_EQ(status(3), u"not-run"_s);
    EXPECT_EQ(bytesOf(path(u"out/there.png"_s)), "foreign");
    EXPECT_EQ(end()[u"notRun"_s].toInt(), 1);
}

TEST_F(Watching, WhatCannotBeWrittenIsTriedAgainAndNothingOfManyIsLost) {
    start({u"--rename"_s, u"[O]_[####]"_s, u"--existing"_s, u"fail"_s});
    makePhoto(u"zero.bmp"_s, {16, 16});
    ASSERT_TRUE(waitFor(1));
    ASSERT_TRUE(QDir(path(u"out"_s)).removeRecursively());
    makePhoto(u"early.bmp"_s, {16, 16});
    ASSERT_TRUE(waitFor(2));
    EXPECT_EQ(status(1), u"failed"_s);
    QDir().mkpath(path(u"out"_s));
    ASSERT_TRUE(waitFor(3)) << "without anybody touching the photo";
    EXPECT_EQ(status(2), u"written"_s);
    constexpr int Photos = 500;
    const QByteArray photo = bytesOf(path(u"in/early.bmp"_s));
    for (int i = 0; i < Photos; ++i) makeFile(u"in/p%1.bmp"_s.arg(i), photo);
    ASSERT_TRUE(waitFor(3 + Photos));
    const QJsonObject summary = end();
    EXPECT_EQ(summary[u"written"_s].toInt(), Photos + 2);
    EXPECT_EQ(summary[u"failed"_s].toInt(), 0);
    EXPECT_EQ(outputs().size(), Photos + 1);
}

}  // namespace
}  // namespace zelto
