// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/photo_list_model.h"

#include "platform/path_parts.h"
#include "platform/words.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace zelto {
namespace {

// By `PhotoStatus`.
constexpr std::array StatusWords = {QT_TRANSLATE_NOOP("Words", "not processed"),
                                    QT_TRANSLATE_NOOP("Words", "written"),
                                    QT_TRANSLATE_NOOP("Words", "failed")};

QString spoken(const Image& photo) {
    QString status = Words::tr("written with warnings");
    if (photo.Warnings.isEmpty()) status = Words::tr(StatusWords.at(static_cast<std::size_t>(photo.Status)));
    return Words::tr("%1, %2, %3")
        .arg(lastPathComponent(photo.ImagePath),
             photo.ApplyWatermark ? Words::tr("checked") : Words::tr("not checked"), status);
}

// Whether the rows follow each other without a gap, as one range a view can be told of.
bool areOneRange(const std::vector<std::size_t>& rows) {
    return rows.back() - rows.front() + 1 == rows.size();
}

}  // namespace

int PhotoListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(images().size());
}

QVariant PhotoListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const Image& photo = images()[static_cast<std::size_t>(index.row())];
    switch (role) {
        case Qt::DisplayRole:
            return lastPathComponent(photo.ImagePath);
        case Qt::ToolTipRole:
            return (QStringList(photo.ImagePath) << photo.ErrorMessage << photo.Warnings)
                .filter(QRegularExpression(QStringLiteral(".")))
                .join(QLatin1Char('\n'));
        case Qt::CheckStateRole:
            return photo.ApplyWatermark ? Qt::Checked : Qt::Unchecked;
        case Qt::AccessibleTextRole:
            return spoken(photo);
        case PathRole:
            return photo.ImagePath;
        case FolderRole:
            return list_.InputOutputDictionary().size() > 1
                       ? lastPathComponent(withoutLastPathComponent(photo.ImagePath))
                       : QString();
        case StatusRole:
            return static_cast<int>(photo.Status);
        case ErrorRole:
            return photo.ErrorMessage;
        case WarningsRole:
            return photo.Warnings;
        default:
            return {};
    }
}

void PhotoListModel::insert(const ImageList::Placed& photos) {
    if (photos.rows.empty()) return;
    if (areOneRange(photos.rows)) {
        beginInsertRows({}, static_cast<int>(photos.rows.front()), static_cast<int>(photos.rows.back()));
        list_.insertImages(photos);
        endInsertRows();
    } else {
        beginResetModel();
        list_.insertImages(photos);
        endResetModel();
    }
}

ImageList::Placed PhotoListModel::take(const std::vector<std::size_t>& rows) {
    if (rows.empty()) return {};
    ImageList::Placed taken;
    if (areOneRange(rows)) {
        beginRemoveRows({}, static_cast<int>(rows.front()), static_cast<int>(rows.back()));
        taken = list_.takeImages(rows);
        endRemoveRows();
    } else {
        beginResetModel();
        taken = list_.takeImages(rows);
        endResetModel();
    }
    return taken;
}

void PhotoListModel::reorder(const PhotoOrder& order) {
    Q_EMIT layoutAboutToBeChanged();
    list_.reorder(order);
    const PhotoOrder places = inverseOf(order);
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    for (const QModelIndex& old : before)
        after.append(index(static_cast<int>(places[static_cast<std::size_t>(old.row())])));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

std::vector<bool> PhotoListModel::checks() const {
    std::vector<bool> checks;
    checks.reserve(images().size());
    for (const Image& photo : images()) checks.push_back(photo.ApplyWatermark);
    return checks;
}

void PhotoListModel::setChecks(const std::vector<bool>& checks) {
    for (std::size_t row = 0; row < checks.size(); ++row) list_.setApplyWatermark(row, checks[row]);
    announceAll();
}

void PhotoListModel::setOutcome(int row, PhotoStatus status, const QString& errorMessage) {
    setOutcomes({{row, status, errorMessage}});
}

// Views are told once, of all rows between the first and the last.
void PhotoListModel::setOutcomes(const std::vector<RowOutcome>& outcomes) {
    if (outcomes.empty()) return;
    for (const RowOutcome& each : outcomes) {
        list_.setOutcome(static_cast<std::size_t>(each.row), each.status, each.errorMessage, each.warnings);
    }
    const auto [first, last] =
        std::minmax_element(outcomes.begin(), outcomes.end(),
                            [](const RowOutcome& a, const RowOutcome& b) { return a.row < b.row; });
    Q_EMIT dataChanged(index(first->row), index(last->row));
}

void PhotoListModel::announceAll() {
    if (rowCount() > 0) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

}  // namespace zelto
