// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_controller.h"

#include "app/watermarks/ready_made_stacks.h"
#include "app/watermarks/watermark_clipboard.h"
#include "persistence/copyright_file.h"
#include "persistence/setting_file.h"
#include "persistence/settings_library.h"
#include "render/hand_edits.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <numeric>
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

void switchFilter(StackState& state, bool on) {
    const int number = filterOf(state.Stack);
    state.Stack.SelectedFilter = on ? number : 0;
    state.Stack.Off.SelectedFilter = on ? 0 : number;
}

void switchMetadata(StackState& state, bool on) {
    if (state.Metadata) state.Metadata->Enabled = on;
}

}  // namespace

WatermarkController::WatermarkController(WatermarkDocument& document, QObject* parent)
    : QObject(parent),
      document_(document),
      model_(
          document,
          {.checked = [this](int row, bool on) { setRowsEnabled({row}, on); },
           .renamed = [this](int index, const QString& name) { renameWatermark(index, name); },
           .moved = [this](const std::vector<int>& indices, int before) { MoveWatermarks(indices, before); },
           .dropped =
               [this](const QMimeData& data, int before) {
                   const Result<std::vector<Watermark>> read = watermarksOf(data);
                   if (read) insertWatermarks(besideOriginals(*read, {}), before, tr("Drop Watermarks"));
                   return read.has_value();
               }}),
      selection_(&model_) {
    connect(&model_, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first) { keepARowSelected(first); });
    connect(&document_, &WatermarkDocument::steppedThrough, this, &WatermarkController::selectWhatIsBack);
}

const Watermark& WatermarkController::GetWatermarkAtRow(int index) const {
    return document_.watermarks().at(static_cast<std::size_t>(index));
}

// ---- the selected row

int WatermarkController::selectedRow() const {
    const QModelIndex current = selection_.currentIndex();
    if (selection_.isSelected(current)) return current.row();
    return selection_.selectedIndexes().value(0).row();
}

std::vector<int> WatermarkController::selectedRows() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selection_.selectedIndexes()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

std::vector<int> WatermarkController::selectedWatermarks() const {
    std::vector<int> indices;
    for (const int row : selectedRows()) {
        if (model_.kindOf(row) == WatermarkListModel::RowKind::Watermark)
            indices.push_back(model_.watermarkOf(row));
    }
    return indices;
}

void WatermarkController::selectWatermark(int index) {
    if (document_.contains(index)) {
        selection_.setCurrentIndex(model_.index(model_.rowOf(index)), QItemSelectionModel::ClearAndSelect);
    } else {
        selection_.clear();
    }
}

void WatermarkController::selectWatermarks(const std::vector<int>& indices) {
    QItemSelection rows;
    QModelIndex last;
    for (const int index : indices) {
        if (!document_.contains(index)) continue;
        last = model_.index(model_.rowOf(index));
        rows.select(last, last);
    }
    selection_.setCurrentIndex(last, QItemSelectionModel::NoUpdate);
    selection_.select(rows, QItemSelectionModel::ClearAndSelect);
}

// Qt makes a neighbour of a removed row the current one, but does not select it.
void WatermarkController::keepARowSelected(int removedFrom) {
    if (selection_.hasSelection() || !selection_.currentIndex().isValid()) return;
    const int row = std::min(removedFrom, model_.rowCount() - 1);
    selection_.setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
}

// Undo and Redo show what they have changed. What has only been moved keeps its selection by itself.
void WatermarkController::selectWhatIsBack(const StackState& before) {
    const StackChange change = changeBetween(before, document_.state());
    std::vector<int> changed = changedWatermarks(before, document_.state());
    if (changed.empty()) {
        const std::vector<int> selected = selectedWatermarks();
        const bool isSeen = std::find_first_of(selected.begin(), selected.end(), change.records.begin(),
                                               change.records.end()) != selected.end();
        if (!isSeen) changed = change.records;
    }
    if (!changed.empty()) selectWatermarks(changed);
    for (int row = 0; row < model_.rowOf(0) && changed.empty(); ++row) {
        const bool isFilter = model_.kindOf(row) == WatermarkListModel::RowKind::Filter;
        if (isFilter ? change.filter : change.metadata)
            selection_.setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
    }
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
            state.Stack.SelectedFilter = number;
            state.Stack.Off.SelectedFilter = 0;
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
        [](StackState& state) { state.Stack.SelectedFilter = state.Stack.Off.SelectedFilter = 0; },
        mergeKey(step));
}

void WatermarkController::setFilterEnabled(bool on) {
    document_.change(on ? tr("Switch Filter On") : tr("Switch Filter Off"),
                     [on](StackState& state) { switchFilter(state, on); });
}

void WatermarkController::AddEffects(const std::optional<PhotoEffects>& effects, const QString& step) {
    document_.change(
        tr("Edit Effects"),
        [&effects](StackState& state) {
            state.Stack.Effects = effects;
            state.Stack.Off.Effects.reset();
        },
        mergeKey(step));
}

void WatermarkController::setEffectsEnabled(bool on) {
    document_.change(on ? tr("Switch Border and Shadow On") : tr("Switch Border and Shadow Off"),
                     [on](StackState& state) {
                         std::optional<PhotoEffects> effects = effectsOf(state.Stack);
                         std::optional<PhotoEffects> none;
                         state.Stack.Effects = on ? effects : none;
                         state.Stack.Off.Effects = on ? none : effects;
                     });
}

void WatermarkController::removeEffects() {
    document_.change(tr("Remove Border and Shadow"), [](StackState& state) {
        state.Stack.Effects.reset();
        state.Stack.Off.Effects.reset();
    });
}

void WatermarkController::SetMetadata(const std::optional<CopyRightMetaData>& metadata, const QString& step) {
    document_.change(
        tr("Edit Copyright"), [&metadata](StackState& state) { state.Metadata = metadata; }, mergeKey(step));
}

void WatermarkController::setMetadataEnabled(bool on) {
    document_.change(on ? tr("Switch Copyright On") : tr("Switch Copyright Off"),
                     [on](StackState& state) { switchMetadata(state, on); });
}

void WatermarkController::removeMetadata() {
    document_.change(tr("Remove Copyright"), [](StackState& state) { state.Metadata.reset(); });
}

// ---- rows

void WatermarkController::setRowsEnabled(const std::vector<int>& rows, bool on) {
    using RowKind = WatermarkListModel::RowKind;
    const QString name = on ? tr("Switch Watermark On") : tr("Switch Watermark Off");
    document_.change(name, [&](StackState& state) {
        for (const int row : rows) {
            if (row < 0 || row >= model_.rowCount()) continue;
            const RowKind kind = model_.kindOf(row);
            if (kind == RowKind::Filter) switchFilter(state, on);
            if (kind == RowKind::Metadata) switchMetadata(state, on);
            if (kind == RowKind::Watermark) recordAt(state, model_.watermarkOf(row)).IsEnabled = on;
        }
    });
}

void WatermarkController::EnableDisableWatermark(int row) {
    setRowsEnabled({row}, !model_.isOn(row));
}

void WatermarkController::toggleSelected() {
    const std::vector<int> rows = selectedRows();
    const bool areOn = std::all_of(rows.begin(), rows.end(), [this](int row) { return model_.isOn(row); });
    setRowsEnabled(rows, !areOn);
}

void WatermarkController::removeRows(std::vector<int> rows) {
    std::erase_if(rows, [this](int row) { return row < 0 || row >= model_.rowCount(); });
    if (rows.empty()) return;
    // What the rows are, before any of them goes.
    std::vector<int> indices;
    bool hasFilter = false;
    bool hasMetadata = false;
    for (const int row : rows) {
        const auto kind = model_.kindOf(row);
        hasFilter = hasFilter || kind == WatermarkListModel::RowKind::Filter;
        hasMetadata = hasMetadata || kind == WatermarkListModel::RowKind::Metadata;
        if (kind == WatermarkListModel::RowKind::Watermark) indices.push_back(model_.watermarkOf(row));
    }
    const QString name = rows.size() > 1 ? tr("Remove %Ln Row(s)", nullptr, static_cast<int>(rows.size()))
                         : hasFilter     ? tr("Remove Filter")
                         : hasMetadata   ? tr("Remove Copyright")
                                         : tr("Remove Watermark");
    document_.change(name, [&](StackState& state) {
        if (hasFilter) state.Stack.SelectedFilter = state.Stack.Off.SelectedFilter = 0;
        if (hasMetadata) state.Metadata.reset();
        std::sort(indices.rbegin(), indices.rend());
        for (const int index : indices) state.Stack.Watermarks.erase(state.Stack.Watermarks.begin() + index);
    });
}

void WatermarkController::RemoveAllWatermarks() {
    document_.change(tr("Remove All Watermarks"), [](StackState& state) {
        state.Stack.Watermarks.clear();
        state.Stack.SelectedFilter = state.Stack.Off.SelectedFilter = 0;
        state.Metadata.reset();
    });
    resetCurrentWatermarkIndex();
    Q_EMIT told(GetEffect()
                    ? tr("Watermarks, filter and copyright data removed; border and shadow stay. "
                         "Undo brings everything back.")
                    : tr("Watermarks, filter and copyright data removed. Undo brings everything back."));
}

void WatermarkController::moveSelected(int by) {
    std::vector<int> indices = selectedWatermarks();
    if (by > 0) std::reverse(indices.begin(), indices.end());
    std::vector<int> places;
    document_.change(tr("Move Watermark"), [&](StackState& state) {
        for (const int index : indices) {
            const int to = index + by;
            const bool isFree =
                document_.contains(to) && std::find(places.begin(), places.end(), to) == places.end();
            if (isFree) std::swap(recordAt(state, index), recordAt(state, to));
            places.push_back(isFree ? to : index);
        }
    });
    if (!places.empty()) selectWatermarks(places);
}

void WatermarkController::MoveWatermarks(const std::vector<int>& indices, int before) {
    std::vector<Watermark> picked;
    std::vector<Watermark> rest;
    std::size_t place = 0;
    for (int i = 0; i < document_.count(); ++i) {
        const bool isPicked = std::find(indices.begin(), indices.end(), i) != indices.end();
        (isPicked ? picked : rest).push_back(GetWatermarkAtRow(i));
        if (!isPicked && i < before) place = rest.size();
    }
    std::vector<int> places(picked.size());
    std::iota(places.begin(), places.end(), static_cast<int>(place));
    rest.insert(rest.begin() + static_cast<std::ptrdiff_t>(place), picked.begin(), picked.end());
    document_.change(tr("Move Watermark"), [&](StackState& state) { state.Stack.Watermarks = rest; });
    selectWatermarks(places);
}

std::vector<Watermark> WatermarkController::copiesOf(const std::vector<int>& indices) const {
    std::vector<Watermark> copies;
    copies.reserve(indices.size());
    for (const int index : indices) copies.push_back(GetWatermarkAtRow(index));
    return copies;
}

// Whatever would lie exactly on a watermark there is could not be seen.
std::vector<Watermark> WatermarkController::besideOriginals(std::vector<Watermark> copies,
                                                            QSizeF area) const {
    const std::vector<Watermark>& originals = document_.watermarks();
    for (Watermark& copy : copies) {
        while (std::find(originals.begin(), originals.end(), copy) != originals.end()) {
            const Watermark there = copy;
            stepAside(copy, area);
            if (copy == there) break;
        }
    }
    return copies;
}

void WatermarkController::duplicateSelected(QSizeF area) {
    const std::vector<Watermark> copies = copiesOf(selectedWatermarks());
    if (copies.empty()) return;
    insertWatermarks(besideOriginals(copies, area), insertionPlace(), tr("Duplicate Watermark"));
}

void WatermarkController::renameWatermark(int index, const QString& name) {
    if (!document_.contains(index)) return;
    document_.change(tr("Rename Watermark"),
                     [&](StackState& state) { recordAt(state, index).LabelName = name.simplified(); });
}

// ---- watermarks from elsewhere

int WatermarkController::insertionPlace() const {
    const std::vector<int> selected = selectedWatermarks();
    return selected.empty() ? document_.count() : selected.back() + 1;
}

void WatermarkController::insertWatermarks(const std::vector<Watermark>& watermarks, int before,
                                           const QString& stepName) {
    const int place = std::clamp(before, 0, document_.count());
    document_.change(stepName, [&](StackState& state) {
        std::vector<Watermark>& list = state.Stack.Watermarks;
        list.insert(list.begin() + place, watermarks.begin(), watermarks.end());
    });
    std::vector<int> places(watermarks.size());
    std::iota(places.begin(), places.end(), place);
    selectWatermarks(places);
}

void WatermarkController::copySelected() const {
    const std::vector<Watermark> copies = copiesOf(selectedWatermarks());
    if (!copies.empty()) QGuiApplication::clipboard()->setMimeData(watermarksAsMime(copies).release());
}

void WatermarkController::cutSelected() {
    const std::vector<int> indices = selectedWatermarks();
    if (indices.empty()) return;
    copySelected();
    document_.change(tr("Cut Watermark"), [&indices](StackState& state) {
        for (auto index = indices.rbegin(); index != indices.rend(); ++index)
            state.Stack.Watermarks.erase(state.Stack.Watermarks.begin() + *index);
    });
}

Result<void> WatermarkController::paste(const QMimeData& data, QSizeF area) {
    return watermarksOf(data).map([this, area](const std::vector<Watermark>& watermarks) {
        insertWatermarks(besideOriginals(watermarks, area), insertionPlace(), tr("Paste Watermark"));
    });
}

// ---- changes by hand

void WatermarkController::placeWatermark(int index, const Watermark& placed, const QString& name,
                                         const QString& step) {
    if (!document_.contains(index)) return;
    document_.change(
        name, [&](StackState& state) { recordAt(state, index) = placed; }, mergeKey(step));
}

// ---- the whole stack

void WatermarkController::replaceStack(const WatermarkStack& stack,
                                       const std::optional<CopyRightMetaData>& metadata,
                                       const QString& stepName, const QString& setting) {
    resetCurrentWatermarkIndex();
    StackState state{stack, metadata};
    state.Stack.Metadata = metadata && metadata->Enabled;
    document_.load(stepName, state, setting);
}

void WatermarkController::addStack(const WatermarkStack& stack, const QString& stepName) {
    resetCurrentWatermarkIndex();
    const int place = document_.count();
    document_.change(stepName, [&stack](StackState& state) {
        std::vector<Watermark>& list = state.Stack.Watermarks;
        list.insert(list.end(), stack.Watermarks.begin(), stack.Watermarks.end());
        if (!effectsOf(state.Stack)) state.Stack.Effects = stack.Effects;
        if (filterOf(state.Stack) == 0) state.Stack.SelectedFilter = stack.SelectedFilter;
    });
    selectWatermark(place);
}

void WatermarkController::addReadyMade(int place) {
    const ReadyMadeStack& stack = readyMadeStacks().at(static_cast<std::size_t>(place));
    addStack(stack.make(), tr("Add %1").arg(stack.name));
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
    // A stack that was brought back goes on without a name.
    const bool isNamed = QFileInfo(path).completeBaseName() != LastWatermarkSetting;
    replaceStack(*stack, metadata, tr("Load Setting"), isNamed ? path : QString());
    Q_EMIT keptAs(path);
    return {};
}

Result<void> WatermarkController::SaveWatermarkSettings(const QString& path) {
    const Result<void> saved = zelto::SaveWatermarkSettings(document_.state().Stack, path);
    if (!saved) return saved;
    document_.setSetting(path);
    Q_EMIT keptAs(path);
    return saved;
}

}  // namespace zelto
