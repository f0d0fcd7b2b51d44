// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_editors.h"

#include "app/common/sample_photo.h"
#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

// By `Watermark::Type`; an unknown type is shown as an image.
constexpr std::array EditorOfType = {EditorKind::Image, EditorKind::Text, EditorKind::Shape,
                                     EditorKind::QrCode};

EditorKind editorOf(const Watermark& watermark) {
    const auto type = static_cast<std::size_t>(watermark.Type);
    return watermark.Type >= 0 && type < EditorOfType.size() ? EditorOfType.at(type) : EditorKind::Image;
}

bool isOfWholePhoto(EditorKind kind) {
    return kind == EditorKind::Filter || kind == EditorKind::Effects || kind == EditorKind::Copyright;
}

}  // namespace

WatermarkEditors::WatermarkEditors(WatermarkController& watermarks, const ImageListController& photos,
                                   EditorSet editors, QWidget* window)
    : watermarks_(watermarks), photos_(photos), editors_(std::move(editors)), window_(window) {
    connect(&watermarks_.selection(), &QItemSelectionModel::selectionChanged, this,
            &WatermarkEditors::follow);
    // A row keeps its selection when others come and go before it, but its watermark gets another number.
    connect(&watermarks_.document(), &WatermarkDocument::changed, this, [this] {
        follow();
        // What had no row may have one now.
        if (subject_ && watermarks_.selectedRow() < 0) selectRow(rowOf(subject_->kind));
    });
    // Nor has a border, which Undo brings back.
    connect(&watermarks_.document(), &WatermarkDocument::steppedThrough, this,
            [this](const StackState& before) {
                StackChange effects;
                effects.effects = true;
                const bool isAll = changeBetween(before, watermarks_.document().state()) == effects;
                if (!isAll || !watermarks_.GetEffect() || !canOpen(EditorKind::Effects)) return;
                watermarks_.selectWatermark(WatermarkDocument::NoWatermark);
                set(Subject{EditorKind::Effects});
            });
    connect(&watermarks_.document().history(), &QUndoStack::indexChanged, this, [this] {
        if (lastStep() != added_) added_ = nullptr;
    });
}

SelectedPhoto WatermarkEditors::photo() const {
    // The sample photo is on show until there are photos.
    if (photos_.count() == 0) return {samplePhotoPath(), 0};
    return {photos_.selectedPath(), std::max(0, photos_.selectedRow())};
}

const QUndoCommand* WatermarkEditors::lastStep() const {
    const QUndoStack& history = watermarks_.document().history();
    return history.index() > 0 ? history.command(history.index() - 1) : nullptr;
}

// ---- what is edited

std::optional<WatermarkEditors::Subject> WatermarkEditors::subjectOf(int row) const {
    const WatermarkListModel& rows = watermarks_.model();
    if (row < 0 || row >= rows.rowCount()) return std::nullopt;
    switch (rows.kindOf(row)) {
        case WatermarkListModel::RowKind::Filter:
            return Subject{EditorKind::Filter};
        case WatermarkListModel::RowKind::Metadata:
            return Subject{EditorKind::Copyright};
        case WatermarkListModel::RowKind::Watermark:
            break;
    }
    const int index = rows.watermarkOf(row);
    if (!watermarks_.document().contains(index)) return std::nullopt;
    return Subject{editorOf(watermarks_.GetWatermarkAtRow(index)), index};
}

// The row that stands for something of the whole photo; -1 for none.
int WatermarkEditors::rowOf(EditorKind kind) const {
    for (int row = 0; row < watermarks_.model().rowCount(); ++row) {
        const std::optional<Subject> subject = subjectOf(row);
        if (subject && subject->watermark < 0 && subject->kind == kind) return row;
    }
    return -1;
}

void WatermarkEditors::selectRow(int row) {
    const QModelIndex index = watermarks_.model().index(row);
    if (index.isValid()) watermarks_.selection().setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
}

void WatermarkEditors::follow() {
    const std::optional<Subject> selected = subjectOf(watermarks_.selectedRow());
    // What belongs to the photo as a whole may have no row.
    if (!selected && subject_ && isOfWholePhoto(subject_->kind)) return;
    // Another stack has come, whose watermark at this place is not the one that was edited.
    const bool isAnother =
        subject_ && subject_->watermark >= 0 && watermarks_.CurrentWatermark() != subject_->watermark;
    if (isAnother || selected != subject_) set(selected);
}

void WatermarkEditors::set(const std::optional<Subject>& subject) {
    subject_ = subject;
    added_ = nullptr;
    if (!isAdding_) watermarks_.beginSession();
    watermarks_.document().setCurrentWatermark(subject ? subject->watermark : WatermarkDocument::NoWatermark);
    Q_EMIT subjectChanged();
}

void WatermarkEditors::close() {
    if (subject_) set(std::nullopt);
    watermarks_.selectWatermark(WatermarkDocument::NoWatermark);
}

void WatermarkEditors::takeAway() {
    if (!isNew()) return;
    const bool hasNoRow = subject_ && isOfWholePhoto(subject_->kind);
    watermarks_.document().history().undo();
    if (hasNoRow) close();
}

// ---- opening

void WatermarkEditors::WatermarkListDoubleClicked(int row) {
    const std::optional<Subject> subject = subjectOf(row);
    if (!subject) return;
    selectRow(row);
    if (canOpen(subject->kind)) Q_EMIT opened();
}

void WatermarkEditors::editSelected() {
    WatermarkListDoubleClicked(watermarks_.selectedRow());
}

EditorCall WatermarkEditors::call() {
    return {watermarks_, photo(), window_, [this](const Watermark& watermark) { put(watermark); }};
}

void WatermarkEditors::openNew(EditorKind kind) {
    if (!canOpen(kind)) return;
    if (isOfWholePhoto(kind)) {
        openWhole(kind);
    } else {
        editors_.at(kind).add(call());
    }
}

void WatermarkEditors::openWhole(EditorKind kind) {
    const QUndoCommand* before = lastStep();
    watermarks_.beginSession();
    const QScopedValueRollback adding(isAdding_, true);
    if (const auto& add = editors_.at(kind).add) add(call());
    const QUndoCommand* after = lastStep();
    const int row = rowOf(kind);
    if (row >= 0) {
        selectRow(row);
    } else {
        watermarks_.selectWatermark(WatermarkDocument::NoWatermark);
        set(Subject{kind});
    }
    if (after != before) added_ = after;
    Q_EMIT opened();
}

void WatermarkEditors::put(const Watermark& watermark) {
    watermarks_.beginSession();
    const QScopedValueRollback adding(isAdding_, true);
    watermarks_.AddNewWatermark(watermark, visitStep());
    added_ = lastStep();
    Q_EMIT opened();
}

}  // namespace zelto
