// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/image_list.h"

#include "support/testing.h"

namespace zelto {
namespace {

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

TEST(ImageList, KeepsEachExactPathOnceInTheOrderOfAdding) {
    ImageList list;
    EXPECT_TRUE(list.AddImage(u"/x/b.jpg"_s));
    EXPECT_TRUE(list.AddImage(u"/x/a.jpg"_s));
    EXPECT_FALSE(list.AddImage(u"/x/b.jpg"_s));
    EXPECT_TRUE(list.AddImage(u"/x/A.jpg"_s));
    EXPECT_TRUE(list.AddImage(u"/x//a.jpg"_s));
    EXPECT_EQ(pathsOf(list), QStringList({u"/x/b.jpg"_s, u"/x/a.jpg"_s, u"/x/A.jpg"_s, u"/x//a.jpg"_s}));
    EXPECT_FALSE(list.CheckIfImageExists(u"/X/a.jpg"_s));
}

TEST(ImageList, ARemovedPhotoCanBeAddedAgainAndItsFolderStaysKnown) {
    ImageList list = listOf({u"/x/a.jpg"_s, u"/y/b.jpg"_s, u"/x/c.jpg"_s});
    list.takeImages({1, 2});
    EXPECT_TRUE(list.AddImage(u"/x/c.jpg"_s));
    list.takeImages({0, 1});
    EXPECT_TRUE(list.AddImage(u"/x/a.jpg"_s));
    EXPECT_EQ(list.InputOutputDictionary().keys(), QStringList({u"/x"_s, u"/y"_s}));
}

TEST(ImageList, AnErrorTextStaysUntilANewFailureReplacesIt) {
    ImageList list = listOf({u"/1"_s});
    const auto& image = list.images().front();
    list.setOutcome(0, PhotoStatus::Failed, u"first"_s);
    list.setOutcome(0, PhotoStatus::NotProcessed, QString());
    EXPECT_EQ(image.Status, PhotoStatus::NotProcessed);
    list.setOutcome(0, PhotoStatus::Written, QString());
    EXPECT_EQ(image.Status, PhotoStatus::Written);
    EXPECT_EQ(image.ErrorMessage, u"first"_s);
    list.setOutcome(0, PhotoStatus::Failed, u"second"_s);
    EXPECT_EQ(image.ErrorMessage, u"second"_s);
}

}  // namespace
}  // namespace zelto
