// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/watermarks/watermark_list_model.h"

#include "app/common/icons.h"
#include "app/watermarks/watermark_clipboard.h"
#include "platform/path_parts.h"
#include "platform/words.h"
#include "records/resource_picture.h"
#include "render/photo_filters.h"

#include <QCoreApplication>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <utility>

namespace zelto {
namespace {

// By `Watermark::ShapeType`.
constexpr std::array ShapeNames = {MarkedText(""), MarkedText(QT_TRANSLATE_NOOP("Words", "Rectangle")),
                                   MarkedText(QT_TRANSLATE_NOOP("Words", "Ellipse")),
                                   MarkedText(QT_TRANSLATE_NOOP("Words", "Polygon")),
                                   MarkedText(QT_TRANSLATE_NOOP("Words", "Line"))};

QString shapeName(std::int32_t shapeType) {
    const auto at = static_cast<std::size_t>(shapeType);
    return shapeType >= 0 && at < ShapeNames.size() ? QString(ShapeNames[at]) : QString();
}

// Beside the watermarks themselves, a drag within a list carries their places there.
constexpr QLatin1String PlacesMimeType("application/x-zelto-places");

// Says which list of which program the places belong to.
QByteArray listTag(const WatermarkListModel* list) {
    return QByteArray::number(QCoreApplication::applicationPid()) + '/' +
           QByteArray::number(reinterpret_cast<quintptr>(list)) + ':';
}

}  // namespace

QString watermarkLabel(const Watermark& watermark) {
    switch (watermark.Type) {
        case watermark_type::Image:
            return watermark.ImagePath;
        case watermark_type::Shape:
            return Words::tr("Shape - %1").arg(shapeName(watermark.ShapeType));
        default:
            return QString(watermark.Text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    }
}

WatermarkListModel::WatermarkListModel(WatermarkDocument& document, Hands hands, QObject* parent)
    : QAbstractListModel(parent), document_(document), hands_(std::move(hands)), shown_(document.state()) {
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
            QStringList lines = {name(index.row())};
            for (const QString& line : {label(index.row()), warning(index.row())}) {
                if (!line.isEmpty() && !lines.contains(line)) lines.append(line);
            }
            return lines.join(QLatin1Char('\n'));
        }
        case NameRole:
        case Qt::EditRole:
        case Qt::AccessibleTextRole:
            return name(index.row());
        case PortraitRole:
            return face(index.row()) == nullptr ? QImage() : face(index.row())->portrait;
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
    if (role == Qt::CheckStateRole) {
        hands_.checked(index.row(), value.toInt() == Qt::Checked);
        return true;
    }
    if (role != Qt::EditRole || kindOf(index.row()) != RowKind::Watermark) return false;
    // A name that was only looked at goes on following the photo.
    if (value.toString() != name(index.row())) hands_.renamed(watermarkOf(index.row()), value.toString());
    return true;
}

Qt::ItemFlags WatermarkListModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags flags = QAbstractListModel::flags(index);
    // Watermarks are let go between rows, not on them.
    if (!index.isValid()) return flags | Qt::ItemIsDropEnabled;
    if (kindOf(index.row()) != RowKind::Watermark) return flags | Qt::ItemIsUserCheckable;
    return flags | Qt::ItemIsUserCheckable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
}

// ---- dragging

QStringList WatermarkListModel::mimeTypes() const {
    return {WatermarksMimeType};
}

QMimeData* WatermarkListModel::mimeData(const QModelIndexList& indexes) const {
    std::vector<int> places;
    for (const QModelIndex& index : indexes) {
        if (kindOf(index.row()) == RowKind::Watermark) places.push_back(watermarkOf(index.row()));
    }
    if (places.empty()) return nullptr;
    std::sort(places.begin(), places.end());
    std::vector<Watermark> watermarks;
    QByteArray told = listTag(this);
    for (const int place : places) {
        watermarks.push_back(watermarkAt(rowOf(place)));
        told += QByteArray::number(place) + ' ';
    }
    std::unique_ptr<QMimeData> data = watermarksAsMime(watermarks);
    data->setData(PlacesMimeType, told);
    return data.release();
}

bool WatermarkListModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int /*column*/,
                                      const QModelIndex& /*parent*/) {
    const int before = row < 0 ? document_.count() : std::max(0, watermarkOf(row));
    const QByteArray told = data->data(PlacesMimeType);
    if (action != Qt::MoveAction || !told.startsWith(listTag(this))) return hands_.dropped(*data, before);
    std::vector<int> places;
    for (const QByteArray& place : told.mid(listTag(this).size()).simplified().split(' '))
        places.push_back(place.toInt());
    hands_.moved(places, before);
    return true;
}

// ---- what rows show

const Watermark& WatermarkListModel::watermarkAt(int row) const {
    return shown_.Stack.Watermarks[static_cast<std::size_t>(watermarkOf(row))];
}

QString WatermarkListModel::label(int row) const {
    switch (kindOf(row)) {
        case RowKind::Filter:
            return Words::tr("Filter - %1").arg(GetFilterName(filterOf(shown_.Stack)));
        case RowKind::Metadata:
            return Words::tr("Copyright");
        case RowKind::Watermark:
            break;
    }
    return watermarkLabel(watermarkAt(row));
}

QString WatermarkListModel::name(int row) const {
    if (kindOf(row) != RowKind::Watermark) return label(row);
    const Watermark& watermark = watermarkAt(row);
    if (!watermark.LabelName.isEmpty()) return watermark.LabelName;
    if (watermark.Type == watermark_type::Image) return lastPathComponent(watermark.ImagePath);
    const MarkFace* seen = face(row);
    const QString read = seen == nullptr ? QString() : seen->text.simplified();
    return read.isEmpty() ? label(row) : read;
}

void WatermarkListModel::setFaces(const std::vector<MarkFace>& faces) {
    if (faces == faces_) return;
    faces_ = faces;
    announceAll();
}

const MarkFace* WatermarkListModel::face(int row) const {
    const bool isCurrent = faces_.size() == shown_.Stack.Watermarks.size();
    return isCurrent && kindOf(row) == RowKind::Watermark
               ? &faces_[static_cast<std::size_t>(watermarkOf(row))]
               : nullptr;
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
    const auto takeFilter = [&] {
        shown_.Stack.SelectedFilter = now.Stack.SelectedFilter;
        shown_.Stack.Off.SelectedFilter = now.Stack.Off.SelectedFilter;
    };
    const auto takeMetadata = [&] { shown_.Metadata = now.Metadata; };
    const bool hasFilter = filterOf(now.Stack) != 0;
    if (hasFilterRow() && !hasFilter) removeRows(0, 1, takeFilter);
    if (!hasFilterRow() && hasFilter) insertRows(0, 1, takeFilter);
    const int metadataRow = hasFilterRow() ? 1 : 0;
    if (hasMetadataRow() && !now.Metadata) removeRows(metadataRow, 1, takeMetadata);
    if (!hasMetadataRow() && now.Metadata) insertRows(metadataRow, 1, takeMetadata);
    if (now.Stack.Watermarks.size() == shown_.Stack.Watermarks.size()) {
        followOrder(now.Stack.Watermarks);
    } else {
        followWatermarks(now.Stack.Watermarks);
    }
    shown_ = now;
    announceAll();
}

void WatermarkListModel::announceAll() {
    if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

// The same watermarks in another order take their selection and their faces along.
void WatermarkListModel::followOrder(const std::vector<Watermark>& now) {
    const std::vector<Watermark>& shown = shown_.Stack.Watermarks;
    std::vector<int> cameFrom;
    std::vector<bool> isTaken(shown.size());
    for (const Watermark& each : now) {
        const auto isIt = [&](std::size_t i) { return !isTaken[i] && shown[i] == each; };
        std::size_t from = cameFrom.size();
        if (!isIt(from)) {
            for (from = 0; from < shown.size() && !isIt(from);) ++from;
        }
        if (from == shown.size()) return;
        isTaken[from] = true;
        cameFrom.push_back(static_cast<int>(from));
    }
    if (std::is_sorted(cameFrom.begin(), cameFrom.end())) return;
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    QModelIndexList before;
    QModelIndexList after;
    std::vector<MarkFace> faces;
    for (const int from : cameFrom) {
        before.append(index(rowOf(from)));
        after.append(index(rowOf(static_cast<int>(after.size()))));
        if (faces_.size() == cameFrom.size()) faces.push_back(faces_[static_cast<std::size_t>(from)]);
    }
    faces_ = std::move(faces);
    changePersistentIndexList(before, after);
    shown_.Stack.Watermarks = now;
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

// What came or went among watermarks that stayed as they were, in their order; nothing where more has changed.
std::optional<std::vector<int>> WatermarkListModel::strangers(const std::vector<Watermark>& fewer,
                                                              const std::vector<Watermark>& more) {
    std::vector<int> found;
    std::size_t known = 0;
    for (std::size_t i = 0; i < more.size(); ++i) {
        if (known < fewer.size() && more[i] == fewer[known]) {
            ++known;
        } else {
            found.push_back(static_cast<int>(i));
        }
    }
    if (known < fewer.size()) return std::nullopt;
    return found;
}

void WatermarkListModel::followWatermarks(const std::vector<Watermark>& now) {
    std::vector<Watermark>& shown = shown_.Stack.Watermarks;
    if (const auto gone = strangers(now, shown); gone && now.size() < shown.size()) {
        for (auto place = gone->rbegin(); place != gone->rend(); ++place)
            removeRows(rowOf(*place), 1, [&] { shown.erase(shown.begin() + *place); });
    } else if (const auto come = strangers(shown, now)) {
        for (const int place : *come) {
            insertRows(rowOf(place), 1,
                       [&] { shown.insert(shown.begin() + place, now[static_cast<std::size_t>(place)]); });
        }
    } else if (now.size() < shown.size()) {
        const auto count = static_cast<int>(shown.size() - now.size());
        removeRows(rowOf(static_cast<int>(now.size())), count,
                   [&] { shown.resize(now.size(), shown.front()); });
    } else {
        const auto count = static_cast<int>(now.size() - shown.size());
        insertRows(rowOf(static_cast<int>(shown.size())), count,
                   [&] { shown.insert(shown.end(), now.end() - count, now.end()); });
    }
}

}  // namespace zelto
