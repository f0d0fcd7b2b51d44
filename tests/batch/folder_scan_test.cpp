// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/folder_scan.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelto {
namespace {

// A folder with empty files and, for names that end in '/', folders.
class FolderScan : public ::testing::Test {
  protected:
    void make(const QStringList& names) const {
        for (const QString& name : names) {
            const QString path = folder_.filePath(name);
            QDir().mkpath(name.endsWith(QLatin1Char('/')) ? path : QFileInfo(path).path());
            if (name.endsWith(QLatin1Char('/'))) continue;
            ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly)) << name.toStdString();
        }
    }
    QString scanned(bool subFolders, const ScanFormats& formats = {}) const {
        const auto found = ImportImagesFromFolder(folder_.path(), subFolders, GetExtensionList(formats));
        if (!found) return found.error().message;
        QStringList names;
        for (const QString& path : *found) names.append(QDir(folder_.path()).relativeFilePath(path));
        return names.join(QLatin1Char(' '));
    }

    const QTemporaryDir folder_;
};

TEST_F(FolderScan, TakesNamesByExtensionInOrder) {
    make({QStringLiteral("c.JPG"), QStringLiteral("b.jpeg"), QStringLiteral("a.gif"), QStringLiteral("b.GIF"),
          QStringLiteral("e.giff"), QStringLiteral("d.tif"), QStringLiteral("D.Tiff"),
          QStringLiteral("e.bmp"), QStringLiteral("f.png.txt"), QStringLiteral("jpg"), QStringLiteral("g."),
          QStringLiteral(".png"), QStringLiteral(".h.png"), QStringLiteral("i.jp"), QStringLiteral("ä b.png"),
          QStringLiteral("folder.jpg/")});
    EXPECT_EQ(scanned(false), QStringLiteral(".h.png D.Tiff b.jpeg c.JPG d.tif e.bmp folder.jpg ä b.png"));
    EXPECT_EQ(scanned(false, {.Jpeg = false, .Png = false, .Tiff = false, .Bmp = false}), QString());
    EXPECT_EQ(scanned(false, {.Jpeg = false, .Tiff = false}), QStringLiteral(".h.png e.bmp ä b.png"));
}

TEST_F(FolderScan, WalksSubFoldersOnceAndNeverThroughLinks) {
    make({QStringLiteral("z.jpg"), QStringLiteral("sub/a.jpg"), QStringLiteral("sub/deep/b.png"),
          QStringLiteral("Sub2/c.bmp"), QStringLiteral(".hidden/d.tif"), QStringLiteral("x.jpg/e.jpg")});
    ASSERT_TRUE(QFile::link(folder_.path(), folder_.filePath(QStringLiteral("sub/again"))));
    EXPECT_EQ(scanned(false), QStringLiteral("x.jpg z.jpg"));
    EXPECT_EQ(scanned(true),
              QStringLiteral("x.jpg z.jpg .hidden/d.tif Sub2/c.bmp sub/a.jpg sub/deep/b.png x.jpg/e.jpg"));
}

TEST_F(FolderScan, KeepsTheFolderAsItWasWritten) {
    make({QStringLiteral("a.jpg")});
    const auto found = ImportImagesFromFolder(folder_.path() + QLatin1Char('/'), false, GetExtensionList({}));
    ASSERT_TRUE(found);
    EXPECT_EQ(*found, QStringList(folder_.path() + QStringLiteral("//a.jpg")));
}

TEST_F(FolderScan, AFolderThatCannotBeListedIsAnError) {
    make({QStringLiteral("a.jpg")});
    for (const char* name : {"missing", "a.jpg"}) {
        const QString path = folder_.filePath(QLatin1String(name));
        const auto found = ImportImagesFromFolder(path, true, GetExtensionList({}));
        ASSERT_FALSE(found);
        EXPECT_EQ(found.error().path, path);
    }
}

TEST_F(FolderScan, IsBrokenOffWhereItIsNotToGoOn) {
    make({QStringLiteral("a.jpg"), QStringLiteral("one/b.jpg"), QStringLiteral("two/c.jpg"),
          QStringLiteral("two/three/d.jpg")});
    for (const qsizetype enough : {1, 2, 3}) {
        const auto found = ImportImagesFromFolder(folder_.path(), true, GetExtensionList({}),
                                                  [enough](qsizetype count) { return count < enough; });
        ASSERT_TRUE(found);
        EXPECT_EQ(found->size(), enough);
    }
}

TEST(ExtensionList, HoldsTheTickedFormatsInOrder) {
    EXPECT_EQ(GetExtensionList({}), QStringLiteral(".jpg;.jpeg;.png;.tiff;.tif;.gif;.bmp;"));
    EXPECT_EQ(GetExtensionList({false, false, false, false, false}), QString());
}

}  // namespace
}  // namespace zelto
