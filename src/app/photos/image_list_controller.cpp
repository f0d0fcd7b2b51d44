// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/image_list_controller.h"

#include "app/common/change_value.h"

#include <QSet>
#include <QUndoCommand>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zelto {
namespace {

// Photos come into the list, or leave it: the same step done forward or backward.
class SplicePhotos : public QUndoCommand {
  public:
    using Insert = std::function<void(const ImageList::Placed&)>;
    using Take = std::function<void(const std::vector<std::size_t>&)>;
    enum class Direction { In, Out };

    SplicePhotos(const QString& name, Direction direction, ImageList::Placed photos, Insert insert, Take take)
        : QUndoCommand(name),
          direction_(direction),
          photos_(std::move(photos)),
          insert_(std::move(insert)),
          take_(std::move(take)) {}

    void redo() override { go(direction_); }
    void undo() override { go(direction_ == Direction::In ? Direction::Out : Direction::In); }

  private:
    void go(Direction direction) {
        if (direction == Direction::In) {
            insert_(photos_);
        } else {
            take_(photos_.rows);
        }
    }

    Direction direction_;
    ImageList::Placed photos_;
    Insert insert_;
    Take take_;
};

}  // namespace

ImageListController::ImageListController(QUndoStack& history, QObject* parent)
    : QObject(parent), history_(history), selection_(&model_) {
    connect(&selection_, &QItemSelectionModel::currentChanged, this, &ImageListController::SelectImage);
}

int ImageListController::selectedRow() const {
    return selection_.currentIndex().row();
}

QString ImageListController::selectedPath() const {
    return selection_.currentIndex().data(PhotoListModel::PathRole).toString();
}

void ImageListController::AddImage(const QString& path) {
    AddImages({path});
}

void ImageListController::AddImages(const QStringList& paths) {
    ImageList::Placed photos;
    QSet<QString> added;
    for (const QString& path : paths) {
        if (CheckIfImageExists(path) || added.contains(path)) continue;
        added.insert(path);
        photos.rows.push_back(model_.images().size() + photos.images.size());
        photos.images.emplace_back(path);
    }
    if (!photos.images.empty()) {
        const QString name =
            photos.images.size() == 1 ? tr("Add Photo") : tr("Add %1 Photos").arg(photos.images.size());
        history_.push(new SplicePhotos(
            name, SplicePhotos::Direction::In, std::move(photos),
            [this](const ImageList::Placed& placed) { insertPhotos(placed); },
            [this](const std::vector<std::size_t>& rows) { takePhotos(rows); }));
    }
}

void ImageListController::addImagesFromUrls(const QList<QUrl>& urls) {
    QStringList paths;
    for (const QUrl& url : urls) paths.append(url.toLocalFile());
    AddImages(paths);
}

void ImageListController::CheckAllImages() {
    setChecks(tr("Check All Photos"), [](int, bool) { return true; });
}

void ImageListController::UncheckAllImages() {
    setChecks(tr("Uncheck All Photos"), [](int, bool) { return false; });
}

void ImageListController::ToggleCheck() {
    setChecks(tr("Toggle Check Marks"), [](int, bool checked) { return !checked; });
}

void ImageListController::setApplyWatermark(const std::vector<int>& rows, bool apply) {
    const QSet<int> chosen(rows.begin(), rows.end());
    setChecks(apply ? tr("Check Photos") : tr("Uncheck Photos"),
              [&](int row, bool checked) { return chosen.contains(row) ? apply : checked; });
}

void ImageListController::setChecks(const QString& name, const std::function<bool(int, bool)>& check) {
    const std::vector<bool> before = model_.checks();
    std::vector<bool> after = before;
    for (std::size_t row = 0; row < after.size(); ++row)
        after[row] = check(static_cast<int>(row), before[row]);
    if (after == before) return;
    history_.push(new ChangeValue<std::vector<bool>>(
        name, [this](const std::vector<bool>& checks) { model_.setChecks(checks); }, before,
        std::move(after)));
}

void ImageListController::RemoveSelectedImage() {
    std::vector<int> rows;
    for (const QModelIndex& index : selection_.selectedIndexes()) rows.push_back(index.row());
    removeRows(rows.size() == 1 ? tr("Remove Photo") : tr("Remove %1 Photos").arg(rows.size()), rows);
}

void ImageListController::RemoveImage(int row) {
    removeRows(tr("Remove Photo"), {row});
}

void ImageListController::RemoveAllImages() {
    std::vector<int> rows(model_.images().size());
    std::iota(rows.begin(), rows.end(), 0);
    removeRows(tr("Remove All Photos"), std::move(rows));
}

void ImageListController::removeRows(const QString& name, std::vector<int> rows) {
    std::sort(rows.begin(), rows.end());
    ImageList::Placed photos;
    for (const int row : rows) {
        if (row < 0 || row >= count()) continue;
        photos.rows.push_back(static_cast<std::size_t>(row));
        photos.images.push_back(model_.images()[static_cast<std::size_t>(row)]);
    }
    if (photos.rows.empty()) return;
    history_.push(new SplicePhotos(
        name, SplicePhotos::Direction::Out, std::move(photos),
        [this](const ImageList::Placed& placed) { insertPhotos(placed); },
        [this](const std::vector<std::size_t>& taken) { takePhotos(taken); }));
}

void ImageListController::insertPhotos(const ImageList::Placed& photos) {
    int shown = selectedRow();
    model_.insert(photos);
    if (shown < 0) {
        selectRow(0);
    } else if (selectedRow() < 0) {
        // Views have lost their place; the photo on show has moved down by the rows that came in above it.
        for (const std::size_t row : photos.rows) shown += static_cast<int>(row) <= shown ? 1 : 0;
        selectRow(shown);
    }
}

void ImageListController::takePhotos(const std::vector<std::size_t>& rows) {
    model_.take(rows);
    // The row that took the place of the first one removed, or the new last row.
    selectRow(std::min(static_cast<int>(rows.front()), count() - 1));
}

void ImageListController::ChangeImage(const QString& row) {
    selectRow(row.toInt());
}

void ImageListController::selectRow(int row) {
    if (row < 0 || row >= count()) {
        selection_.clear();
        return;
    }
    const QModelIndex index = model_.index(row);
    const bool wasCurrent = selection_.currentIndex() == index;
    selection_.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (wasCurrent) SelectImage();
}

void ImageListController::SelectImage() {
    Q_EMIT photoSelected(selectedRow());
}

void ImageListController::ImageListDoubleClicked(int row) {
    const QModelIndex photo = model_.index(row);
    const QStringList warnings = photo.data(PhotoListModel::WarningsRole).toStringList();
    const QString error = photo.data(PhotoListModel::ErrorRole).toString();
    if (!warnings.isEmpty()) {
        Q_EMIT alert(tr("Watermark Warning"), warnings.join(QLatin1Char('\n')));
    } else if (!error.isEmpty()) {
        Q_EMIT alert(QStringLiteral("Watermark Error"), error);
    }
}

}  // namespace zelto
