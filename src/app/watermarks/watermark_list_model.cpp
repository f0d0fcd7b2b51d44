// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_list_model.h"

#include "app/common/icons.h"
#include "records/resource_picture.h"
#include "render/photo_filters.h"

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
    : QAbstractListModel(parent), document_(document), checked_(std::move(checked)) {
    shownRows_ = document_.count() + extraRows();
    connect(&document_, &WatermarkDocument::changed, this, &WatermarkListModel::follow);
}

WatermarkListModel::RowKind WatermarkListModel::kindOf(int row) const {
    if (row == 0 && hasFilterRow()) return RowKind::Filter;
    return row < extraRows() ? RowKind::Metadata : RowKind::Watermark;
}

int WatermarkListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shownRows_;
}

QVariant WatermarkListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::ToolTipRole:
            return label(index.row());
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

QString WatermarkListModel::label(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return QStringLiteral("Filter - ") + GetFilterName(document_.state().SelectedFilter);
        case RowKind::Metadata:
            return QStringLiteral("Copyright");
        case RowKind::Watermark:
            break;
    }
    return watermarkLabel(document_.watermarks()[static_cast<std::size_t>(watermarkOf(row))]);
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
    return document_.watermarks()[static_cast<std::size_t>(watermarkOf(row))].TypeImage;
}

bool WatermarkListModel::isOn(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return document_.state().Stack.SelectedFilter != 0;
        case RowKind::Metadata:
            return document_.state().Metadata->Enabled;
        case RowKind::Watermark:
            break;
    }
    return document_.watermarks()[static_cast<std::size_t>(watermarkOf(row))].IsEnabled;
}

void WatermarkListModel::follow(const StackChange& change) {
    const int rows = document_.count() + extraRows();
    if (change.list || rows != shownRows_) {
        beginResetModel();
        shownRows_ = rows;
        endResetModel();
        return;
    }
    if (rows > 0) Q_EMIT dataChanged(index(0), index(rows - 1));
}

}  // namespace zelto
