// SPDX-License-Identifier: GPL-3.0-or-later
// The run as a state machine: photos that do as they are told, an observer that presses the buttons at given
// moments, and the order of events that must come out of it.
#include "batch/batch_run.h"

#include "support/testing.h"

#include <QMap>

#include <functional>
#include <stdexcept>

namespace zelto {
namespace {

using State = BatchRun::State;

// One letter a photo: g good, d damaged, w cannot be written, p throws when prepared, c throws when
// committed,
// - unchecked, 9 the last one with a running number.
class ScriptedProcessor : public PhotoProcessor {
  public:
    ScriptedProcessor(QString photos, QString pdf) : photos_(std::move(photos)), pdf_(std::move(pdf)) {}

    qint64 memoryNeeded(const PhotoTask&) override { return 1; }
    Result<PreparedPhoto> prepare(const PhotoTask& task) override {
        if (kind(task) == 'd') return fail(ErrorCode::Damaged, u"damaged"_s);
        if (kind(task) == 'p') throw std::runtime_error("prepare");
        PreparedPhoto photo;
        if (!pdf_.isNull()) photo.page.emplace();
        if (kind(task) == '9') photo.lastAutoNumber = 99;
        return photo;
    }
    Result<void> commit(const PhotoTask& task, PreparedPhoto) override {
        if (kind(task) == 'c') throw std::runtime_error("commit");
        if (kind(task) == 'w') return fail(ErrorCode::CannotWrite, u"disk full"_s);
        return {};
    }
    Result<QString> finishCombinedPdf() override {
        if (pdf_ == QLatin1String("throw")) throw std::runtime_error("pdf");
        return pdf_;
    }
    void settle() override {}

  private:
    char kind(const PhotoTask& task) const { return photos_.at(task.row).toLatin1(); }

    const QString photos_;
    const QString pdf_;
};

// Writes down what happens, and at a named event does what the script says.
class ScriptedObserver : public BatchObserver {
  public:
    void runStarted(bool resumed) override { note(resumed ? u"resume"_s : u"start"_s); }
    void photoStarted(qint64 row) override { happen(u"begin%1"_s.arg(row)); }
    void photoFinished(const PhotoOutcome& outcome) override {
        note(u"%1%2"_s.arg(outcome.row).arg(outcome.error));
    }
    void progressed(qint64 done) override {
        happen(u"progress%1"_s.arg(done));
        lastProgress = done;
    }
    void successiveFail() override { note(u"ask"_s); }
    void combinedPdfFailed(const QString& reason) override { note(u"nopdf:"_s + reason); }
    void runEnded(const RunReport& report) override {
        static const QMap<RunEnd, QString> names = {{RunEnd::Finished, u"finished"_s},
                                                    {RunEnd::Paused, u"paused"_s},
                                                    {RunEnd::Cancelled, u"cancelled"_s},
                                                    {RunEnd::Stopped, u"stopped"_s}};
        lastReport = report;
        note(names.value(report.end));
    }

    QMap<QString, std::function<void()>> script;
    QStringList log;
    qint64 lastProgress = 0;
    RunReport lastReport;

  private:
    void note(const QString& event) {
        log.append(event);
        happen(event);
    }
    // Each entry acts once, so that a photo written again does not pause again.
    void happen(const QString& event) {
        if (const auto action = script.take(event)) action();
    }
};

class BatchRunTest : public ::testing::TestWithParam<int> {
  protected:
    BatchRequest request(const QString& photos) const {
        BatchRequest request;
        for (qsizetype i = 0; i < photos.size(); ++i) {
            request.photos.push_back({u"/in/%1.jpg"_s.arg(i), photos[i] != QLatin1Char('-')});
        }
        request.options.OutputPath = u"/out"_s;
        request.options.OutputFormat = u"png"_s;
        request.limits = {GetParam(), 100};
        return request;
    }
    void start(const QString& photos) { start(request(photos), photos); }
    void start(const BatchRequest& asked, const QString& photos, const QString& pdf = {}) {
        ASSERT_TRUE(run.ProcessImaging(asked, std::make_unique<ScriptedProcessor>(photos, pdf)));
    }
    // What happens in a run over these photos, blanks between the events.
    std::string played(const char* photos) {
        observer.log.clear();
        start(QString::fromLatin1(photos));
        run.wait();
        return observer.log.join(u' ').toStdString();
    }
    void at(const char* event, std::function<void()> action) {
        observer.script.insert(QLatin1String(event), std::move(action));
    }

    ScriptedObserver observer;
    BatchRun run{observer};
    const std::function<void()> pause = [this] { run.PauseOrResumeProcessingAction(); };
    const std::function<void()> cancel = [this] { run.CancelProcessingAction(); };
    const std::function<void()> yes = [this] { run.answerSuccessiveFail(true); };
    const std::function<void()> no = [this] { run.answerSuccessiveFail(false); };
};

INSTANTIATE_TEST_SUITE_P(Jobs, BatchRunTest, ::testing::Values(1, 4));

TEST_P(BatchRunTest, WritesEveryCheckedPhotoInOrder) {
    EXPECT_EQ(played("g-gg-"), "start 0 2 3 finished");
    EXPECT_EQ(observer.lastProgress, 5) << "unchecked photos count";
    EXPECT_EQ(observer.lastReport.message(), SuccessSummary);
    EXPECT_EQ(observer.lastReport.OutPutImageList,
              QStringList({u"/out/0.png"_s, u"/out/2.png"_s, u"/out/3.png"_s}));
    EXPECT_EQ(run.state(), State::Idle);

    EXPECT_EQ(played("---"), "start finished");
    EXPECT_TRUE(observer.lastReport.OutPutImageList.isEmpty());
}

TEST_P(BatchRunTest, AFailureOfAnyStageIsThatPhotosAlone) {
    EXPECT_EQ(
        played("gdgwgpgcg"),
        u"start 0 1damaged 2 3%1 4 5%1 6 7%1 8 finished"_s.arg(WatermarkingFailedMessage).toStdString());
    EXPECT_EQ(observer.lastReport.message(), FailureSummary);
    EXPECT_EQ(observer.lastReport.OutPutImageList.size(), 5);
}

TEST_P(BatchRunTest, AsksOnceAStreakAfterThreeFailuresInARow) {
    at("ask", [this] {
        EXPECT_EQ(run.state(), State::Asking);
        at("ask", yes);
        yes();
    });
    EXPECT_EQ(played("ddgddd-ddgdddg"),
              "start 0damaged 1damaged 2 3damaged 4damaged 5damaged ask 7damaged 8damaged 9 "
              "10damaged 11damaged 12damaged ask 13 finished");
    EXPECT_EQ(played("gddd"), "start 0 1damaged 2damaged 3damaged finished")
        << "nothing is left to go on with";
}

TEST_P(BatchRunTest, NoStopsWithoutASummaryAndANewRunMayStart) {
    at("ask", no);
    EXPECT_EQ(played("dddg"), "start 0damaged 1damaged 2damaged ask stopped");
    EXPECT_EQ(run.state(), State::Stopped);
    EXPECT_EQ(played("g"), "start 0 finished");
}

TEST_P(BatchRunTest, AResumedRunWritesThePhotoInHandAgainAndForgetsWhatCameBefore) {
    at("begin4", pause);
    at("paused", [this] {
        EXPECT_EQ(run.state(), State::Paused);
        EXPECT_EQ(observer.lastProgress, 4);
        pause();
    });
    EXPECT_EQ(played("gdggggggg-"), "start 0 1damaged 2 3 4 paused resume 4 5 6 7 8 finished");
    EXPECT_EQ(observer.lastReport.message(), SuccessSummary);
    EXPECT_EQ(observer.lastReport.OutPutImageList.size(), 5);
    EXPECT_EQ(observer.lastReport.OutPutImageList.first(), u"/out/4.png"_s);
}

TEST_P(BatchRunTest, APauseCountsOnlyAfterTheNextPhoto) {
    at("begin1", [this] {
        pause();
        pause();
    });
    EXPECT_EQ(played("ggg"), "start 0 1 2 finished") << "taken back before the photo ended";
    at("progress1", pause);
    EXPECT_EQ(played("g--"), "start 0 finished");
    EXPECT_TRUE(run.PauseProcessing());
    EXPECT_EQ(played("-gg"), "start 1 paused") << "without effect it holds the next run";
    pause();
    run.wait();
    EXPECT_EQ(observer.log.mid(3).join(u' '), u"resume 1 2 finished"_s);
}

TEST_P(BatchRunTest, CancelEndsARunAfterThePhotoInHandWhateverItsState) {
    at("begin1", cancel);
    EXPECT_EQ(played("ggg"), "start 0 1 cancelled");
    at("progress2", cancel);
    EXPECT_EQ(played("gg--"), "start 0 1 cancelled");
    at("ask", cancel);
    EXPECT_EQ(played("dddg"), "start 0damaged 1damaged 2damaged ask cancelled");

    at("begin0", pause);
    EXPECT_EQ(played("ggg"), "start 0 paused");
    EXPECT_FALSE(run.ProcessImaging(request(u"g"_s), nullptr)) << "a paused run is not done";
    cancel();
    EXPECT_EQ(run.state(), State::Idle);
    pause();  // a pause pressed now is one of the next run's
    pause();
    run.wait();
    EXPECT_EQ(observer.log.size(), 3) << "nothing is left to resume";
    EXPECT_EQ(played("gg"), "start 0 1 finished");
}

TEST_P(BatchRunTest, ARunStartedRightAfterACancelFollowsTheCancelledOne) {
    at("begin1", [this] {
        cancel();
        start(u"gg"_s);
    });
    EXPECT_EQ(played("ggg"), "start 0 1 cancelled start 0 1 finished");
}

TEST_P(BatchRunTest, TheCombinedPdfIsFinishedOnlyByARunThatFinishes) {
    const auto playedPdf = [this](const QString& photos, const QString& pdf) {
        BatchRequest combined = request(photos);
        combined.options.OutputFormat = u"pdf"_s;
        combined.options.CombineToSinglePDF = true;
        observer.log.clear();
        start(combined, photos, pdf);
        run.wait();
        return observer.log.last();
    };
    EXPECT_EQ(playedPdf(u"gg"_s, u"/out/a.pdf"_s), u"finished"_s);
    EXPECT_EQ(observer.lastReport.OutPutImageList, QStringList(u"/out/a.pdf"_s));
    EXPECT_TRUE(observer.lastReport.opensCombinedPdf());

    playedPdf(u"gg"_s, u"throw"_s);
    EXPECT_TRUE(observer.log.contains(u"nopdf:pdf"_s));
    EXPECT_TRUE(observer.lastReport.OutPutImageList.isEmpty());

    at("begin1", cancel);
    EXPECT_EQ(playedPdf(u"ggg"_s, u"/out/a.pdf"_s), u"cancelled"_s);
    EXPECT_TRUE(observer.lastReport.combinedPdf.isEmpty());
}

TEST_P(BatchRunTest, TheStackIsSavedByEveryWorkerAndTheNumberOnceThePhotoIsWritten) {
    int saved = 0;
    std::vector<qint64> numbers;
    BatchRequest asked = request(u"g9"_s);
    asked.saveLastWatermark = [&] {
        ++saved;
        throw std::runtime_error("read-only home");
    };
    asked.storeLastAutoNumber = [&](qint64 number) {
        EXPECT_FALSE(observer.log.contains(u"1"_s));
        numbers.push_back(number);
    };
    at("begin0", pause);
    at("paused", pause);
    start(asked, u"g9"_s);
    run.wait();
    EXPECT_EQ(saved, 2);
    EXPECT_THAT(numbers, ::testing::ElementsAre(99));
    EXPECT_EQ(observer.log.last(), u"finished"_s);
}

}  // namespace
}  // namespace zelto
