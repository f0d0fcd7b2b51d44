// SPDX-License-Identifier: GPL-3.0-or-later
// The real window with its editors over a plain photo, and what tests of editors do with it.
#pragma once

#include "app/hands.h"
#include "app/window/main_window.h"

#include <QTemporaryDir>

#include <functional>
#include <vector>

namespace zelto {

class EditorTest : public ::testing::Test {
  protected:
    static constexpr QSize PhotoSize{600, 400};
    static constexpr QRgb PhotoColor = qRgb(90, 140, 60);

    // What is done on a page of the inspector.
    using Drive = std::function<void(QWidget&)>;

    EditorTest();

    QString photoPath() const { return folder.filePath(QStringLiteral("photo.png")); }
    // A picture file, its left half red and its right half green.
    QString makeLogo(QSize size = {80, 40}) const;

    // Opens a page of the inspector, has `drive` work in it and leaves it.
    void edit(Act act, const Drive& drive);
    void editRecord(int index, const Drive& drive);
    // Goes to where nothing is selected.
    void leave();
    // Has the next file chooser take `path`; without one it is cancelled. `first` is done before that.
    static std::shared_ptr<bool> chooseNext(const QString& path, const std::function<void()>& first = {});
    // Adds a logo, whose file is asked for at once, and has `drive` work in its page.
    void addLogo(const QString& file, const Drive& drive = {});

    // What a control does: `drive` uses it in an editor opened on `start`, and the record becomes what `expected` makes
    // of it, in one undo step, with the preview following.
    struct ControlRow {
        const char* what;
        Drive drive;
        std::function<void(Watermark&)> expected;
        std::function<void(Watermark&)> start = [](Watermark&) {};
    };
    // Rows of controls that set one field: by a click, by typing, by a key.
    using Start = std::function<void(Watermark&)>;
    template <class Value>
    static ControlRow clicked(
        const char* name, Value Watermark::*field, const std::type_identity_t<Value>& value = true,
        const Start& start = [](Watermark&) {}) {
        return {name, [name](QWidget& editor) { click(editor, name); }, set(field, value), start};
    }
    template <class Value>
    static ControlRow typed(
        const char* name, const QString& text, Value Watermark::*field,
        const std::type_identity_t<Value>& value, const Start& start = [](Watermark&) {}) {
        return {name, [name, text](QWidget& editor) { type(editor, name, text); }, set(field, value), start};
    }
    template <class Value>
    static ControlRow pressed(
        const char* name, Qt::Key key, Value Watermark::*field, const std::type_identity_t<Value>& value,
        const Start& start = [](Watermark&) {}) {
        return {name, [name, key](QWidget& editor) { press(editor, name, key); }, set(field, value), start};
    }
    template <class Value>
    static std::function<void(Watermark&)> set(Value Watermark::*field,
                                               const std::type_identity_t<Value>& value) {
        return [field, value](Watermark& record) { record.*field = value; };
    }
    void checkControls(const Watermark& start, const std::vector<ControlRow>& rows);

    // Puts a record into the list, as a step that is over.
    void add(const Watermark& record);
    const std::vector<Watermark>& records() { return window.document().watermarks(); }
    const Watermark& record(int index = 0) { return records().at(static_cast<std::size_t>(index)); }
    QUndoStack& history() { return window.document().history(); }

    bool waitForPreview();
    // What the preview shows of the framed photo, once it is up to date; pixels of the picture.
    QImage seen();
    // Whether that is, pixel for pixel, what would be written now.
    ::testing::AssertionResult showsWhatIsWritten();

    QTemporaryDir folder;
    MyGlobalInstance shared;
    MainWindow window;
};

}  // namespace zelto
