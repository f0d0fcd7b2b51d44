// SPDX-License-Identifier: GPL-3.0-or-later
// Several photos at once with the stack as it is, and the photo without its marks, in the real window.
#include "app/dialogs/standard_dialogs.h"
#include "app/preview/contact_choice.h"
#include "app/window/main_window.h"
#include "pictures/resample.h"
#include "render/composition.h"
#include "support/records.h"
#include "support/test_pictures.h"

#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace zelto {
namespace {

TEST(ContactChoice, TakesPhotosThatDifferAndTheOneThatIsSelected) {
    const QSize wide(600, 400);
    const QSize tall(400, 600);
    EXPECT_EQ(differentPhotos({wide, wide, tall, wide, QSize(3000, 2000), QSize(900, 300), QSize()}, 1, 4),
              std::vector({1, 2, 4, 5}));
    EXPECT_EQ(differentPhotos({wide, tall, wide}, 0, 9), std::vector({0, 1, 2}));
    EXPECT_EQ(differentPhotos(std::vector<QSize>(100, wide), 40, 3), std::vector({0, 40, 99}));
    std::vector<int> rows(1000);
    for (int row = 0; row < 1000; ++row) rows[static_cast<std::size_t>(row)] = row;
    const std::vector<int> spread = spreadRows(rows, 777, 90);
    EXPECT_EQ(spread.size(), 90U);
    EXPECT_TRUE(std::find(spread.begin(), spread.end(), 777) != spread.end());
}

class ContactViewTest : public ::testing::Test {
  protected:
    ContactViewTest() : window(shared, standardDialogs(), EditorSet()) {
        window.resize(1200, 800);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        QStringList paths;
        for (const QSize size : {QSize(1200, 800), QSize(800, 1200), QSize(1500, 500), QSize(300, 200)}) {
            paths.append(folder.filePath(QStringLiteral("%1x%2.png").arg(size.width()).arg(size.height())));
            drawnScene(size).save(paths.last());
        }
        paths.append(folder.filePath(QStringLiteral("empty.png")));
        QFile(paths.last()).open(QFile::WriteOnly);
        window.photos().AddImages(paths);
        Watermark mark = boxRecord(120, 60, 9);
        mark.PaddingRight = 20;
        window.watermarks().AddNewWatermark(mark);
    }

    ContactView& contacts() { return window.pages().contacts(); }
    bool settle() {
        return QTest::qWaitFor([this] { return contacts().isSettled() && !contacts().cells().empty(); },
                               10000);
    }
    // Whether each photo is seen as it would be written.
    void expectRight() {
        ASSERT_EQ(contacts().cells().size(), 4U);
        for (const ContactView::Cell& cell : contacts().cells()) {
            const PhotoRequest request = window.preview().requestFor(cell.row);
            const QImage whole = MakeWatermarkImage(*buildPhotoScene(request), *request.stack);
            ASSERT_FALSE(cell.picture.isNull()) << cell.row;
            const QImage expected = resizedImage(whole, cell.picture.size());
            double difference = 0.0;
            for (int y = 0; y < expected.height(); ++y) {
                for (int x = 0; x < expected.width(); ++x)
                    difference += std::abs(qGray(cell.picture.pixel(x, y)) - qGray(expected.pixel(x, y)));
            }
            EXPECT_LT(difference / (expected.width() * expected.height()), 1.5) << cell.row;
            EXPECT_EQ(cell.photoSize, whole.size());
        }
    }

    QTemporaryDir folder;
    MyGlobalInstance shared;
    MainWindow window;
};

TEST_F(ContactViewTest, FollowsEveryEditAndAClickGoesToThatPhoto) {
    QTest::keyClick(&window, Qt::Key_F9);
    ASSERT_TRUE(window.pages().showsContacts());
    ASSERT_TRUE(settle());
    expectRight();
    Watermark moved = window.watermarks().GetWatermarkAtRow(0);
    moved.Position = 1;
    moved.PaddingLeftShare = 0.1F;
    window.watermarks().placeWatermark(0, moved, QStringLiteral("Place"));
    ASSERT_TRUE(settle());
    expectRight();
    window.watermarks().AddFilter(8);
    ASSERT_TRUE(settle());
    expectRight();

    QTest::mouseClick(&contacts(), Qt::LeftButton, {}, contacts().cellRect(2).center());
    EXPECT_FALSE(window.pages().showsContacts());
    EXPECT_FALSE(window.actions()[Act::Contacts]->isChecked());
    EXPECT_EQ(window.photos().selectedRow(), 2);
    QTest::keyClick(&window, Qt::Key_F9);
    ASSERT_TRUE(settle());
    QTest::keyClick(&contacts(), Qt::Key_Left);
    QTest::keyClick(&contacts(), Qt::Key_Return);
    EXPECT_EQ(window.photos().selectedRow(), 1);
    QTest::keyClick(&window, Qt::Key_F9);
    QTest::keyClick(&contacts(), Qt::Key_Escape);
    EXPECT_FALSE(window.pages().showsContacts());
    QTest::keyClick(&window, Qt::Key_F9);
    ASSERT_TRUE(settle());
    const QImage marked = contacts().cells()[2].picture;
    QTest::keyPress(&window, Qt::Key_F8);
    ASSERT_TRUE(settle());
    EXPECT_NE(contacts().cells()[2].picture, marked);
    QTest::keyRelease(&window, Qt::Key_F8);
    ASSERT_TRUE(settle());
    EXPECT_EQ(contacts().cells()[2].picture, marked);
    window.actions()[Act::ActualSize]->trigger();
    EXPECT_FALSE(window.pages().showsContacts()) << "what is zoomed is seen";
}

TEST_F(ContactViewTest, HoldingAKeyShowsThePhotoWithoutItsMarks) {
    const auto seen = [this] {
        EXPECT_TRUE(QTest::qWaitFor([this] { return window.preview().isSettled(); }, 5000));
        return window.previewView().seenPicture();
    };
    const QImage marked = seen();
    QTest::keyPress(&window, Qt::Key_F8);
    const QImage bare = seen();
    EXPECT_NE(bare, marked);
    QTest::keyRelease(&window, Qt::Key_F8);
    EXPECT_EQ(seen(), marked);
    window.actions()[Act::Before]->trigger();
    EXPECT_EQ(seen(), bare);
    window.watermarks().RemoveAllWatermarks();
    window.actions()[Act::Before]->trigger();
    EXPECT_EQ(seen(), bare);
}

}  // namespace
}  // namespace zelto
