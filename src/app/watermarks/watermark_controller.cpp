// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_controller.h"

#include "persistence/copyright_file.h"
#include "persistence/setting_file.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(watermarks, "zelto.watermarks", QtWarningMsg)

// By `Watermark::Type`: how steps on such a record are called. An unknown type is shown as an image.
struct StepNames {
    const char* add;
    const char* edit;
};
constexpr std::array NamesOfType = {
    StepNames{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Image"),
              QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Image")},
    StepNames{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Text"),
              QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Text")},
    StepNames{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Shape"),
              QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Shape")},
    StepNames{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add QR Code"),
              QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit QR Code")}};

const StepNames& namesFor(const Watermark& watermark) {
    const auto type = static_cast<std::size_t>(watermark.Type);
    return watermark.Type >= 0 && type < NamesOfType.size() ? NamesOfType.at(type) : NamesOfType.front();
}

// A text that is there but holds nothing; a watermark that never had one is not empty.
bool isEmptyText(const QString& text) {
    return !text.isNull() && text.isEmpty();
}

bool isEmpty(const Watermark& watermark) {
    return isEmptyText(watermark.ImagePath) || isEmptyText(watermark.Text);
}

Watermark& recordAt(StackState& state, int index) {
    return state.Stack.Watermarks[static_cast<std::size_t>(index)];
}

}  // namespace

WatermarkController::WatermarkController(WatermarkDocument& document, QObject* parent)
    : QObject(parent),
      document_(document),
      model_(document, [this](int row, bool on) { setRowEnabled(row, on); }),
      selection_(&model_) {
    connect(&model_, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first) { keepARowSelected(first); });
}

const Watermark& WatermarkController::GetWatermarkAtRow(int index) const {
    return document_.watermarks().at(static_cast<std::size_t>(index));
}

// ---- the selected row

int WatermarkController::selectedRow() const {
    return selection_.selectedIndexes().value(0).row();
}

void WatermarkController::selectWatermark(int index) {
    if (document_.contains(index)) {
        selection_.setCurrentIndex(model_.index(model_.rowOf(index)), QItemSelectionModel::ClearAndSelect);
    } else {
        selection_.clear();
    }
}

// Qt makes a neighbour of a removed row the current one, but does not select it.
void WatermarkController::keepARowSelected(int removedFrom) {
    if (selection_.hasSelection() || !selection_.currentIndex().isValid()) return;
    const int row = std::min(removedFrom, model_.rowCount() - 1);
    selection_.setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
}

Watermark WatermarkController::startingWatermark(std::int32_t type) {
    Watermark watermark(type);
    const bool isFaint = type == watermark_type::Text || type == watermark_type::Shape;
    watermark.Transparency = isFaint ? 0.5F : 1.0F;
    return watermark;
}

QString WatermarkController::mergeKey(const QString& step) const {
    if (step.isEmpty()) return {};
    return QString::number(session_) + QLatin1Char('/') + step;
}

// ---- records

void WatermarkController::ReflectWatermark(const Watermark& watermark, const QString& step) {
    qCInfo(watermarks, "totalWatermarks = %d", document_.count());
    qCInfo(watermarks, "WatermarkCount variable value = %d", document_.count());
    qCInfo(watermarks, "CurrentWatermark = %d", CurrentWatermark());
    if (CurrentWatermark() == WatermarkDocument::NoWatermark) {
        if (!isEmpty(watermark)) AddNewWatermark(watermark, step);
    } else if (!isEmpty(watermark)) {
        UpdateWatermark(watermark, step);
    } else {
        const int emptied = CurrentWatermark();
        resetCurrentWatermarkIndex();
        document_.change(
            tr("Remove Watermark"),
            [emptied](StackState& state) {
                state.Stack.Watermarks.erase(state.Stack.Watermarks.begin() + emptied);
            },
            mergeKey(step));
    }
}

void WatermarkController::AddNewWatermark(const Watermark& watermark, const QString& step) {
    document_.change(
        tr(namesFor(watermark).add),
        [&watermark](StackState& state) { state.Stack.Watermarks.push_back(watermark); }, mergeKey(step));
    document_.setCurrentWatermark(document_.count() - 1);
    selectWatermark(document_.count() - 1);
}

void WatermarkController::UpdateWatermark(const Watermark& watermark, const QString& step) {
    qCInfo(watermarks, "UpdateWatermark *** START");
    const int index = CurrentWatermark();
    qCInfo(watermarks, "current watermark = %d", index);
    if (document_.contains(index)) {
        document_.change(
            tr(namesFor(watermark).edit), [&](StackState& state) { recordAt(state, index) = watermark; },
            mergeKey(step));
    }
    qCInfo(watermarks, "UpdateWatermark *** END");
}

void WatermarkController::AddFilter(int number, const QString& step) {
    if (number == 0) return;
    document_.change(
        tr("Choose Filter"),
        [number](StackState& state) {
            state.SelectedFilter = number;
            state.Stack.SelectedFilter = number;
        },
        mergeKey(step));
}

void WatermarkController::removeFilter(const QString& step) {
    // Where filters are being chosen from, no other row takes the place of the filter's.
    if (!step.isEmpty() && model_.kindOf(selectedRow()) == WatermarkListModel::RowKind::Filter) {
        selectWatermark(WatermarkDocument::NoWatermark);
    }
    document_.change(
        tr("Remove Filter"),
        [](StackState& state) {
            state.SelectedFilter = 0;
            state.Stack.SelectedFilter = 0;
        },
        mergeKey(step));
}

void WatermarkController::MakeFilterImage(int number) {
    document_.change(number == 0 ? tr("Switch Filter Off") : tr("Switch Filter On"),
                     [number](StackState& state) { state.Stack.SelectedFilter = number; });
}

void WatermarkController::AddEffects(const std::optional<PhotoEffects>& effects, const QString& step) {
    document_.change(
        tr("Edit Effects"), [&effects](StackState& state) { state.Stack.Effects = effects; }, mergeKey(step));
}

void WatermarkController::SetMetadata(const std::optional<CopyRightMetaData>& metadata, const QString& step) {
    document_.change(
        tr("Edit Copyright"), [&metadata](StackState& state) { state.Metadata = metadata; }, mergeKey(step));
}

// ---- rows

void WatermarkController::setRowEnabled(int row, bool on) {
    switch (model_.kindOf(row)) {
        case WatermarkListModel::RowKind::Filter:
            MakeFilterImage(on ? document_.state().SelectedFilter : 0);
            return;
        case WatermarkListModel::RowKind::Metadata:
            document_.change(on ? tr("Switch Copyright On") : tr("Switch Copyright Off"),
                             [on](StackState& state) { state.Metadata->Enabled = on; });
            return;
        case WatermarkListModel::RowKind::Watermark:
            break;
    }
    const int index = model_.watermarkOf(row);
    if (!document_.contains(index)) return;
    document_.change(on ? tr("Switch Watermark On") : tr("Switch Watermark Off"),
                     [index, on](StackState& state) { recordAt(state, index).IsEnabled = on; });
}

void WatermarkController::EnableDisableWatermark(int row) {
    const QModelIndex index = model_.index(row);
    if (index.isValid()) setRowEnabled(row, index.data(Qt::CheckStateRole).toInt() != Qt::Checked);
}

void WatermarkController::RemoveWatermark(int row) {
    if (row < 0 || row >= model_.rowCount()) return;
    switch (model_.kindOf(row)) {
        case WatermarkListModel::RowKind::Filter:
            removeFilter();
            return;
        case WatermarkListModel::RowKind::Metadata:
            document_.change(tr("Remove Copyright"), [](StackState& state) { state.Metadata.reset(); });
            return;
        case WatermarkListModel::RowKind::Watermark:
            break;
    }
    const int index = model_.watermarkOf(row);
    document_.change(tr("Remove Watermark"), [index](StackState& state) {
        state.Stack.Watermarks.erase(state.Stack.Watermarks.begin() + index);
    });
}

void WatermarkController::RemoveAllWatermarks() {
    document_.change(tr("Remove All Watermarks"), [](StackState& state) {
        state.Stack.Watermarks.clear();
        state.Stack.SelectedFilter = 0;
        state.SelectedFilter = 0;
        state.Metadata.reset();
    });
    resetCurrentWatermarkIndex();
}

void WatermarkController::MoveWatermarkUp() {
    const int index = watermarkRowIndexAfterRemovingFilterAndMetadata();
    if (index >= 1) MoveWatermarks(index, index - 1);
}

void WatermarkController::MoveWatermarkDown() {
    const int index = watermarkRowIndexAfterRemovingFilterAndMetadata();
    if (index >= 0) MoveWatermarks(index, index + 1);
}

void WatermarkController::MoveWatermarks(int from, int to) {
    if (!document_.contains(from) || !document_.contains(to)) return;
    document_.change(tr("Move Watermark"), [from, to](StackState& state) {
        std::swap(recordAt(state, from), recordAt(state, to));
    });
    selectWatermark(to);
}

void WatermarkController::placeWatermark(int index, const Watermark& placed, const QString& name,
                                         const QString& step) {
    if (!document_.contains(index)) return;
    document_.change(
        name, [&](StackState& state) { recordAt(state, index) = placed; }, mergeKey(step));
}

void WatermarkController::replaceStack(const WatermarkStack& stack,
                                       const std::optional<CopyRightMetaData>& metadata,
                                       const QString& stepName) {
    resetCurrentWatermarkIndex();
    document_.change(stepName, [&](StackState& state) {
        state.Stack = stack;
        state.SelectedFilter = stack.SelectedFilter;
        state.Metadata = metadata;
    });
}

Result<void> WatermarkController::LoadWatermarkSetting(const QString& path) {
    const Result<WatermarkStack> stack = zelto::LoadWatermarkSetting(path);
    if (!stack) return tl::unexpected<Error>(stack.error());
    std::optional<CopyRightMetaData> metadata;
    if (stack->Metadata) {
        const Result<CopyRightMetaData> read = copyrightFilePath().and_then(copyrightToUse);
        if (!read) qCWarning(watermarks, "%s", qUtf8Printable(read.error().message));
        metadata = read.value_or(CopyRightMetaData());
        if (!read) metadata->Enabled = true;
    }
    replaceStack(*stack, metadata, tr("Load Setting"));
    Q_EMIT keptAs(path);
    return {};
}

Result<void> WatermarkController::SaveWatermarkSettings(const QString& path) {
    const Result<void> saved = zelto::SaveWatermarkSettings(document_.state().Stack, path);
    if (saved) Q_EMIT keptAs(path);
    return saved;
}

}  // namespace zelto
