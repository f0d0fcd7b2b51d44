// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"
#include "render/photo_filters.h"

#include <QListWidget>

namespace zelto {
namespace {

class FilterWindowTest : public EditorTest {
  protected:
    int chosen() { return window.document().state().Stack.SelectedFilter; }

    static QListWidget& tiles(QWidget& editor) {
        return *editor.findChild<QListWidget*>(QStringLiteral("Filters"));
    }
    static void clickTile(QWidget& editor, const QString& name) {
        const auto found = tiles(editor).findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        QTest::mouseClick(tiles(editor).viewport(), Qt::LeftButton, {},
                          tiles(editor).visualItemRect(found.first()).center());
    }
    // The colour a filter gives the middle of the plain photo.
    static QRgb filtered(int number) {
        QImage photo(PhotoSize, QImage::Format_RGB32);
        photo.fill(PhotoColor);
        return ApplyFilter(number, photo).pixel(300, 200);
    }
};

TEST_F(FilterWindowTest, AFilterIsSeenAtOnceAndUndoneByAnother) {
    add(Watermark(watermark_type::Shape));
    edit(Act::AddFilter, [this](QWidget& editor) {
        clickTile(editor, QStringLiteral("Matrix"));
        EXPECT_EQ(chosen(), 6);
        EXPECT_EQ(window.watermarks().selectedRow(), 0) << "its row is the selected one";
        EXPECT_EQ(seen().pixel(300, 200), filtered(6));
        QTest::keyClick(&tiles(editor), Qt::Key_Right);
        EXPECT_EQ(chosen(), 7);
        EXPECT_EQ(seen().pixel(300, 200), filtered(7));
        clickTile(editor, QStringLiteral("None"));
        EXPECT_EQ(seen().pixel(300, 200), PhotoColor);
        EXPECT_EQ(window.watermarks().selectedRow(), -1) << "no other row takes its place";
        clickTile(editor, QStringLiteral("Haze"));
    });
    EXPECT_EQ(chosen(), 13);
    edit(Act::AddFilter,
         [](QWidget& editor) { EXPECT_EQ(tiles(editor).currentItem()->text(), QStringLiteral("Haze")); });
    EXPECT_EQ(history().undoText(), QStringLiteral("Choose Filter"));
    history().undo();
    EXPECT_EQ(chosen(), 0);
    EXPECT_EQ(window.watermarks().GetFilter(), 0) << "one step";
}

TEST_F(FilterWindowTest, EveryFilterIsOfferedWithThePhotoInIt) {
    edit(Act::AddFilter, [](QWidget& editor) {
        const QListWidget& list = tiles(editor);
        const auto middle = [&list](int row) {
            const QImage picture = list.item(row)->icon().pixmap(list.iconSize()).toImage();
            return picture.pixelColor(picture.rect().center());
        };
        const int last = list.count() - 1;
        ASSERT_TRUE(QTest::qWaitFor([&] { return middle(last).alpha() == 255; }, 10000));
        for (int row = 0; row <= last; ++row) {
            const int number = list.item(row)->data(Qt::UserRole).toInt();
            const QColor expected(number == 0 ? PhotoColor : filtered(number));
            EXPECT_NEAR(middle(row).red(), expected.red(), 2) << number;
            EXPECT_NEAR(middle(row).green(), expected.green(), 2) << number;
            EXPECT_NEAR(middle(row).blue(), expected.blue(), 2) << number;
        }
        EXPECT_EQ(list.count(), 13);
    });
}

}  // namespace
}  // namespace zelto
