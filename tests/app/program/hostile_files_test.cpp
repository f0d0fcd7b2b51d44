// SPDX-License-Identifier: GPL-3.0-or-later
// What files from strangers do to the window: each that the readers are tried with is dropped on it as a photo, looked
// at large and small, used as a logo and opened as a setting.
#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "app/hands.h"
#include "app/program/app_delegate.h"
#include "pictures/picture_reader.h"
#include "support/test_pictures.h"
#include "support/testing.h"

#include <QApplication>
#include <QDirIterator>
#include <QDropEvent>
#include <QMimeData>

#include <sys/stat.h>

namespace zelto {
namespace {

class HostileFiles : public ::testing::Test {
  protected:
    HostileFiles() : delegate(standardDialogs(), standardEditors()), window(delegate.window()) {
        for (const char* const kind : {"corpus", "hostile"}) {
            QDirIterator files(QStringLiteral(ZELTO_FUZZ_DIR "/") + QLatin1String(kind), QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) EXPECT_TRUE(QFile::copy(files.next(), next()));
        }
        const QString pipe = next();
        EXPECT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        EXPECT_TRUE(QFile::link(u"/dev/zero"_s, next()));
        EXPECT_TRUE(QFile::copy(inputs.first(), next()) && QFile::setPermissions(inputs.last(), {}));
        delegate.start({});
    }

    QString next() {
        inputs.append(folder.filePath(QString::number(inputs.size()) + u".jpg"_s));
        return inputs.last();
    }

    // Whether the photo that is selected has come to be shown, or why it cannot be.
    bool isShown() {
        const PreviewView& view = window.previewView();
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                return window.preview().isSettled() &&
                       (!view.message().isEmpty() ||
                        (view.shown() && view.shown()->path == window.photos().selectedPath()));
            },
            Patience));
        return view.message().isEmpty();
    }

    static constexpr int Patience = 60'000;
    const QTemporaryDir folder;
    QStringList inputs;
    AnsweredMessages messages;
    AppDelegate delegate;
    MainWindow& window;
};

TEST_F(HostileFiles, AreShownAndUsedOrRefusedInWords) {
    QMimeData mime;
    QList<QUrl> urls;
    for (const QString& path : inputs) urls.append(QUrl::fromLocalFile(path));
    mime.setUrls(urls);
    const QPoint at(60, 200);
    QDragEnterEvent enter(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDropEvent released(at, Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* event : std::initializer_list<QEvent*>{&enter, &released})
        QApplication::sendEvent(&window, event);
    ASSERT_EQ(window.photos().count(), inputs.size());
    for (int row = 0; row < inputs.size(); ++row) {
        window.photos().ChangeImage(QString::number(row));
        EXPECT_EQ(isShown(), readPicture(inputs[row]).has_value()) << row;
    }
    QTest::keyClick(&window, Qt::Key_F9);
    window.controller().sortByDateTaken();

    ASSERT_TRUE(drawnScene({300, 200}).save(next(), "png"));
    window.photos().AddImages({inputs.last()});
    window.photos().ChangeImage(QString::number(window.photos().count() - 1));
    for (const QString& path : inputs) {
        Watermark logo(watermark_type::Image);
        logo.ImagePath = path;
        window.watermarks().AddNewWatermark(logo);
        EXPECT_TRUE(isShown()) << qPrintable(path);
        window.watermarks().RemoveAllWatermarks();
        const bool isSetting = window.watermarks().LoadWatermarkSetting(path).has_value();
        EXPECT_TRUE(!isSetting || isShown()) << qPrintable(path);
    }
}

}  // namespace
}  // namespace zelto
