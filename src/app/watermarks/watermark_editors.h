// SPDX-License-Identifier: GPL-3.0-or-later
// What is being edited: the watermark whose row is selected, or something of the photo as a whole. It follows the
// selection, so that the row, the outline on the photo and the inspector are always of the same thing, and has the
// operations that begin something new or open what is there. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"

#include <QObject>

#include <optional>

class QUndoCommand;

namespace zelto {

class ImageListController;

class WatermarkEditors : public QObject {
    Q_OBJECT

  public:
    // All outlive it; `window` is the parent of the questions that something new may begin with.
    WatermarkEditors(WatermarkController& watermarks, const ImageListController& photos, EditorSet editors,
                     QWidget* window);

    const EditorSet& editors() const { return editors_; }
    // Whether there is an editor of that kind.
    bool canOpen(EditorKind kind) const { return editors_.count(kind) > 0; }

    // What is edited; `watermark` is its place in the stack, -1 for what belongs to the photo as a whole.
    struct Subject {
        EditorKind kind;
        int watermark = -1;

        bool operator==(const Subject&) const = default;
    };
    const std::optional<Subject>& subject() const { return subject_; }
    SelectedPhoto photo() const;

    // Whether the subject has been added just now and nothing else has been done since; takeAway() then makes that
    // undone, and Redo brings it back.
    bool isNew() const { return added_ != nullptr; }
    void takeAway();
    // Selects nothing and edits nothing.
    void close();

    void OpenImageWatermarkSettings() { openNew(EditorKind::Image); }
    void OpenTextWatermarkSettings() { openNew(EditorKind::Text); }
    void OpenShapeWatermarkSettings() { openNew(EditorKind::Shape); }
    void AddQrCode() { openNew(EditorKind::QrCode); }
    void OpenFilterWindow() { openNew(EditorKind::Filter); }
    void OpenEffectsSettings() { openNew(EditorKind::Effects); }
    void OpenMetadataWindow() { openNew(EditorKind::Copyright); }
    // Opens the editor of what a row of the list shows.
    void WatermarkListDoubleClicked(int row);
    void editSelected();

  Q_SIGNALS:
    // The subject is another one, or the same kind of thing at another place. Undo steps begin anew.
    void subjectChanged();
    // The user has asked for the editor of the subject: it is to come forward and to have the keyboard.
    void opened();

  private:
    void openNew(EditorKind kind);
    void openWhole(EditorKind kind);
    void put(const Watermark& watermark);
    void selectRow(int row);
    void follow();
    void set(const std::optional<Subject>& subject);
    std::optional<Subject> subjectOf(int row) const;
    int rowOf(EditorKind kind) const;
    const QUndoCommand* lastStep() const;
    EditorCall call();

    WatermarkController& watermarks_;
    const ImageListController& photos_;
    EditorSet editors_;
    QWidget* window_;
    std::optional<Subject> subject_;
    bool isAdding_ = false;                // what is added and then done to it is one undo step
    const QUndoCommand* added_ = nullptr;  // the step that added the subject, as long as it is the last one
};

}  // namespace zelto
