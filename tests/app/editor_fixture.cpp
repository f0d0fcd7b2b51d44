// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/editor_fixture.h"

#include "app/dialogs/standard_dialogs.h"
#include "app/editors/standard_editors.h"
#include "render/composition.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>

namespace zelto {

EditorTest::EditorTest() : window(shared, standardDialogs(), standardEditors()) {
    QImage photo(PhotoSize, QImage::Format_RGB32);
    photo.fill(PhotoColor);
    photo.save(photoPath());
    window.resize(1300, 800);
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    window.photos().AddImages({photoPath()});
    window.previewView().ActualSize();
}

QString EditorTest::makeLogo(QSize size) const {
    QImage logo(size, QImage::Format_RGB32);
    logo.fill(QColor(20, 200, 60));
    QPainter(&logo).fillRect(0, 0, size.width() / 2, size.height(), QColor(201, 30, 40));
    const QString path =
        folder.filePath(QStringLiteral("logo%1x%2.png").arg(size.width()).arg(size.height()));
    EXPECT_TRUE(logo.save(path));
    return path;
}

void EditorTest::edit(Act act, const Drive& drive) {
    window.actions()[act]->trigger();
    ASSERT_NE(window.inspector().page(), nullptr);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    drive(*window.inspector().page());
    leave();
}

void EditorTest::editRecord(int index, const Drive& drive) {
    window.watermarks().selectWatermark(index);
    edit(Act::EditWatermark, drive);
}

void EditorTest::leave() {
    window.editors().close();
    QCoreApplication::processEvents();
    EXPECT_EQ(window.inspector().page(), nullptr);
}

std::shared_ptr<bool> EditorTest::chooseNext(const QString& path, const std::function<void()>& first) {
    return whenOpened<QFileDialog>([path, first](QFileDialog& dialog) {
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        if (first) first();
        if (path.isEmpty()) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            return;
        }
        auto& name = control<QLineEdit>(dialog, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Return);
    });
}

void EditorTest::addLogo(const QString& file, const Drive& drive) {
    const std::size_t before = records().size();
    const auto chosen = chooseNext(file);
    window.actions()[Act::AddImage]->trigger();
    EXPECT_TRUE(*chosen);
    if (file.isEmpty()) return;
    ASSERT_TRUE(QTest::qWaitFor([&] { return records().size() > before; }));
    if (drive) drive(*window.inspector().page());
    leave();
}

void EditorTest::checkControls(const Watermark& start, const std::vector<ControlRow>& rows) {
    for (const ControlRow& row : rows) {
        SCOPED_TRACE(row.what);
        Watermark before = start;
        row.start(before);
        Watermark after = before;
        row.expected(after);
        add(before);
        editRecord(0, [&](QWidget& editor) {
            EXPECT_EQ(record(), before) << "opening changes nothing";
            row.drive(editor);
            EXPECT_EQ(record(), after);
            EXPECT_TRUE(showsWhatIsWritten());
        });
        EXPECT_EQ(record(), after) << "leaving keeps it";
        history().undo();
        EXPECT_EQ(record(), before) << "one step";
        window.watermarks().RemoveAllWatermarks();
    }
}

void EditorTest::add(const Watermark& record) {
    window.watermarks().resetCurrentWatermarkIndex();
    window.watermarks().ReflectWatermark(record);
    window.watermarks().resetCurrentWatermarkIndex();
}

bool EditorTest::waitForPreview() {
    const auto isUpToDate = [this] {
        const auto& shown = window.previewView().shown();
        if (!shown || !window.preview().isSettled()) return false;
        WatermarkStack wanted = window.document().state().Stack;
        wanted.Metadata = shown->stack->Metadata;  // is not to be seen
        return *shown->stack == wanted;
    };
    return QTest::qWaitFor(isUpToDate, 10000);
}

QImage EditorTest::seen() {
    EXPECT_TRUE(waitForPreview());
    const PreviewView& view = window.previewView();
    return view.seenPicture().copy(view.geometry().visibleRegion().rect.translated(view.geometry().origin()));
}

::testing::AssertionResult EditorTest::showsWhatIsWritten() {
    const QImage onScreen = seen();
    const PhotoRequest request = window.preview().finalRequest();
    Result<PhotoScene> scene = buildPhotoScene(request);
    if (!scene) return ::testing::AssertionFailure() << "the photo cannot be read";
    const QImage written = MakeWatermarkImage(std::move(*scene), *request.stack);
    const QRect region = window.previewView().geometry().visibleRegion().rect;
    if (onScreen.convertToFormat(QImage::Format_RGB32) ==
        written.copy(region).convertToFormat(QImage::Format_RGB32)) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "it shows something else";
}

}  // namespace zelto
