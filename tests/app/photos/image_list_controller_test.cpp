// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/image_list_controller.h"

#include "support/testing.h"

#include <QSignalSpy>

namespace zelto {
namespace {

class ImageListControllerTest : public ::testing::Test {
  protected:
    ImageListControllerTest() {
        QObject::connect(&photos, &ImageListController::photoSelected,
                         [this](int row) { shown.push_back(row); });
    }

    QStringList names() const {
        QStringList names;
        for (const Image& photo : photos.images())
            names.append(photo.ImagePath.section(QLatin1Char('/'), -1));
        return names;
    }

    void add(const char* letters) {
        QStringList paths;
        for (const char* letter = letters; *letter != '\0'; ++letter) {
            paths.append(QStringLiteral("/p/") + QLatin1Char(*letter));
        }
        photos.AddImages(paths);
    }

    void selectRows(const std::vector<int>& rows) {
        photos.selection().clearSelection();
        for (const int row : rows) {
            photos.selection().setCurrentIndex(photos.model().index(row), QItemSelectionModel::Select);
        }
    }

    QString undo() {
        const QString name = history.undoText();
        history.undo();
        return name;
    }

    QUndoStack history;
    ImageListController photos{history};
    std::vector<int> shown;  // the rows that were to be shown
};

QStringList letters(const char* each) {
    QStringList list;
    for (; *each != '\0'; ++each) list.append(QString(QLatin1Char(*each)));
    return list;
}

TEST_F(ImageListControllerTest, PhotosAreAddedOnceAndTheFirstIsSelected) {
    add("abba");
    EXPECT_EQ(names(), letters("ab"));
    EXPECT_EQ(photos.selectedRow(), 0);
    photos.ChangeImage(QStringLiteral("1"));
    add("bca");
    EXPECT_EQ(names(), letters("abc"));
    EXPECT_EQ(photos.selectedRow(), 1) << "a selection stays";
    EXPECT_THAT(shown, ElementsAre(0, 1));
    EXPECT_EQ(history.count(), 2);
    add("abc");
    EXPECT_EQ(history.count(), 2) << "nothing new is no step";
}

TEST_F(ImageListControllerTest, RemovingSelectsTheRowThatTookThePlaceOrTheNewLast) {
    struct Row {
        int removed;
        const char* left;
        int selected;
    };
    for (const Row& row : {Row{0, "bc", 0}, Row{1, "ac", 1}, Row{2, "ab", 1}}) {
        photos.RemoveAllImages();
        add("abc");
        photos.ChangeImage(QString::number(row.removed));
        shown.clear();
        photos.RemoveImage(row.removed);
        EXPECT_EQ(names(), letters(row.left)) << row.removed;
        EXPECT_EQ(photos.selectedRow(), row.selected) << row.removed;
        ASSERT_FALSE(shown.empty());
        EXPECT_EQ(shown.back(), row.selected) << "the preview is rebuilt, also for the same row";
    }
    for (const int left : {0, -1}) {
        photos.RemoveSelectedImage();
        EXPECT_EQ(shown.back(), left);
    }
    EXPECT_EQ(undo(), QStringLiteral("Remove Photo"));
    EXPECT_EQ(shown.back(), 0);
}

TEST_F(ImageListControllerTest, ScatteredPhotosComeBackToTheirRowsWithAllTheyHad) {
    add("abcdef");
    photos.setApplyWatermark({3}, false);
    photos.model().setOutcome(1, PhotoStatus::Failed, QStringLiteral("no such file"));
    selectRows({1, 3, 5});
    photos.RemoveSelectedImage();
    EXPECT_EQ(names(), letters("ace"));
    EXPECT_EQ(photos.selectedRow(), 1);
    EXPECT_FALSE(photos.CheckIfImageExists(QStringLiteral("/p/b")));

    EXPECT_EQ(undo(), QStringLiteral("Remove 3 Photos"));
    EXPECT_EQ(names(), letters("abcdef"));
    EXPECT_EQ(photos.selectedPath(), QStringLiteral("/p/c")) << "the photo on show stays";
    EXPECT_FALSE(photos.images()[3].ApplyWatermark);
    EXPECT_EQ(photos.images()[1].ErrorMessage, QStringLiteral("no such file"));
    EXPECT_TRUE(photos.CheckIfImageExists(QStringLiteral("/p/b")));
    history.redo();
    EXPECT_EQ(names(), letters("ace"));
}

TEST_F(ImageListControllerTest, CheckMarksAreChangedAndUndone) {
    add("abc");
    const auto checks = [this] { return photos.model().checks(); };
    photos.setApplyWatermark({0, 2}, false);
    EXPECT_THAT(checks(), ElementsAre(false, true, false));
    photos.ToggleCheck();
    EXPECT_THAT(checks(), ElementsAre(true, false, true));
    photos.UncheckAllImages();
    EXPECT_THAT(checks(), ElementsAre(false, false, false));
    photos.CheckAllImages();
    EXPECT_THAT(checks(), ElementsAre(true, true, true));
    EXPECT_EQ(undo(), QStringLiteral("Check All Photos"));
    EXPECT_EQ(undo(), QStringLiteral("Uncheck All Photos"));
    EXPECT_EQ(undo(), QStringLiteral("Toggle Check Marks"));
    EXPECT_THAT(checks(), ElementsAre(false, true, false));
    EXPECT_EQ(undo(), QStringLiteral("Uncheck Photos"));
    EXPECT_THAT(checks(), ElementsAre(true, true, true));
}

TEST_F(ImageListControllerTest, OnlyAFailedPhotoHasAnErrorToTell) {
    add("ab");
    QSignalSpy alerts(&photos, &ImageListController::alert);
    photos.model().setOutcome(1, PhotoStatus::Failed, QStringLiteral("Watermarking failed."));
    photos.ImageListDoubleClicked(0);
    photos.ImageListDoubleClicked(7);
    EXPECT_EQ(alerts.count(), 0);
    photos.ImageListDoubleClicked(1);
    ASSERT_EQ(alerts.count(), 1);
    EXPECT_EQ(alerts[0][0].toString(), QStringLiteral("Watermark Error"));
    EXPECT_EQ(alerts[0][1].toString(), QStringLiteral("Watermarking failed."));
}

}  // namespace
}  // namespace zelto
