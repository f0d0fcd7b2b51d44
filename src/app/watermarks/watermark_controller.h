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
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

class QMimeData;

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
    // The border and shadow, and the filter, applied to the photos or switched off.
    const std::optional<PhotoEffects>& GetEffect() const { return effectsOf(document_.state().Stack); }
    int GetFilter() const { return filterOf(document_.state().Stack); }
    const std::optional<CopyRightMetaData>& Metadata() const { return document_.state().Metadata; }
    // -1 while a new watermark is being edited, and while none is.
    int CurrentWatermark() const { return document_.currentWatermark(); }
    void resetCurrentWatermarkIndex() { document_.setCurrentWatermark(WatermarkDocument::NoWatermark); }
    // A record of `type` with the values a new watermark of the list starts with.
    static Watermark startingWatermark(std::int32_t type);

    // ---- the selected rows

    // Rows stay selected while others come and go around them; when all are removed, the row that takes their place is
    // selected.
    QItemSelectionModel& selection() { return selection_; }
    // The one that is edited and outlined on the photo: of several, the one with the focus. -1 for none.
    int selectedRow() const;
    std::vector<int> selectedRows() const;        // ascending
    std::vector<int> selectedWatermarks() const;  // ascending; rows that are no watermarks left out
    // The watermark of the selected row; negative for a filter or metadata row, and for none.
    int watermarkRowIndexAfterRemovingFilterAndMetadata() const { return model_.watermarkOf(selectedRow()); }
    // Selects the row of a watermark; -1 selects nothing.
    void selectWatermark(int index);
    void selectWatermarks(const std::vector<int>& indices);

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
    // What is switched off stays, with its row, and is not applied.
    void setFilterEnabled(bool on);
    void setEffectsEnabled(bool on);
    void setMetadataEnabled(bool on);
    void removeEffects();
    void removeMetadata();
    void AddEffects(const std::optional<PhotoEffects>& effects, const QString& step = {});
    void SetMetadata(const std::optional<CopyRightMetaData>& metadata, const QString& step = {});

    // Gives watermark `index` the place, the size or the turn that a hand on the preview has found for it; `name` is
    // that of the undo step.
    void placeWatermark(int index, const Watermark& placed, const QString& name, const QString& step = {});

    void RemoveSelectedWatermarks() { removeRows(selectedRows()); }
    void RemoveWatermark(int row) { removeRows({row}); }
    void removeRows(std::vector<int> rows);
    // Removes the watermarks, the filter and the copyright data, but neither border nor shadow, and tells so.
    void RemoveAllWatermarks();
    // Moves the selected watermarks by one place; those that cannot go on stay.
    void MoveWatermarkUp() { moveSelected(-1); }
    void MoveWatermarkDown() { moveSelected(1); }
    // Takes watermarks out of the list and puts them, in their order, before the one that is at `before` now.
    void MoveWatermarks(const std::vector<int>& indices, int before);
    // Copies the selected watermarks to the place behind the last of them. `area` is what watermarks may take of the
    // photo on show, in its pixels, empty without one: a copy does not lie on its original there.
    void duplicateSelected(QSizeF area);
    // The user's own name for a watermark; an empty one lets the list name it again.
    void renameWatermark(int index, const QString& name);
    // Toggles the eye of a row.
    void EnableDisableWatermark(int row);
    // Switches all selected rows on, or off where all are on.
    void toggleSelected();
    void setRowsEnabled(const std::vector<int>& rows, bool on);

    // ---- watermarks from elsewhere

    // Puts watermarks before the one at `before` and selects them.
    void insertWatermarks(const std::vector<Watermark>& watermarks, int before, const QString& stepName);
    // The place behind the selected ones, or at the end.
    int insertionPlace() const;
    void copySelected() const;
    void cutSelected();
    // `area` as for duplicateSelected. Error: as watermarksOf.
    Result<void> paste(const QMimeData& data, QSizeF area);

    // ---- the whole stack

    // Takes the stack from elsewhere; `setting` is the setting file that holds it, empty for none.
    void replaceStack(const WatermarkStack& stack, const std::optional<CopyRightMetaData>& metadata,
                      const QString& stepName, const QString& setting = {});
    // Adds the watermarks of a stack to those there are, and its filter and frame where there is none.
    void addStack(const WatermarkStack& stack, const QString& stepName);
    // The same with one of readyMadeStacks().
    void addReadyMade(int place);

    // Takes the stack of a setting file, and the copyright data from its file where the setting wants some.
    // Error: as zelto::LoadWatermarkSetting, with the stack as it was.
    Result<void> LoadWatermarkSetting(const QString& path);
    // Saves the stack as a setting file. One without watermarks and effects writes nothing. Error:
    // ErrorCode::CannotWrite.
    Result<void> SaveWatermarkSettings(const QString& path);

  Q_SIGNALS:
    // The stack is now the one that the setting file at `path` holds.
    void keptAs(const QString& path);
    // The user is to be told something that needs no answer.
    void told(const QString& text);

  private:
    QString mergeKey(const QString& step) const;
    void keepARowSelected(int removedFrom);
    void moveSelected(int by);
    std::vector<Watermark> copiesOf(const std::vector<int>& indices) const;
    std::vector<Watermark> besideOriginals(std::vector<Watermark> copies, QSizeF area) const;
    void selectWhatIsBack(const StackState& before);

    WatermarkDocument& document_;
    WatermarkListModel model_;
    QItemSelectionModel selection_;
    int session_ = 0;
};

}  // namespace zelto
