// SPDX-License-Identifier: GPL-3.0-or-later
// The real window with its editors over a plain photo, and hands to work in an editor.
#pragma once

#include "app/dialogs/standard_dialogs.h"
#include "app/editors/controls/color_well.h"
#include "app/editors/standard_editors.h"
#include "app/modal_dialog.h"
#include "app/window/main_window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace zelto {

// ---- hands; a control goes by its object name

inline QWidget& control(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<QWidget*>(QLatin1String(name));
    if (found == nullptr) qFatal("there is no control %s", name);
    return found->focusProxy() == nullptr ? *found : *found->focusProxy();
}

// Replaces what a field holds, key by key.
inline void type(QWidget& dialog, const char* name, const QString& text) {
    QWidget& field = control(dialog, name);
    EXPECT_TRUE(field.isEnabled()) << name;
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

inline void click(QWidget& dialog, const char* name) {
    QWidget& button = control(dialog, name);
    EXPECT_TRUE(button.isEnabled()) << name;
    QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
}

inline void press(QWidget& dialog, const char* name, Qt::Key key) {
    control(dialog, name).setFocus();
    QTest::keyClick(&control(dialog, name), key);
}

// Chooses a row of a list with the keyboard; of a size's units where the control is a size.
inline void choose(QWidget& dialog, const char* name, int row) {
    auto* named = dialog.findChild<QWidget*>(QLatin1String(name));
    auto* list = qobject_cast<QComboBox*>(named);
    if (list == nullptr) list = named->findChild<QComboBox*>();
    EXPECT_TRUE(list->isEnabled()) << name;
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(list, Qt::Key_Down);
}

inline void pickColor(QWidget& dialog, const char* name, const QColor& color,
                      Qt::Key close = Qt::Key_Return) {
    click(dialog, name);
    auto* colors = control(dialog, name).findChild<QColorDialog*>();
    ASSERT_NE(colors, nullptr) << name;
    colors->setCurrentColor(color);
    QTest::keyClick(colors, close);
}

class EditorTest : public ::testing::Test {
  protected:
    static constexpr QSize PhotoSize{600, 400};
    static constexpr QRgb PhotoColor = qRgb(90, 140, 60);

    EditorTest() {
        QImage photo(PhotoSize, QImage::Format_RGB32);
        photo.fill(PhotoColor);
        photo.save(photoPath());
        window.resize(1200, 800);
        window.show();
        window.photos().AddImages({photoPath()});
        window.previewView().ActualSize();
    }

    QString photoPath() const { return folder.filePath(QStringLiteral("photo.png")); }

    // Opens an editor, has `drive` work in it and closes it with a key.
    template <class Drive>
    void edit(Act act, const Drive& drive, Qt::Key close = Qt::Key_Escape) {
        const auto came = whenOpened<QDialog>([&drive, close](QDialog& dialog) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
            drive(dialog);
            QTest::keyClick(&dialog, close);
            EXPECT_FALSE(dialog.isVisible());
            dialog.close();
        });
        window.actions()[act]->trigger();
        EXPECT_TRUE(*came);
    }

    const std::vector<Watermark>& records() { return window.document().watermarks(); }
    QUndoStack& history() { return window.document().history(); }

    bool waitForPreview() {
        return QTest::qWaitFor(
            [this] {
                const auto& shown = window.previewView().shown();
                if (!shown || !window.preview().isSettled()) return false;
                WatermarkStack wanted = window.document().state().Stack;
                wanted.Metadata = shown->stack->Metadata;  // is not to be seen
                return *shown->stack == wanted;
            },
            10000);
    }
    // What the preview shows of the framed photo, once it is up to date; pixels of the picture.
    QImage seen() {
        EXPECT_TRUE(waitForPreview());
        const PreviewView& view = window.previewView();
        return view.seenPicture().copy(
            view.geometry().visibleRegion().rect.translated(view.geometry().origin()));
    }

    QTemporaryDir folder;
    MyGlobalInstance shared;
    MainWindow window{shared, standardDialogs(), standardEditors()};
};

}  // namespace zelto
