// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/folder_window_controller.h"

#include "app/dialogs/standard_dialogs.h"
#include "app/hands.h"
#include "app/photos/folder_import.h"
#include "app/window/main_window.h"
#include "support/testing.h"

#include <QLineEdit>
#include <QSignalSpy>

namespace zelto {
namespace {

TEST(AddFolderDialog, AsksForAFolderAndAFormat) {
    AnsweredMessages messages;
    FolderWindowController dialog;
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&dialog, Qt::Key_Return);
    control<QLineEdit>(dialog, "Folder").setText(u"/p"_s);
    for (const char* format : {"JPEG", "PNG", "TIFF", "GIF", "BMP"}) click(dialog, format);
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_THAT(
        messages.take(),
        ::testing::ElementsAre(
            u"Input Folder cannot be empty|Please select the folder from where the Images are to be added|OK"_s,
            u"File Extension list cannot be empty|Please select atleast one Extension to be included|OK"_s));
    for (const char* format : {"PNG", "BMP"}) click(dialog, format);
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.GetExtensionList(), u".png;.bmp;"_s);
    EXPECT_EQ(dialog.GetIputFoldername(), u"/p"_s);
}

TEST(AddFolder, TheWindowAddsWhatTheFolderHolds) {
    const QTemporaryDir folder;
    for (const QString& name : {u"b.jpg"_s, u"a.png"_s, u"c.gif"_s, u"sub/d.tif"_s, u"sub/e.txt"_s}) {
        QDir().mkpath(QFileInfo(folder.filePath(name)).path());
        EXPECT_TRUE(QFile(folder.filePath(name)).open(QFile::WriteOnly));
    }
    MyGlobalInstance shared;
    MainWindow window(shared, standardDialogs(), {});
    window.show();
    for (const bool withSubFolders : {false, true}) {
        whenOpened<FolderWindowController>([&](FolderWindowController& dialog) {
            if (withSubFolders) {
                EXPECT_EQ(dialog.GetIputFoldername(), folder.path()) << "where photos were last added from";
                click(dialog, "Include sub-folders");
            } else {
                control<QLineEdit>(dialog, "Folder").setText(folder.path());
            }
            click(dialog, "Add Photos");
        });
        window.actions()[Act::AddFolder]->trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return window.photos().count() == (withSubFolders ? 3 : 2); }));
    }
    QStringList names;
    for (const Image& photo : window.photos().images())
        names.append(QDir(folder.path()).relativeFilePath(photo.ImagePath));
    EXPECT_EQ(names, QStringList({u"a.png"_s, u"b.jpg"_s, u"sub/d.tif"_s}));
}

TEST(FolderImport, AScanThatIsBrokenOffAddsNothing) {
    for (const bool breaksOff : {false, true}) {
        QWidget window;
        auto* import =
            new FolderImport([](const auto&) { return QStringList(u"a.jpg"_s); }, &window, nullptr);
        QSignalSpy found(import, &FolderImport::found);
        QSignalSpy ended(import, &QObject::destroyed);
        if (breaksOff) window.findChild<QProgressDialog*>()->cancel();
        ASSERT_TRUE(ended.wait());
        EXPECT_EQ(found.count(), breaksOff ? 0 : 1);
    }
}

}  // namespace
}  // namespace zelto
