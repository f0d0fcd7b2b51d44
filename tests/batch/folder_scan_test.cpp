// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/folder_scan.h"

#include "support/testing.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace zelto {
namespace {

// A folder with empty files and, for names that end in '/', folders; "|" stands between the names.
class FolderScan : public ::testing::Test {
  protected:
    void make(const QString& names) const {
        for (const QString& name : names.split(u'|')) {
            const QString path = folder_.filePath(name);
            QDir().mkpath(QFileInfo(path).path());
            ASSERT_TRUE(name.endsWith(u'/') || QFile(path).open(QIODevice::WriteOnly)) << name.toStdString();
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
    make(
        u"c.JPG|b.jpeg|a.gif|b.GIF|e.giff|d.tif|D.Tiff|e.bmp|f.png.txt|jpg|g.|.png|.h.png|i.jp|ä b.png|folder.jpg/|k.NEF"_s);
    EXPECT_EQ(scanned(false), u".h.png D.Tiff b.jpeg c.JPG d.tif e.bmp folder.jpg ä b.png"_s);
    EXPECT_EQ(scanned(false, {.Jpeg = false, .Png = false, .Tiff = false, .Bmp = false}), QString());
    EXPECT_EQ(scanned(false, {.Jpeg = false, .Png = false, .Tiff = false, .Bmp = false, .Raw = true}),
              u"k.NEF"_s);
    EXPECT_EQ(scanned(false, {.Jpeg = false, .Tiff = false}), u".h.png e.bmp ä b.png"_s);
}

TEST_F(FolderScan, WalksSubFoldersOnceAndNeverThroughLinks) {
    make(u"z.jpg|sub/a.jpg|sub/deep/b.png|Sub2/c.bmp|.hidden/d.tif|x.jpg/e.jpg"_s);
    ASSERT_TRUE(QFile::link(folder_.path(), folder_.filePath(u"sub/again"_s)));
    EXPECT_EQ(scanned(false), u"x.jpg z.jpg"_s);
    EXPECT_EQ(scanned(true), u"x.jpg z.jpg .hidden/d.tif Sub2/c.bmp sub/a.jpg sub/deep/b.png x.jpg/e.jpg"_s);
}

TEST_F(FolderScan, AFolderThatCannotBeListedIsAnError) {
    make(u"a.jpg"_s);
    EXPECT_EQ(ImportImagesFromFolder(folder_.path() + u'/', false, GetExtensionList({})),
              QStringList(folder_.path() + u"//a.jpg"_s))
        << "the folder as it was written";
    for (const char* name : {"missing", "a.jpg"}) {
        const QString path = folder_.filePath(QLatin1String(name));
        const auto found = ImportImagesFromFolder(path, true, GetExtensionList({}));
        ASSERT_FALSE(found);
        EXPECT_EQ(found.error().path, path);
    }
}

TEST_F(FolderScan, TellsOfWhatItCannotTakeInsteadOfDroppingIt) {
    make(u"good.jpg|sub/x.png"_s);
    const QByteArray top = QFile::encodeName(folder_.path());
    for (const char* name : {"/b\xE4r.jpg", "/sub\xFF/c.png", "/b\xE4r.txt"}) {
        const std::filesystem::path path((top + name).toStdString());
        std::filesystem::create_directories(path.parent_path());
        ASSERT_TRUE(std::ofstream(path).put('x'));
    }
    ASSERT_TRUE(QFile::link(u"/nowhere/at/all"_s, folder_.filePath(u"link.tif"_s)));
    EXPECT_EQ(scanned(true), u"b\uFFFDr.jpg good.jpg link.tif sub/x.png sub\uFFFD/c.png"_s);
    std::filesystem::permissions((top + "/sub").toStdString(), std::filesystem::perms::none);
    const auto scan = scanFolder(folder_.path(), true, GetExtensionList({}));
    std::filesystem::permissions((top + "/sub").toStdString(), std::filesystem::perms::owner_all);
    for (const auto& entry : std::filesystem::directory_iterator(top.toStdString()))
        std::filesystem::remove_all(entry.path());  // Qt would leave the names that are no text
    ASSERT_TRUE(scan);
    QStringList problems;
    for (const ScanProblem& problem : scan->problems)
        problems.append(QDir(folder_.path()).relativeFilePath(problem.path) + u' ' + problem.text.left(8));
    QStringList expected = {u"b\uFFFDr.jpg the name"_s, u"link.tif the link"_s,
                            u"sub\uFFFD/c.png the name"_s};
    if (geteuid() != 0) expected.insert(2, u"sub the fold"_s);
    EXPECT_EQ(problems, expected);
}

TEST_F(FolderScan, IsBrokenOffWhereItIsNotToGoOn) {
    make(u"a.jpg|one/b.jpg|two/c.jpg|two/three/d.jpg"_s);
    for (const qsizetype enough : {1, 2, 3}) {
        const auto found = ImportImagesFromFolder(folder_.path(), true, GetExtensionList({}),
                                                  [enough](qsizetype count) { return count < enough; });
        ASSERT_TRUE(found);
        EXPECT_EQ(found->size(), enough);
    }
}

}  // namespace
}  // namespace zelto
