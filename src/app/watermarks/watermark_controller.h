// SPDX-License-Identifier: GPL-3.0-or-later
// What can be done to the watermark list: adding, editing, checking, moving and removing its rows, each an
// undo step of the document, and opening the editor of a row. Thin: the document holds the records, the
// preview follows it by itself, the editors are plugged in. Main thread only.
#pragma once

#include "app/watermarks/editor_set.h"
#include "app/watermarks/watermark_document.h"
#include "app/watermarks/watermark_list_model.h"
#include "platform/result.h"

#include <QItemSelectionModel>
#include <QObject>
#include <QString>
#include <QWidget>

#include <optional>
#include <vector>

namespace zelto {

class ImageListController;

class WatermarkController : public QObject {
    Q_OBJECT

  public:
    // All outlive the controller. `window` is the parent of the editors it opens.
    WatermarkController(WatermarkDocument& document, ImageListController& photos, EditorSet editors,
                        QWidget* window);

    WatermarkDocument& document() { return document_; }
    WatermarkListModel& model() { return model_; }
    QItemSelectionModel& selection() { return selection_; }

    int WatermarkCount() const { return document_.count(); }
    const std::vector<Watermark>& GetWatermarkList() const { return document_.watermarks(); }
    const Watermark& GetWatermarkAtRow(int index) const;
    std::optional<Watermark> GetSelectedWatermark() const;
    const std::optional<PhotoEffects>& GetEffect() const { return document_.state().Stack.Effects; }
    const std::optional<CopyRightMetaData>& Metadata() const { return document_.state().Metadata; }
    // The watermark of the selected row; negative for a filter or metadata row, and for none.
    int watermarkRowIndexAfterRemovingFilterAndMetadata() const;
    // -1 while a new watermark is being edited, and while none is.
    int CurrentWatermark() const { return document_.currentWatermark(); }
    void resetCurrentWatermarkIndex() { document_.setCurrentWatermark(WatermarkDocument::NoWatermark); }

    // Whether an editor of that kind can be opened.
    bool canOpen(EditorKind kind) const { return editors_.count(kind) > 0; }
    void OpenImageWatermarkSettings() { openNew(EditorKind::Image); }
    void OpenTextWatermarkSettings() { openNew(EditorKind::Text); }
    void OpenShapeWatermarkSettings() { openNew(EditorKind::Shape); }
    void AddQrCode() { openNew(EditorKind::QrCode); }
    void OpenFilterWindow() { openNew(EditorKind::Filter); }
    void OpenEffectsSettings() { openNew(EditorKind::Effects); }
    void OpenMetadataWindow() { openNew(EditorKind::Copyright); }
    void WatermarkListDoubleClicked(int row) { openEditor(row); }
    // Opens the editor of what a row shows.
    void openEditor(int row);

    // A record of `type` with the values a new watermark of the list starts with.
    static Watermark startingWatermark(std::int32_t type);

    // What editors call on each change. A new watermark is added to the list once it is more than an empty
    // text; an edited one that has become empty is removed. Changes of the same `step`, such as a control's
    // name, that follow each other while one editor is open are one undo step; an empty `step` always is one
    // of its own.
    void ReflectWatermark(const Watermark& watermark, bool addToList, const QString& step = {});
    void AddNewWatermark(const Watermark& watermark, bool addToList, const QString& step = {});
    void UpdateWatermark(const Watermark& watermark, const QString& step = {});
    // Has every layer rebuilt.
    void MakeWatermarkChanges();

    // Chooses and applies a photo filter; 0 does nothing.
    void AddFilter(int number, const QString& step = {});
    // Takes the filter and its row away.
    void removeFilter(const QString& step = {});
    // Shows the selected photo with filter `number`, 0 for none.
    void MakeFilterImage(int number);
    void AddEffects(const std::optional<PhotoEffects>& effects, const QString& step = {});
    void SetMetadata(const std::optional<CopyRightMetaData>& metadata, const QString& step = {});

    void RemoveSelectedWatermarks();
    void RemoveWatermark(int row);
    void RemoveAllWatermarks();
    void MoveWatermarkUp();
    void MoveWatermarkDown();
    void MoveWatermarks(int from, int to);
    // Toggles the check box of a row.
    void EnableDisableWatermark(int row);
    void setRowEnabled(int row, bool on);

    // Selects the row of a watermark.
    void selectWatermark(int index) { selectRow(model_.rowOf(index)); }
    // Places watermark `index` so that its layer's top left corner is (left, top), from the photo's.
    void placeWatermark(int index, QPoint topLeft, const QString& step = {});

    // The whole stack taken from elsewhere, as one undo step.
    void replaceStack(const WatermarkStack& stack, const std::optional<CopyRightMetaData>& metadata,
                      const QString& name);

    // Takes the stack of a setting file, and the copyright data from its file where the setting wants some.
    // Error: as zelto::LoadWatermarkSetting, with the stack as it was.
    Result<void> LoadWatermarkSetting(const QString& path);
    // Saves the stack as a setting file. One without watermarks and effects writes nothing. Error:
    // ErrorCode::CannotWrite.
    Result<void> SaveWatermarkSettings(const QString& path);

    static double DegreesToRadians(double degrees);

  Q_SIGNALS:
    void rebuildLayers();
    // The stack is now one that "Last Watermark" does not hold.
    void setSaveLastWatermark();
    // It is kept as a setting: "Last Watermark" need not hold it.
    void clearSaveLastWatermark();

  private:
    void open(EditorKind kind);
    void openNew(EditorKind kind);
    QString mergeKey(const QString& step) const;
    void selectRow(int row);

    WatermarkDocument& document_;
    ImageListController& photos_;
    EditorSet editors_;
    QWidget* window_;
    WatermarkListModel model_;
    QItemSelectionModel selection_;
    int rowBeforeReset_ = -1;
    int editing_ = 0;  // counts the openings of editors: steps of two never merge
};

}  // namespace zelto
