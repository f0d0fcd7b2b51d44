// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_controller.h"

#include "app/photos/image_list_controller.h"
#include "persistence/copyright_file.h"
#include "persistence/setting_file.h"

#include <QLoggingCategory>
#include <QtMath>

#include <array>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(watermarks, "zelto.watermarks")

// By `Watermark::Type`: how a step on such a record is called, and its editor.
struct KindRow {
    const char* add;
    const char* edit;
    EditorKind editor;
};
constexpr std::array Kinds = {
    KindRow{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Image"),
            QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Image"), EditorKind::Image},
    KindRow{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Text"),
            QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Text"), EditorKind::Text},
    KindRow{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add Shape"),
            QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit Shape"), EditorKind::Shape},
    KindRow{QT_TRANSLATE_NOOP("zelto::WatermarkController", "Add QR Code"),
            QT_TRANSLATE_NOOP("zelto::WatermarkController", "Edit QR Code"), EditorKind::QrCode},
};

const KindRow& kindOf(const Watermark& watermark) {
    const auto type = static_cast<std::size_t>(watermark.Type);
    return watermark.Type >= 0 && type < Kinds.size() ? Kinds.at(type) : Kinds.front();
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

WatermarkController::WatermarkController(WatermarkDocument& document, ImageListController& photos,
                                         EditorSet editors, QWidget* window)
    : QObject(window),
      document_(document),
      photos_(photos),
      editors_(std::move(editors)),
      window_(window),
      model_(document, [this](int row, bool on) { setRowEnabled(row, on); }),
      selection_(&model_) {
    // A list that is built anew keeps its place.
    connect(&model_, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { rowBeforeReset_ = selection_.currentIndex().row(); });
    connect(&model_, &QAbstractItemModel::modelReset, this,
            [this] { selectRow(std::min(rowBeforeReset_, model_.rowCount() - 1)); });
}

const Watermark& WatermarkController::GetWatermarkAtRow(int index) const {
    return document_.watermarks().at(static_cast<std::size_t>(index));
}

std::optional<Watermark> WatermarkController::GetSelectedWatermark() const {
    const int index = watermarkRowIndexAfterRemovingFilterAndMetadata();
    if (!document_.contains(index)) return std::nullopt;
    return GetWatermarkAtRow(index);
}

int WatermarkController::watermarkRowIndexAfterRemovingFilterAndMetadata() const {
    return model_.watermarkOf(selection_.currentIndex().row());
}

// ---- editors

void WatermarkController::openEditor(int row) {
    if (row < 0 || row >= model_.rowCount()) return;
    resetCurrentWatermarkIndex();
    switch (model_.kindOf(row)) {
        case WatermarkListModel::RowKind::Filter:
            open(EditorKind::Filter);
            return;
        case WatermarkListModel::RowKind::Metadata:
            open(EditorKind::Copyright);
            return;
        case WatermarkListModel::RowKind::Watermark:
            break;
    }
    const int index = model_.watermarkOf(row);
    document_.setCurrentWatermark(index);
    open(kindOf(GetWatermarkAtRow(index)).editor);
}

void WatermarkController::openNew(EditorKind kind) {
    resetCurrentWatermarkIndex();
    open(kind);
}

void WatermarkController::open(EditorKind kind) {
    const auto editor = editors_.find(kind);
    if (editor == editors_.end()) return;
    ++editing_;
    editor->second({*this, photos_.selectedPath(), std::max(0, photos_.selectedRow()), window_});
    ++editing_;
    resetCurrentWatermarkIndex();
}

Watermark WatermarkController::startingWatermark(std::int32_t type) {
    Watermark watermark(type);
    const bool isFaint = type == watermark_type::Text || type == watermark_type::Shape;
    watermark.Transparency = isFaint ? 0.5F : 1.0F;
    return watermark;
}

QString WatermarkController::mergeKey(const QString& step) const {
    if (step.isEmpty()) return {};
    return QString::number(editing_) + QLatin1Char('/') + step;
}

// ---- records

void WatermarkController::ReflectWatermark(const Watermark& watermark, bool addToList, const QString& step) {
    qCInfo(watermarks, "totalWatermarks = %d", WatermarkCount());
    qCInfo(watermarks, "WatermarkCount variable value = %d", WatermarkCount());
    qCInfo(watermarks, "CurrentWatermark = %d", CurrentWatermark());
    if (CurrentWatermark() == WatermarkDocument::NoWatermark) {
        if (!isEmpty(watermark)) AddNewWatermark(watermark, addToList, step);
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

void WatermarkController::AddNewWatermark(const Watermark& watermark, bool addToList, const QString& step) {
    if (!addToList) {
        Q_EMIT rebuildLayers();
        return;
    }
    document_.change(
        tr(kindOf(watermark).add),
        [&watermark](StackState& state) { state.Stack.Watermarks.push_back(watermark); }, mergeKey(step));
    document_.setCurrentWatermark(document_.count() - 1);
    selectWatermark(document_.count() - 1);
    Q_EMIT setSaveLastWatermark();
}

void WatermarkController::UpdateWatermark(const Watermark& watermark, const QString& step) {
    qCInfo(watermarks, "UpdateWatermark *** START");
    const int index = CurrentWatermark();
    qCInfo(watermarks, "current watermark = %d", index);
    if (document_.contains(index)) {
        document_.change(
            tr(kindOf(watermark).edit), [&](StackState& state) { recordAt(state, index) = watermark; },
            mergeKey(step));
    }
    qCInfo(watermarks, "UpdateWatermark *** END");
}

void WatermarkController::MakeWatermarkChanges() {
    Q_EMIT rebuildLayers();
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

void WatermarkController::RemoveSelectedWatermarks() {
    RemoveWatermark(selection_.currentIndex().row());
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
    Q_EMIT setSaveLastWatermark();
}

void WatermarkController::placeWatermark(int index, QPoint topLeft, const QString& step) {
    if (!document_.contains(index)) return;
    document_.change(
        tr("Place Watermark"),
        [index, topLeft](StackState& state) {
            Watermark& watermark = recordAt(state, index);
            watermark.Position = CustomPosition;
            watermark.CustomPositionLeft = topLeft.x();
            watermark.CustomPositionTop = topLeft.y();
        },
        mergeKey(step));
}

void WatermarkController::replaceStack(const WatermarkStack& stack,
                                       const std::optional<CopyRightMetaData>& metadata,
                                       const QString& name) {
    resetCurrentWatermarkIndex();
    document_.change(name, [&](StackState& state) {
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
    Q_EMIT clearSaveLastWatermark();
    return {};
}

Result<void> WatermarkController::SaveWatermarkSettings(const QString& path) {
    const Result<void> saved = zelto::SaveWatermarkSettings(document_.state().Stack, path);
    if (saved) Q_EMIT clearSaveLastWatermark();
    return saved;
}

void WatermarkController::selectRow(int row) {
    selection_.setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
}

double WatermarkController::DegreesToRadians(double degrees) {
    return qDegreesToRadians(degrees);
}

}  // namespace zelto
