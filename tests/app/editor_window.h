// SPDX-License-Identifier: GPL-3.0-or-later
// The real window with one photo, for tests of the editors it opens.
#pragma once

#include "app/main_window.h"
#include "app/modal_dialog.h"
#include "render/composition.h"
#include "support/test_pictures.h"

#include <QDialog>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace zelto {

class EditorWindowTest : public ::testing::Test {
  public:
    EditorWindowTest() {
        window = std::make_unique<MainWindow>(shared, DialogSet{}, standardEditors());
        window->resize(1100, 700);
        window->show();
        const QString photo = folder.filePath(QStringLiteral("shore.png"));
        drawnScene({600, 400}).save(photo);
        window->photos().AddImages({photo});
        window->previewView().ActualSize();
    }

    // Puts a record into the list, as a step that is over.
    void add(const Watermark& record) {
        window->watermarks().resetCurrentWatermarkIndex();
        window->watermarks().ReflectWatermark(record, true);
        window->watermarks().resetCurrentWatermarkIndex();
    }

    const Watermark& record(int index = 0) { return window->watermarks().GetWatermarkAtRow(index); }
    int count() { return window->watermarks().WatermarkCount(); }

    // Opens an editor with `open`, lets `drive` work on it and closes it if it is still open.
    template <class Open, class Drive>
    void edit(Open open, Drive drive) {
        const auto came = whenOpened<QDialog>([&](QDialog& editor) {
            drive(editor);
            if (editor.isVisible()) QTest::keyClick(&editor, Qt::Key_Escape);
            EXPECT_FALSE(editor.isVisible());
        });
        open();
        EXPECT_TRUE(*came);
    }
    template <class Drive>
    void editRow(int row, Drive drive) {
        edit([this, row] { window->watermarks().openEditor(row); }, drive);
    }

    // Whether the preview comes to show, pixel for pixel, what would be written now.
    ::testing::AssertionResult showsWhatIsWritten() {
        const auto isShown = [this] {
            const auto& shown = window->previewView().shown();
            return shown && window->preview().isSettled() &&
                   shown->stack->Watermarks == window->document().watermarks();
        };
        if (!QTest::qWaitFor(isShown, 10000)) return ::testing::AssertionFailure() << "it does not settle";
        const PhotoRequest request = window->preview().finalRequest();
        Result<PhotoScene> scene = buildPhotoScene(request);
        if (!scene) return ::testing::AssertionFailure() << "the photo cannot be read";
        const QImage written = MakeWatermarkImage(std::move(*scene), *request.stack);
        const PreviewView& view = window->previewView();
        const QRect seen = view.geometry().visibleRegion().rect;
        const QImage onScreen = view.seenPicture().copy(seen.translated(view.geometry().origin()));
        if (onScreen.convertToFormat(QImage::Format_RGB32) ==
            written.copy(seen).convertToFormat(QImage::Format_RGB32)) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure() << "it shows something else";
    }

    QTemporaryDir folder;
    MyGlobalInstance shared;
    std::unique_ptr<MainWindow> window;
};

// A control of an editor by its name.
template <class Control>
Control& control(QWidget& editor, const char* name) {
    auto* found = editor.findChild<Control*>(QLatin1String(name));
    if (found == nullptr) qFatal("no control is called %s", name);
    return *found;
}

}  // namespace zelto
