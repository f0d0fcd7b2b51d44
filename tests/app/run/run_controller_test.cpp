// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/run/run_controller.h"

#include "app/hands.h"
#include "app/run/run_window.h"
#include "app/window/result_bar.h"
#include "persistence/setting_file.h"
#include "pictures/picture_reader.h"
#include "platform/preferences.h"
#include "support/records.h"
#include "support/testing.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

namespace zelto {
namespace {

const QString Succeeded = u"Watermark process completed successfully\n\n"_s;
const QString Failed =
    u"Watermark process completed but some Photos produced Error\n"
    "Double Click the Image Entry to know the problem\n\n"_s;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(RunWindow, EndsWithTheSummaryAndShowsWhatItMade) {
    struct Row {
        QString photos;
        std::function<void(OutputOptions&)> choose = [](OutputOptions&) {};
        QString statuses;
        QString summary;
        QString opened = {};
        QStringList revealed = {};
    };
    const auto combined = [](OutputOptions& o) { o.OutputFormat = u"pdf"_s, o.CombineToSinglePDF = true; };
    const Row rows[] = {
        {.photos = u"gug"_s,
         .statuses = u"w.w"_s,
         .summary = Succeeded + u"2 written"_s,
         .revealed = {u"photo0.png"_s, u"photo2.png"_s}},
        {.photos = u"gb"_s,
         .statuses = u"wx"_s,
         .summary = Failed + u"1 written, 1 failed"_s,
         .revealed = {u"photo0.png"_s}},
        {.photos = u"uu"_s, .statuses = u".."_s, .summary = Succeeded + u"0 written"_s},
        {.photos = u"gg"_s,
         .choose = combined,
         .statuses = u"ww"_s,
         .summary = Succeeded + u"2 written"_s,
         .opened = u"WatermarkedPhotos.pdf"_s},
        {.photos = u"ggg"_s,
         .choose = [](OutputOptions& o) { o.KeepDirectoryStructure = true; },
         .statuses = u"www"_s,
         .summary = Succeeded + u"3 written"_s,
         .revealed = {u"in"_s}},
    };
    const OutputOptions plain = options;
    for (const Row& row : rows) {
        SCOPED_TRACE(qPrintable(row.photos));
        window->photos().RemoveAllImages();
        addPhotos(row.photos);
        options = plain;
        options.OutputPath = path(u"out of "_s + row.photos);
        ASSERT_TRUE(QDir().mkpath(options.OutputPath));
        row.choose(options);
        opened.clear();
        revealed.clear();
        start();
        EXPECT_EQ(summary(), row.summary);
        EXPECT_EQ(statuses(), row.statuses);
        const auto below = [&](const QString& name) { return options.OutputPath + u'/' + name; };
        EXPECT_EQ(opened, row.opened.isEmpty() ? QString() : below(row.opened));
        QStringList expected;
        for (const QString& name : row.revealed) expected.append(below(name));
        EXPECT_EQ(revealed, expected);
        EXPECT_TRUE(isEnabled(Act::Start));
        EXPECT_FALSE(window->processing().isVisible());
    }
}

TEST_F(RunWindow, WhatFailedIsShownAloneAndTellsWhyWhenItIsDoubleClicked) {
    addPhotos(u"gbg"_s);
    start();
    EXPECT_FALSE(window->photoFilter().isVisible());
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->result().isVisible(); }, 10000));
    click(window->result(), "Show");
    QString text;
    QTimer::singleShot(100, window.get(), [&] {
        text = message()->informativeText();
        answer(u"OK"_s);
    });
    PhotoListView& list = window->photoList();
    const QPoint row = list.visualRect(list.model()->index(1, 0)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(text, QString(DamagedPictureMessage));

    const auto shown = [&] {
        std::vector<int> rows;
        for (int each = 0; each < list.model()->rowCount(); ++each) {
            if (!list.isRowHidden(each)) rows.push_back(each);
        }
        return rows;
    };
    EXPECT_THAT(shown(), ElementsAre(1));
    for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_Down}) {
        QTest::keyClick(&list, key);
        EXPECT_EQ(window->photos().selectedRow(), 1) << key;
    }
    list.selectAll();
    window->photos().UncheckAllImages();
    EXPECT_THAT(window->photos().model().checks(), ElementsAre(true, false, true));
    window->photos().RemoveSelectedImage();
    EXPECT_THAT(shown(), ElementsAre(0, 1)) << "none is left to show: back to all";
    EXPECT_FALSE(window->photoFilter().isVisible());
    window->document().history().undo();
    QTest::keyClick(&window->photoFilter(), Qt::Key_Down);
    EXPECT_THAT(shown(), ElementsAre(1));
    QTest::keyClick(&window->photoFilter(), Qt::Key_Up);
    EXPECT_THAT(shown(), ElementsAre(0, 1, 2));
}

TEST_F(RunWindow, WhatFailedIsTriedAgainAlone) {
    addPhotos(u"gbg"_s);
    start();
    EXPECT_TRUE(waitFor(u"wxw"_s));
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->result().isVisible(); }, 10000));
    ASSERT_TRUE(QFile::remove(options.OutputPath + u"/photo0.png"_s));
    ASSERT_TRUE(QFile::remove(path(u"in/photo1.png"_s)));
    ASSERT_TRUE(QFile::copy(path(u"in/photo0.png"_s), path(u"in/photo1.png"_s)));
    EXPECT_TRUE(isEnabled(Act::RetryFailed)) << "from the menu too";
    click(window->result(), "Retry Failed");
    EXPECT_TRUE(waitFor(u"www"_s));
    EXPECT_EQ(summary(), Succeeded + u"3 written"_s);
    EXPECT_FALSE(isEnabled(Act::RetryFailed));
    EXPECT_THAT(outputs(), ElementsAre(u"photo1.png"_s, u"photo2.png"_s));
}

TEST_F(RunWindow, PausingResumingAndCancellingActBetweenPhotos) {
    addPhotos(u"gggg"_s);
    startGated();
    EXPECT_FALSE(isEnabled(Act::AddPhotos));
    EXPECT_TRUE(window->photoList().isReadOnly());
    QTest::keyClick(&window->photoList(), Qt::Key_Space);
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_EQ(window->photos().count(), 4);
    EXPECT_TRUE(window->photos().images()[0].ApplyWatermark) << "the list is only to be looked at";
    QPushButton* pause = window->processing().PauseOrResumeProcessing();
    EXPECT_EQ(pause->text(), u"Pause"_s);
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(pause->text(), u"Resume"_s);
    letThrough(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return pace() == u"Paused"_s; }, 10000));
    EXPECT_EQ(statuses(), u"w..."_s);
    Q_EMIT window->controller().ProcessImaging(options);
    QTest::qWait(100);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr)
        << "no second run, which would ask about photo0.png";

    ASSERT_TRUE(QFile::remove(options.OutputPath + u"/photo0.png"_s));
    QTest::mouseClick(pause, Qt::LeftButton);
    EXPECT_EQ(pause->text(), u"Pause"_s);
    letThrough(2);
    EXPECT_TRUE(waitFor(u"ww.."_s));
    EXPECT_THAT(outputs(), ElementsAre(u"photo0.png"_s, u"photo1.png"_s))
        << "the paused one is written again";

    QTest::keyClick(window.get(), Qt::Key_Period, Qt::ControlModifier);
    EXPECT_FALSE(window->processing().isVisible());
    EXPECT_TRUE(isEnabled(Act::AddPhotos));
    letThrough(2);
    EXPECT_TRUE(waitFor(u"www."_s)) << "the photo in hand is finished";
    const auto told = [this] { return window->statusBar()->currentMessage(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return told() == u"Cancelled · 3 written"_s; })) << qPrintable(told());

    for (const QString& left : outputs()) QFile::remove(options.OutputPath + u'/' + left);
    start();
    letThrough(4);
    EXPECT_EQ(summary(), Succeeded + u"4 written"_s);
    EXPECT_EQ(statuses(), u"wwww"_s);
    EXPECT_EQ(revealed.size(), 4);
}

TEST_F(RunWindow, ThreeFailuresInARowAskWhetherToGoOn) {
    for (const bool goesOn : {true, false}) {
        window->photos().RemoveAllImages();
        addPhotos(u"bbbbg"_s);
        start();
        const QMessageBox* question = message();
        EXPECT_EQ(question->text(), u"Successive Fail"_s);
        EXPECT_EQ(question->informativeText(),
                  u"3 Photos in a row failed to save, Would you like to  continue watermarking?\n"
                  "We recommend stopping the process and run as administrator.\n"
                  "Select No to stop watermarking."_s);
        EXPECT_THAT(buttons(*question), ::testing::UnorderedElementsAre(u"OK"_s, u"No"_s));
        EXPECT_EQ(statuses(), u"xxx.."_s);
        EXPECT_TRUE(window->processing().ProcessingIndicator()->text().endsWith(u"3 failed"_s));
        answer(goesOn ? u"OK"_s : u"No"_s);
        if (goesOn) {
            EXPECT_EQ(summary(), Failed + u"1 written, 4 failed"_s);
            EXPECT_EQ(statuses(), u"xxxxw"_s);
            QFile::remove(options.OutputPath + u"/photo4.png"_s);
            continue;
        }
        EXPECT_TRUE(QTest::qWaitFor([this] { return isEnabled(Act::Start); }, 10000));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no summary";
        EXPECT_TRUE(window->processing().isVisible());
        EXPECT_EQ(statuses(), u"xxx.."_s);
        // What is there when it is resumed counts.
        addPhotos(u"bbbbgg"_s);
        QPushButton* pause = window->processing().PauseOrResumeProcessing();
        QTest::mouseClick(pause, Qt::LeftButton);
        EXPECT_EQ(pause->text(), u"Resume"_s);
        EXPECT_EQ(pace(), u"Stopped"_s);
        QTest::mouseClick(pause, Qt::LeftButton);
        EXPECT_EQ(summary(), Failed + u"2 written, 4 failed"_s);
        EXPECT_EQ(statuses(), u"xxxxww"_s);
        EXPECT_THAT(outputs(), ElementsAre(u"photo4.png"_s, u"photo5.png"_s));
    }
}

TEST_F(RunWindow, ClosingDuringARunAsksAndFinishesThePhotoInHand) {
    addPhotos(u"ggg"_s);
    startGated();
    window->close();
    QTest::keyClick(message(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible()) << "the safe answer goes on";
    EXPECT_FALSE(isEnabled(Act::Start));
    QPushButton* pause = window->processing().PauseOrResumeProcessing();
    QTest::mouseClick(pause, Qt::LeftButton);
    letThrough(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return pace() == u"Paused"_s; }, 10000));
    window->close();
    answer(u"Keep Running"_s);
    EXPECT_TRUE(window->isVisible()) << "a paused run is one, too";
    QTest::mouseClick(pause, Qt::LeftButton);
    ASSERT_TRUE(waitUntilHeld(2));
    window->close();
    answer(u"Stop and Quit"_s);
    EXPECT_FALSE(window->isVisible());
    destroyRun();
    EXPECT_THAT(outputs(), ElementsAre(u"photo0.png"_s));
}

TEST_F(RunWindow, PhotosOfTheListAreOnlyReplacedWhenToldSo) {
    addPhotos(u"gg"_s);
    window->watermarks().ReflectWatermark(boxRecord(20, 20, 1, Color::black()));
    const QString source = path(u"in/photo0.png"_s);
    const QByteArray original = contentOf(source);
    const QString elsewhere = options.OutputPath;
    options.OutputPath = path(u"in"_s);

    start();
    EXPECT_EQ(message()->text(), u"2 Photos Would Be Replaced"_s);
    QTest::keyClick(message(), Qt::Key_Return);
    EXPECT_TRUE(isEnabled(Act::Start)) << "the safe answer does nothing";
    EXPECT_FALSE(window->processing().isVisible());

    start();
    options.OutputPath = elsewhere;
    answer(u"Choose Another Folder"_s);
    EXPECT_EQ(summary(), Succeeded + u"2 written"_s);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(contentOf(source), original);

    options.OutputPath = path(u"in"_s);
    start();
    answer(u"Replace"_s);
    EXPECT_EQ(summary(), Succeeded + u"2 written"_s);
    EXPECT_NE(contentOf(source), original);
}

TEST_F(RunWindow, TakenNamesAreAskedAboutOncePerFolder) {
    addPhotos(u"gg"_s);
    options.Rename = true;
    options.RenameFormat = u"same"_s;
    start();
    EXPECT_EQ(message()->text(), u"2 Photos Would Become 1 File"_s);
    QTest::keyClick(message(), Qt::Key_Return);
    EXPECT_EQ(summary(), Succeeded + u"2 written"_s);
    EXPECT_THAT(outputs(), ElementsAre(u"same.png"_s, u"same1.png"_s));
    start();
    EXPECT_EQ(message()->text(), u"2 Files Exist Already"_s);
    QTest::keyClick(message(), Qt::Key_Escape);
    EXPECT_TRUE(isEnabled(Act::Start));
    start();
    answer(u"Skip"_s);
    EXPECT_EQ(summary(), Succeeded + u"0 written"_s);
    start();
    EXPECT_EQ(summary(), Succeeded + u"0 written"_s) << "nothing is asked again";
    options.OutputPath = path(u"elsewhere"_s);
    ASSERT_TRUE(QDir().mkpath(options.OutputPath));
    start();
    answer(u"Replace"_s);
    EXPECT_EQ(summary(), Succeeded + u"2 written, 1 warned"_s);
    EXPECT_THAT(outputs(), ElementsAre(u"same.png"_s));
}

TEST_F(RunWindow, ThePhotoInHandIsSelectedAloneAndShownAsItIsWritten) {
    addPhotos(u"ggg"_s, {60, 40});
    window->photoList().selectAll();
    startGated();
    letThrough(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->photos().selectedRow() == 1; }, 10000));
    EXPECT_EQ(window->photos().selection().selectedIndexes().size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !window->previewView().picture().isNull(); }, 10000));
    const QImage written(options.OutputPath + u"/photo0.png"_s);
    EXPECT_EQ(window->previewView().picture().convertToFormat(written.format()), written);
    letThrough(2);
    summary();
    EXPECT_TRUE(window->previewView().picture().isNull());
    EXPECT_EQ(window->photos().selectedRow(), 2);
}

TEST_F(RunWindow, WhatACancelledRunStillTellsIsNotTakenForTheNextOnes) {
    addPhotos(u"gg"_s);
    startGated();
    QTest::mouseClick(window->processing().CancelProcessing(), Qt::LeftButton);
    start();
    EXPECT_TRUE(QTest::qWaitFor([this] { return window->processing().isVisible(); }, 10000));
    letThrough(1);
    ASSERT_TRUE(waitUntilHeld(2)) << "the first photo of the second run";
    QTest::qWait(150);
    EXPECT_EQ(statuses(), u".."_s);
    letThrough(2);
    EXPECT_EQ(summary(), Succeeded + u"2 written"_s);
}

// What a screen reader speaks of `bar`, which must be a notification for that.
QString heardOf(QWidget* bar) {
    const QAccessibleInterface* item = QAccessible::queryAccessibleInterface(bar);
    return item->role() == QAccessible::Notification ? item->text(QAccessible::Name) : QString();
}

TEST_F(RunWindow, TellsThoseWhoHearItWhatBecomesOfARun) {
    addPhotos(u"gb"_s);
    startGated();
    EXPECT_TRUE(heardOf(&window->processing()).startsWith(u"The run has begun: 2 photo"_s));
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(heardOf(&window->processing()), u"Pausing"_s);
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(heardOf(&window->processing()), u"Going on"_s);
    letThrough(1);
    summary();
    EXPECT_EQ(heardOf(&window->result()), u"Result of the run: 1 written, 1 failed"_s);
}

TEST_F(RunWindow, KeepsTheStackAndTheLastNumber) {
    addPhotos(u"ggg"_s);
    const Watermark number = textRecord(u"<<AUTO:#5+2>>"_s, 12);
    window->watermarks().ReflectWatermark(number);
    start();
    summary();
    EXPECT_EQ(storedPreference(preference::LastAutoNumber), 9);
    const Result<WatermarkStack> kept =
        LoadWatermarkSetting(shared.SettingDirectory + u"Last Watermark.zcs"_s);
    ASSERT_TRUE(kept.has_value());
    ASSERT_EQ(kept->Watermarks.size(), 1U);
    EXPECT_EQ(kept->Watermarks[0].Text, number.Text);
}

}  // namespace
}  // namespace zelto
