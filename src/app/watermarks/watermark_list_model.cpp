// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_list_model.h"

#include "app/common/icons.h"
#include "records/resource_picture.h"
#include "render/photo_filters.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

// By `Watermark::ShapeType`.
constexpr std::array<const char*, 5> ShapeNames = {"", "Rectangle", "Ellipse", "Polygon", "Line"};

QString shapeName(std::int32_t shapeType) {
    const auto at = static_cast<std::size_t>(shapeType);
    return QLatin1String(shapeType >= 0 && at < ShapeNames.size() ? ShapeNames[at] : "");
}

}  // namespace

QString watermarkLabel(const Watermark& watermark) {
    switch (watermark.Type) {
        case watermark_type::Image:
            return watermark.ImagePath;
        case watermark_type::Shape:
            return QStringLiteral("Shape - ") + shapeName(watermark.ShapeType);
        default:
            return QString(watermark.Text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    }
}

WatermarkListModel::WatermarkListModel(WatermarkDocument& document, Checked checked, QObject* parent)
    : QAbstractListModel(parent),
      document_(document),
      checked_(std::move(checked)),
      shown_(document.state()) {
    connect(&document_, &WatermarkDocument::changed, this, &WatermarkListModel::follow);
}

WatermarkListModel::RowKind WatermarkListModel::kindOf(int row) const {
    if (row == 0 && hasFilterRow()) return RowKind::Filter;
    return row < extraRows() ? RowKind::Metadata : RowKind::Watermark;
}

int WatermarkListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : extraRows() + static_cast<int>(shown_.Stack.Watermarks.size());
}

QVariant WatermarkListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    switch (role) {
        case Qt::DisplayRole:
            return label(index.row());
        case Qt::ToolTipRole: {
            const QString warns = warning(index.row());
            return warns.isEmpty() ? label(index.row()) : label(index.row()) + QLatin1Char('\n') + warns;
        }
        case Qt::AccessibleDescriptionRole:
        case WarningRole:
            return warning(index.row());
        case Qt::DecorationRole:
            return lineIcon(drawing(index.row()));
        case Qt::CheckStateRole:
            return isOn(index.row()) ? Qt::Checked : Qt::Unchecked;
        default:
            return {};
    }
}

bool WatermarkListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole) return false;
    checked_(index.row(), value.toInt() == Qt::Checked);
    return true;
}

Qt::ItemFlags WatermarkListModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) | Qt::ItemIsUserCheckable;
}

const Watermark& WatermarkListModel::watermarkAt(int row) const {
    return shown_.Stack.Watermarks[static_cast<std::size_t>(watermarkOf(row))];
}

QString WatermarkListModel::label(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return QStringLiteral("Filter - ") + GetFilterName(shown_.SelectedFilter);
        case RowKind::Metadata:
            return QStringLiteral("Copyright");
        case RowKind::Watermark:
            break;
    }
    return watermarkLabel(watermarkAt(row));
}

void WatermarkListModel::setWarnings(const QStringList& warnings) {
    if (warnings == warnings_) return;
    warnings_ = warnings;
    announceAll();
}

QString WatermarkListModel::warning(int row) const {
    const bool isCurrent = warnings_.size() == static_cast<qsizetype>(shown_.Stack.Watermarks.size());
    return isCurrent && kindOf(row) == RowKind::Watermark ? warnings_[watermarkOf(row)] : QString();
}

QImage WatermarkListModel::drawing(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return resourcePicture(QStringLiteral("filter.png"));
        case RowKind::Metadata:
            return resourcePicture(QStringLiteral("copyright.png"));
        case RowKind::Watermark:
            break;
    }
    return watermarkAt(row).TypeImage;
}

bool WatermarkListModel::isOn(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return shown_.Stack.SelectedFilter != 0;
        case RowKind::Metadata:
            return shown_.Metadata->Enabled;
        case RowKind::Watermark:
            break;
    }
    return watermarkAt(row).IsEnabled;
}

// ---- following the document

template <class Show>
void WatermarkListModel::insertRows(int row, int count, Show show) {
    beginInsertRows({}, row, row + count - 1);
    show();
    endInsertRows();
}

template <class Show>
void WatermarkListModel::removeRows(int row, int count, Show show) {
    beginRemoveRows({}, row, row + count - 1);
    show();
    endRemoveRows();
}

void WatermarkListModel::follow() {
    const StackState& now = document_.state();
    const auto takeFilter = [&] { shown_.SelectedFilter = now.SelectedFilter; };
    const auto takeMetadata = [&] { shown_.Metadata = now.Metadata; };
    if (hasFilterRow() && now.SelectedFilter == 0) removeRows(0, 1, takeFilter);
    if (!hasFilterRow() && now.SelectedFilter != 0) insertRows(0, 1, takeFilter);
    const int metadataRow = hasFilterRow() ? 1 : 0;
    if (hasMetadataRow() && !now.Metadata) removeRows(metadataRow, 1, takeMetadata);
    if (!hasMetadataRow() && now.Metadata) insertRows(metadataRow, 1, takeMetadata);
    followWatermarks(now.Stack.Watermarks);
    shown_ = now;
    announceAll();
}

void WatermarkListModel::announceAll() {
    if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

// Rows come and go behind those that stayed the same from the first on, and before those that did up to the last.
void WatermarkListModel::followWatermarks(const std::vector<Watermark>& now) {
    std::vector<Watermark>& shown = shown_.Stack.Watermarks;
    if (now.size() == shown.size()) return;
    const auto shorter = static_cast<std::ptrdiff_t>(std::min(now.size(), shown.size()));
    const auto sameAtStart =
        std::mismatch(now.begin(), now.begin() + shorter, shown.begin()).first - now.begin();
    const auto sameAtEnd =
        std::mismatch(now.rbegin(), now.rbegin() + (shorter - sameAtStart), shown.rbegin()).first -
        now.rbegin();
    const std::ptrdiff_t at = shorter - sameAtEnd;
    const auto difference =
        static_cast<std::ptrdiff_t>(now.size()) - static_cast<std::ptrdiff_t>(shown.size());
    if (difference > 0) {
        insertRows(rowOf(static_cast<int>(at)), static_cast<int>(difference), [&] {
            shown.insert(shown.begin() + at, now.begin() + at, now.begin() + at + difference);
        });
    } else {
        removeRows(rowOf(static_cast<int>(at)), static_cast<int>(-difference),
                   [&] { shown.erase(shown.begin() + at, shown.begin() + at - difference); });
    }
}

}  // namespace zelto
