// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/image_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto {
namespace {

using ::testing::ElementsAre;

ImageList listOf(const QStringList& paths) {
    ImageList list;
    for (const QString& path : paths) list.AddImage(path);
    return list;
}

QStringList pathsOf(const ImageList& list) {
    QStringList paths;
    for (const Image& image : list.images()) paths.append(image.ImagePath);
    return paths;
}

std::vector<bool> checksOf(const ImageList& list) {
    std::vector<bool> checks;
    for (const Image& image : list.images()) checks.push_back(image.ApplyWatermark);
    return checks;
}

TEST(ImageList, KeepsEachExactPathOnceInTheOrderOfAdding) {
    ImageList list;
    EXPECT_TRUE(list.AddImage(QStringLiteral("/x/b.jpg")));
    EXPECT_TRUE(list.AddImage(QStringLiteral("/x/a.jpg")));
    EXPECT_FALSE(list.AddImage(QStringLiteral("/x/b.jpg")));
    EXPECT_TRUE(list.AddImage(QStringLiteral("/x/A.jpg")));
    EXPECT_TRUE(list.AddImage(QStringLiteral("/x//a.jpg")));
    EXPECT_EQ(pathsOf(list), QStringList({QStringLiteral("/x/b.jpg"), QStringLiteral("/x/a.jpg"),
                                          QStringLiteral("/x/A.jpg"), QStringLiteral("/x//a.jpg")}));
    EXPECT_FALSE(list.CheckIfImageExists(QStringLiteral("/X/a.jpg")));
}

TEST(ImageList, ARemovedPhotoCanBeAddedAgainAndItsFolderStaysKnown) {
    ImageList list =
        listOf({QStringLiteral("/x/a.jpg"), QStringLiteral("/y/b.jpg"), QStringLiteral("/x/c.jpg")});
    EXPECT_EQ(list.RemoveImage(1), std::optional<std::size_t>(1));
    EXPECT_EQ(list.RemoveImage(1), std::optional<std::size_t>(0)) << "the last one: the new last row";
    EXPECT_EQ(list.RemoveImage(0), std::nullopt);
    EXPECT_TRUE(list.AddImage(QStringLiteral("/y/b.jpg")));
    list.RemoveAllImages();
    EXPECT_TRUE(list.AddImage(QStringLiteral("/x/a.jpg")));
    EXPECT_EQ(list.InputOutputDictionary().keys(), QStringList({QStringLiteral("/x"), QStringLiteral("/y")}));
}

TEST(ImageList, PhotosTakenOutGoBackToTheirRowsAsTheyWere) {
    const QStringList all = {QStringLiteral("/1"), QStringLiteral("/2"), QStringLiteral("/3"),
                             QStringLiteral("/4")};
    for (const std::vector<std::size_t>& rows :
         {std::vector<std::size_t>{}, {0}, {3}, {1, 2}, {0, 2}, {0, 1, 2, 3}}) {
        ImageList list = listOf(all);
        list.setApplyWatermark(2, false);
        const ImageList::Placed taken = list.takeImages(rows);
        EXPECT_EQ(list.images().size(), all.size() - rows.size());
        for (const std::size_t row : rows) EXPECT_FALSE(list.CheckIfImageExists(all[static_cast<int>(row)]));
        list.insertImages(taken);
        EXPECT_EQ(pathsOf(list), all);
        EXPECT_THAT(checksOf(list), ElementsAre(true, true, false, true));
        EXPECT_TRUE(list.CheckIfImageExists(QStringLiteral("/1")));
    }
}

TEST(ImageList, ChecksAreSetForAllOrTurnedOver) {
    ImageList list = listOf({QStringLiteral("/1"), QStringLiteral("/2"), QStringLiteral("/3")});
    list.setApplyWatermark(1, false);
    list.ToggleCheck();
    EXPECT_THAT(checksOf(list), ElementsAre(false, true, false));
    list.CheckAllImages();
    EXPECT_THAT(checksOf(list), ElementsAre(true, true, true));
    list.UncheckAllImages();
    EXPECT_THAT(checksOf(list), ElementsAre(false, false, false));
}

TEST(ImageList, AnErrorTextStaysUntilANewFailureReplacesIt) {
    ImageList list = listOf({QStringLiteral("/1")});
    const auto& image = list.images().front();
    list.setOutcome(0, PhotoStatus::Failed, QStringLiteral("first"));
    list.markUnprocessed();
    EXPECT_EQ(image.StsImage, statusImage(PhotoStatus::NotProcessed));
    list.setOutcome(0, PhotoStatus::Written, QString());
    EXPECT_EQ(image.StsImage, statusImage(PhotoStatus::Written));
    EXPECT_EQ(image.ErrorMessage, QStringLiteral("first"));
    list.setOutcome(0, PhotoStatus::Failed, QStringLiteral("second"));
    EXPECT_EQ(image.ErrorMessage, QStringLiteral("second"));
}

}  // namespace
}  // namespace zelto
