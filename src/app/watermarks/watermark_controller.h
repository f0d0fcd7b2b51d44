// SPDX-License-Identifier: GPL-3.0-or-later
// What can be done to the watermark list: adding, changing, checking, moving and removing its rows, and replacing all
// of it by a saved setting. Each operation is one undo step of the document; the preview follows the document by
// itself. Opening the editors is WatermarkEditors' part. Main thread only.
#pragma once

#include "app/watermarks/watermark_document.h"
#include "app/watermarks/watermark_list_model.h"
#include "platform/result.h"

#include <QItemSelectionModel>
#include <QObject>
#include <QString>

#include <optional>

namespace zelto {

class WatermarkController : public QObject {
    Q_OBJECT

  public:
    // `document` outlives the controller.
    explicit WatermarkController(WatermarkDocument& document, QObject* parent = nullptr);

    WatermarkDocument& document() { return document_; }
    WatermarkListModel& model() { return model_; }

    // ---- what there is

    const Watermark& GetWatermarkAtRow(int index) const;
    const std::optional<PhotoEffects>& GetEffect() const { return document_.state().Stack.Effects; }
    const std::optional<CopyRightMetaData>& Metadata() const { return document_.state().Metadata; }
    // -1 while a new watermark is being edited, and while none is.
    int CurrentWatermark() const { return document_.currentWatermark(); }
    void resetCurrentWatermarkIndex() { document_.setCurrentWatermark(WatermarkDocument::NoWatermark); }
    // A record of `type` with the values a new watermark of the list starts with.
    static Watermark startingWatermark(std::int32_t type);

    // ---- the selected row

    // At most one row is selected. It stays selected while rows come and go around it; when it is removed itself, the
    // row that takes its place is selected.
    QItemSelectionModel& selection() { return selection_; }
    int selectedRow() const;  // -1 for none
    // The watermark of the selected row; negative for a filter or metadata row, and for none.
    int watermarkRowIndexAfterRemovingFilterAndMetadata() const { return model_.watermarkOf(selectedRow()); }
    // Selects the row of a watermark; -1 selects nothing.
    void selectWatermark(int index);

    // ---- changes
    //
    // Changes of the same non-empty `step`, such as a control's name, that follow each other within one session become
    // one undo step; with an empty `step` each change is one of its own.

    // Begins or ends the time an editor is open.
    void beginSession() { ++session_; }

    // What editors call on each change of a watermark. A new one is added to the list once it is more than an empty
    // text; one that has become empty is removed.
    void ReflectWatermark(const Watermark& watermark, const QString& step = {});
    void AddNewWatermark(const Watermark& watermark, const QString& step = {});
    void UpdateWatermark(const Watermark& watermark, const QString& step = {});

    // Chooses and applies a photo filter; 0 does nothing.
    void AddFilter(int number, const QString& step = {});
    // Takes the filter and its row away.
    void removeFilter(const QString& step = {});
    // Shows the photos with filter `number`, 0 for none. The filter's row stays.
    void MakeFilterImage(int number);
    void AddEffects(const std::optional<PhotoEffects>& effects, const QString& step = {});
    void SetMetadata(const std::optional<CopyRightMetaData>& metadata, const QString& step = {});

    // Gives watermark `index` the place, the size or the turn that a hand on the preview has found for it; `name` is
    // that of the undo step.
    void placeWatermark(int index, const Watermark& placed, const QString& name, const QString& step = {});

    void RemoveSelectedWatermarks() { RemoveWatermark(selectedRow()); }
    void RemoveWatermark(int row);
    void RemoveAllWatermarks();
    void MoveWatermarkUp();
    void MoveWatermarkDown();
    void MoveWatermarks(int from, int to);
    // Toggles the check box of a row.
    void EnableDisableWatermark(int row);
    void setRowEnabled(int row, bool on);

    // ---- the whole stack

    // Takes the stack from elsewhere.
    void replaceStack(const WatermarkStack& stack, const std::optional<CopyRightMetaData>& metadata,
                      const QString& stepName);

    // Takes the stack of a setting file, and the copyright data from its file where the setting wants some.
    // Error: as zelto::LoadWatermarkSetting, with the stack as it was.
    Result<void> LoadWatermarkSetting(const QString& path);
    // Saves the stack as a setting file. One without watermarks and effects writes nothing. Error:
    // ErrorCode::CannotWrite.
    Result<void> SaveWatermarkSettings(const QString& path);

  Q_SIGNALS:
    // The stack is now the one that the setting file at `path` holds.
    void keptAs(const QString& path);

  private:
    QString mergeKey(const QString& step) const;
    void keepARowSelected(int removedFrom);

    WatermarkDocument& document_;
    WatermarkListModel model_;
    QItemSelectionModel selection_;
    int session_ = 0;
};

}  // namespace zelto
