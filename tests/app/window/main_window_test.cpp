// SPDX-License-Identifier: GPL-3.0-or-later
// The real window, driven with mouse and keys.
#include "app/window/main_window.h"

#include "app/common/sample_photo.h"
#include "app/dialogs/standard_dialogs.h"
#include "app/watermarks/watermark_delegate.h"
#include "platform/path_parts.h"
#include "support/exiftool.h"
#include "support/records.h"
#include "support/test_pictures.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

constexpr QSize PhotoSize(600, 400);

class MainWindowTest : public ::testing::Test {
  protected:
    MainWindowTest() {
        EditorSet editors;
        for (const EditorKind kind : {EditorKind::Text, EditorKind::Shape}) {
            editors[kind] = {[](WatermarkController&) { return nullptr; }, [](const EditorCall&) {}};
        }
        window = std::make_unique<MainWindow>(shared, standardDialogs(), std::move(editors));
        window->resize(1200, 800);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    // Photos of one size, each with a corner of its own brightness.
    QStringList makePhotos(int count) {
        QStringList paths;
        for (int i = 0; i < count; ++i) {
            QImage picture = drawnScene(PhotoSize);
            for (int y = 0; y < 50; ++y) {
                for (int x = 0; x < 50; ++x) picture.setPixel(x, y, qRgb(20 * i, 0, 255));
            }
            paths.append(folder.filePath(QStringLiteral("photo%1.png").arg(i)));
            picture.save(paths.last());
        }
        return paths;
    }

    void addPhotos(int count) { window->photos().AddImages(makePhotos(count)); }

    void addWatermark(const Watermark& watermark) {
        window->watermarks().resetCurrentWatermarkIndex();
        window->watermarks().ReflectWatermark(watermark);
    }

    PreviewView& view() { return window->previewView(); }

    // Whether the preview has come to show the selected photo with the stack as it is.
    bool isShown() {
        const auto& shown = view().shown();
        return shown && shown->path == window->photos().selectedPath() && window->preview().isSettled();
    }
    bool waitForPreview() {
        return QTest::qWaitFor([this] { return isShown(); }, 10000);
    }

    QPoint inView(QPointF picturePoint) { return view().geometry().toView(picturePoint).toPoint(); }

    QPoint rowCentre(QAbstractItemView& list, int row) {
        return list.visualRect(list.model()->index(row, 0)).center();
    }
    void clickRow(QAbstractItemView& list, int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, keys, rowCentre(list, row));
    }

    QTemporaryDir folder;
    MyGlobalInstance shared;
    std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, FitsASmallScreen) {
    const auto fits = [this] {
        const QSize least = window->minimumSizeHint();
        return least.width() <= 558 && least.height() <= 350;
    };
    EXPECT_TRUE(fits()) << "empty";
    addWatermark(boxRecord(120, 80, 1));
    EXPECT_TRUE(fits()) << "with the sample photo";
    addPhotos(1);
    EXPECT_TRUE(fits());
}

TEST_F(MainWindowTest, WhatTheScreenShowsIsWhatWasComposed) {
    addPhotos(1);
    view().ActualSize();
    ASSERT_TRUE(waitForPreview());
    const QImage grabbed = view().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const QRect place = view().geometry().visibleRegion().rect.translated(view().geometry().origin());
    EXPECT_EQ(grabbed.copy(place), view().seenPicture().copy(place).convertToFormat(QImage::Format_RGB32));
}

TEST_F(MainWindowTest, ClickingAPhotoShowsItAndItsNeighbours) {
    addPhotos(3);
    ASSERT_TRUE(waitForPreview());
    for (const int row : {2, 1, 0}) {
        clickRow(window->photoList(), row);
        ASSERT_TRUE(waitForPreview()) << row;
        const QPoint corner = inView({25, 25});
        EXPECT_NEAR(view().seenPicture().pixelColor(corner).red(), 20 * row, 2) << row;
    }
}

TEST_F(MainWindowTest, KeysRemoveCheckAndSelectPhotos) {
    addPhotos(4);
    PhotoListView& list = window->photoList();
    clickRow(list, 1);
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_FALSE(window->photos().images()[1].ApplyWatermark);
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(window->photos().count(), 3);
    EXPECT_EQ(window->photos().selectedRow(), 1);
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_THAT(window->photos().model().checks(), ::testing::Each(false));
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(window->photos().count(), 0);
    EXPECT_FALSE(view().isVisible()) << "an empty list says what to do";
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window->photos().count(), 3);
}

TEST_F(MainWindowTest, AClickOnACheckBoxChecksAndDoesNotSelect) {
    addPhotos(2);
    PhotoListView& list = window->photoList();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.checkBoxRect(1).center());
    EXPECT_FALSE(window->photos().images()[1].ApplyWatermark);
    addWatermark(boxRecord(120, 80, 1));
    QListView& watermarks = window->watermarkList();
    const QRect row = watermarks.visualRect(watermarks.model()->index(0, 0));
    QTest::mouseClick(watermarks.viewport(), Qt::LeftButton, Qt::NoModifier,
                      WatermarkDelegate::eyeRect(row).center());
    EXPECT_FALSE(window->watermarks().GetWatermarkAtRow(0).IsEnabled);
    watermarks.setFocus();
    QTest::keyClick(&watermarks, Qt::Key_Space);
    EXPECT_TRUE(window->watermarks().GetWatermarkAtRow(0).IsEnabled);
}

TEST_F(MainWindowTest, ARecordThatDrawsNothingCarriesASignWhileItDoes) {
    addPhotos(1);
    window->watermarks().AddFilter(3);
    addWatermark(boxRecord(120, 80, 1));
    Watermark text(watermark_type::Text);
    addWatermark(text);
    const auto rowsWithSign = [this] {
        const QImage list = window->watermarkList().viewport()->grab().toImage();
        std::vector<int> rows;
        for (int row = 0; row < window->watermarks().model().rowCount(); ++row) {
            const QRect place = window->watermarkList().visualRect(window->watermarks().model().index(row));
            const QColor amber = list.pixelColor(place.right() - 15, place.center().y() + 4);
            if (amber.red() > amber.blue() + 100) rows.push_back(row);
        }
        return rows;
    };
    ASSERT_TRUE(waitForPreview());
    EXPECT_THAT(rowsWithSign(), ::testing::ElementsAre(2));
    EXPECT_TRUE(window->watermarks()
                    .model()
                    .index(2)
                    .data(Qt::ToolTipRole)
                    .toString()
                    .contains(QStringLiteral("The text is empty")));
    text.Text = QStringLiteral("words");
    text.FontSize = 20;
    window->watermarks().ReflectWatermark(text);
    ASSERT_TRUE(waitForPreview());
    EXPECT_THAT(rowsWithSign(), ::testing::IsEmpty());
}

TEST_F(MainWindowTest, ADoubleClickOnAWatermarkOpensItsEditor) {
    addPhotos(1);
    addWatermark(boxRecord(120, 80, 1));
    addWatermark(boxRecord(120, 80, 1));
    QListView& list = window->watermarkList();
    std::vector<int> edited;
    QObject::connect(&window->editors(), &WatermarkEditors::opened, window.get(),
                     [&] { edited.push_back(window->editors().subject()->watermark); });
    clickRow(list, 1);
    EXPECT_TRUE(edited.empty());
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, 1));
    EXPECT_THAT(edited, ::testing::ElementsAre(1));
}

TEST_F(MainWindowTest, FilesAreDroppedAnywhereAndFramedMeanwhile) {
    QStringList paths = makePhotos(2);
    const QString note = folder.filePath(QStringLiteral("note.txt"));
    QFile(note).open(QFile::WriteOnly);
    const QString pictures = folder.filePath(QStringLiteral("folder.png"));
    ASSERT_TRUE(QDir().mkpath(pictures));
    const auto drop = [&](const QStringList& dropped) {
        QMimeData mime;
        QList<QUrl> urls;
        for (const QString& path : dropped) urls.append(QUrl::fromLocalFile(path));
        mime.setUrls(urls);
        const QPoint at(60, 200);
        QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &enter);
        const bool isFramed = window->mainView().isReceivingDrag();
        EXPECT_EQ(isFramed, enter.isAccepted());
        if (!isFramed) return false;
        const QImage frame = window->mainView().grab().toImage();
        EXPECT_EQ(frame.pixelColor(3, 300), window->palette().color(QPalette::Highlight));
        QDropEvent released(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &released);
        EXPECT_FALSE(window->mainView().isReceivingDrag());
        return true;
    };
    EXPECT_FALSE(drop({note}));
    EXPECT_TRUE(drop({note, paths[1], paths[0]}));
    ASSERT_EQ(window->photos().count(), 2);
    EXPECT_EQ(window->photos().images()[0].ImagePath, paths[1]);
    EXPECT_EQ(window->photos().selectedRow(), 0);

    ASSERT_TRUE(QFile::copy(paths[0], pictures + QStringLiteral("/photo10.png")));
    ASSERT_TRUE(QFile::copy(paths[0], pictures + QStringLiteral("/photo9.png")));
    EXPECT_TRUE(drop({pictures})) << "a folder, whatever its name";
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->photos().count() == 4; }, 10000));
    EXPECT_EQ(window->photos().selectedRow(), 2) << "what is new is selected";
    EXPECT_EQ(window->photos().selection().selectedIndexes().size(), 2);
    auto* copied = new QMimeData;
    copied->setUrls({QUrl::fromLocalFile(paths[0])});
    QApplication::clipboard()->setMimeData(copied);
    // Looking through a folder shows its progress where that takes long.
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->isActiveWindow(); }, 10000));
    QTest::keyClick(window.get(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window->photos().selectedPath(), paths[0]) << "what was there already is shown";
    EXPECT_EQ(window->photos().count(), 4);
}

TEST_F(MainWindowTest, PhotosAreFoundSortedAndSteppedThrough) {
    QStringList paths = makePhotos(3);
    ASSERT_TRUE(QFile::rename(paths[2], folder.filePath(QStringLiteral("Photo10.png"))));
    paths[2] = folder.filePath(QStringLiteral("Photo10.png"));
    ASSERT_TRUE(writeTags({QStringLiteral("-DateTimeOriginal=2020:01:01 13:00:00")}, {paths[1]}));
    ASSERT_TRUE(writeTags({QStringLiteral("-DateTimeOriginal=2020:01:01 12:30:00")}, {paths[2]}));
    window->photos().AddImages({paths[2], paths[0], paths[1]});
    const auto order = [this] {
        QStringList names;
        for (const Image& photo : window->photos().images()) names.append(lastPathComponent(photo.ImagePath));
        return names.join(QLatin1Char(' '));
    };
    auto* find = window->findChild<QLineEdit*>();
    QTest::keyClick(window.get(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(find->hasFocus());
    for (const auto& [key, row] : {std::pair(Qt::Key_PageDown, 1), std::pair(Qt::Key_PageDown, 2),
                                   std::pair(Qt::Key_PageDown, 2), std::pair(Qt::Key_PageUp, 1)}) {
        QTest::keyClick(find, key);
        EXPECT_EQ(window->photos().selectedRow(), row);
    }
    QTest::keyClicks(find, QStringLiteral("PHOTO1"));
    EXPECT_THAT(window->photos().shownRows(), ::testing::ElementsAre(0, 2));
    EXPECT_EQ(window->photos().selectedRow(), 2);
    QTest::keyClicks(find, QStringLiteral("x"));
    EXPECT_EQ(window->photos().selectedRow(), 2) << "the photo on show stays where none is found";
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_EQ(window->photos().shownRows().size(), 3U);
    EXPECT_TRUE(window->photoList().hasFocus());

    window->actions()[Act::SortByName]->trigger();
    EXPECT_EQ(order(), QStringLiteral("photo0.png photo1.png Photo10.png"));
    EXPECT_EQ(window->photos().selectedPath(), paths[1]);
    window->actions()[Act::SortByDate]->trigger();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return order() == QStringLiteral("Photo10.png photo1.png photo0.png"); }, 10000));
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(order(), QStringLiteral("Photo10.png photo0.png photo1.png"));
}

TEST_F(MainWindowTest, TheWheelZoomsAboutThePointerAndKeysInSteps) {
    addPhotos(1);
    ASSERT_TRUE(waitForPreview());
    const QPointF pointer(300, 250);
    const auto turn = [&](int notches) {
        QWheelEvent wheel(pointer, view().viewport()->mapToGlobal(pointer), {}, {0, 120 * notches},
                          Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view().viewport(), &wheel);
    };
    view().ActualSize();
    turn(9);  // far enough for the photo to fill the view
    EXPECT_NEAR(view().scale(), std::pow(1.1, 9), 1e-9);
    const QPointF held = view().geometry().toPicture(pointer);
    turn(2);
    turn(-1);
    EXPECT_NEAR(view().scale(), std::pow(1.1, 11) * 0.9, 1e-9);
    EXPECT_NEAR(view().geometry().toView(held).x(), pointer.x(), 1.0);
    EXPECT_NEAR(view().geometry().toView(held).y(), pointer.y(), 1.0);

    view().ActualSize();
    QTest::keyClick(window.get(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view().scale(), 1.1 - 0.11);
    EXPECT_FALSE(view().FitToScreen());
    QTest::keyClick(window.get(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_TRUE(view().FitToScreen());
}

class LayerDragging : public MainWindowTest {
  protected:
    void SetUp() override {
        addPhotos(1);
        addWatermark(boxRecord(120, 80, 1));
        view().ActualSize();
        ASSERT_TRUE(waitForPreview());
    }

    const Watermark& shape() { return window->watermarks().GetWatermarkAtRow(0); }

    void press(QPointF from, QPointF to) {
        QTest::mousePress(view().viewport(), Qt::LeftButton, {}, inView(from));
        for (const double part : {0.3, 0.7, 1.0}) move(from + (to - from) * part);
    }
    void move(QPointF to) {
        const QPointF at = inView(to);
        QMouseEvent event(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton,
                          Qt::LeftButton, modifiers);
        QApplication::sendEvent(view().viewport(), &event);
    }
    void release(QPointF to) { QTest::mouseRelease(view().viewport(), Qt::LeftButton, {}, inView(to)); }

    Qt::KeyboardModifiers modifiers = Qt::AltModifier;  // nothing snaps

    // Whether the shape is seen at a point of the photo.
    bool isRed(QPointF point) { return view().seenPicture().pixelColor(inView(point)) == QColor(255, 0, 0); }
};

TEST_F(LayerDragging, ADragIsSeenAtOnceAndIsOneStepThatEscapeTakesBack) {
    const int steps = window->document().history().count();
    press({60, 40}, {500, 300});
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return isRed({500, 300}) && !isRed({60, 40});
        },
        5000))
        << "seen while dragged";
    QTest::keyClick(&view(), Qt::Key_Escape);
    release({500, 300});
    EXPECT_EQ(window->document().history().count(), steps);
    ASSERT_TRUE(waitForPreview());
    EXPECT_TRUE(isRed({60, 40}));

    press({60, 40}, {500, 300});
    release({500, 300});
    EXPECT_EQ(shape().Position, 9) << "the nearest corner";
    EXPECT_EQ(shape().PaddingRight, 40);
    EXPECT_EQ(shape().PaddingBottom, 60);
    EXPECT_EQ(window->document().history().count(), steps + 1);
    ASSERT_TRUE(waitForPreview());
    EXPECT_TRUE(isRed({442, 262}));
    EXPECT_FALSE(isRed({438, 258}));
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(waitForPreview());
    EXPECT_TRUE(isRed({5, 5}));
}

TEST_F(LayerDragging, HandlesSizeAndTurnTheSelectedLayerInOneStepEach) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, inView({60, 40}));
    press({120, 80}, {240, 160});
    release({240, 160});
    EXPECT_EQ(shape().Width, 240.0F);
    EXPECT_EQ(shape().Height, 160.0F);
    ASSERT_TRUE(waitForPreview());
    EXPECT_TRUE(isRed({235, 155}));
    modifiers = Qt::ShiftModifier;
    press({240, 160}, {300, 120});
    release({300, 120});
    EXPECT_EQ(shape().Width, 300.0F);
    EXPECT_EQ(shape().Height, 120.0F);
    ASSERT_TRUE(waitForPreview());
    press({150, -25}, {300, -10});
    release({300, -10});
    EXPECT_EQ(std::abs(shape().Rotation) % 15, 0);
    EXPECT_GT(shape().Rotation, 0);
    for (const float width : {300.0F, 240.0F, 120.0F}) {
        window->document().history().undo();
        EXPECT_EQ(shape().Width, width);
        EXPECT_EQ(shape().Rotation, 0);
    }
}

TEST_F(LayerDragging, TheArrowKeysMoveTheSelectedLayer) {
    const int steps = window->document().history().count();
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, inView({60, 40}));
    for (int i = 0; i < 3; ++i) QTest::keyClick(&view(), Qt::Key_Right);
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(shape().Position, 1);
    EXPECT_EQ(shape().PaddingLeft, 3);
    EXPECT_EQ(shape().PaddingTop, 10);
    EXPECT_EQ(window->document().history().count(), steps + 1);

    window->watermarks().AddFilter(3);
    ASSERT_TRUE(waitForPreview());
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, inView({400, 300}));
    EXPECT_EQ(window->watermarks().selectedRow(), -1) << "the bare photo is no row";
    EXPECT_FALSE(window->actions()[Act::RemoveWatermark]->isEnabled());
}

TEST_F(MainWindowTest, APhotoThatCannotBeReadIsSaidSoAndTheNextOneIsShown) {
    QStringList paths = makePhotos(1);
    const QString broken = folder.filePath(QStringLiteral("broken.jpg"));
    QFile file(broken);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("no picture");
    file.close();
    window->photos().AddImages({broken, paths[0]});
    EXPECT_TRUE(QTest::qWaitFor([this] { return !view().message().isEmpty(); }, 5000));
    EXPECT_TRUE(view().message().contains(DamagedPictureMessage));
    clickRow(window->photoList(), 1);
    EXPECT_TRUE(waitForPreview());
}

TEST_F(MainWindowTest, ControlsFollowThePhotosAndTheRun) {
    const auto enabled = [this](Act act) { return window->actions()[act]->isEnabled(); };
    EXPECT_FALSE(enabled(Act::ZoomIn));
    EXPECT_TRUE(enabled(Act::AddText)) << "watermarks can be made before there are photos";
    EXPECT_TRUE(enabled(Act::AddPhotos));
    addWatermark(boxRecord(120, 80, 1));
    const auto shows = [this] { return view().shown() ? view().shown()->path : QString(); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows() == samplePhotoPath(); }));
    EXPECT_FALSE(enabled(Act::Start) || enabled(Act::FullScreen));
    addPhotos(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shows() == window->photos().selectedPath(); }));
    EXPECT_TRUE(enabled(Act::ZoomIn));
    EXPECT_TRUE(enabled(Act::AddText));
    EXPECT_TRUE(enabled(Act::MoveUp));
    EXPECT_FALSE(enabled(Act::AddQrCode)) << "there is no editor for it here";
    window->DisableControls();
    window->ShowProcessingControls();
    for (const Act act :
         {Act::AddPhotos, Act::RemovePhoto, Act::AddText, Act::MoveUp, Act::ZoomIn, Act::FullScreen}) {
        EXPECT_FALSE(enabled(act));
    }
    EXPECT_TRUE(window->photoList().isReadOnly());
    EXPECT_TRUE(window->processing().CancelProcessing()->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window->document().count(), 1) << "nothing is undone during a run";
    window->EnableControls();
    EXPECT_TRUE(enabled(Act::AddPhotos));
    EXPECT_FALSE(window->photoList().isReadOnly());
}

}  // namespace
}  // namespace zelto
