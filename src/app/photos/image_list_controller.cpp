// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/image_list_controller.h"

#include "app/common/change_value.h"
#include "platform/words.h"

#include <QSet>
#include <QUndoCommand>

#include <algorithm>
#include <cstdlib>
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

bool fits(const Image& photo, PhotoFilter filter) {
    const bool failed = photo.Status == PhotoStatus::Failed;
    const bool warned = !photo.Warnings.isEmpty();
    switch (filter) {
        case PhotoFilter::All:
            return true;
        case PhotoFilter::FailedOrWarned:
            return failed || warned;
        case PhotoFilter::Failed:
            return failed;
        case PhotoFilter::Warned:
            return warned;
    }
    return true;
}

bool isCalled(const Image& photo, const QString& name) {
    if (name.isEmpty()) return true;
    const QStringView path(photo.ImagePath);
    return path.sliced(path.lastIndexOf(QLatin1Char('/')) + 1).contains(name, Qt::CaseInsensitive);
}

}  // namespace

// Takes no row that is not shown: views select ranges, and go to the first and last row, across hidden ones.
class ImageListController::ShownSelection : public QItemSelectionModel {
  public:
    explicit ShownSelection(ImageListController& photos)
        : QItemSelectionModel(&photos.model_), photos_(photos) {}

    using QItemSelectionModel::select;
    void select(const QItemSelection& wanted, SelectionFlags command) override {
        if (photos_.showsAllPhotos()) {
            QItemSelectionModel::select(wanted, command);
            return;
        }
        QItemSelection shown;
        for (const QModelIndex& index : wanted.indexes()) {
            if (photos_.isShown(index.row())) shown.select(index, index);
        }
        QItemSelectionModel::select(shown, command);
    }

    void setCurrentIndex(const QModelIndex& index, SelectionFlags command) override {
        QItemSelectionModel::setCurrentIndex(
            index.isValid() ? photos_.model_.index(photos_.shownRowNear(index.row())) : index, command);
    }

  private:
    ImageListController& photos_;
};

ImageListController::ImageListController(QUndoStack& history, QObject* parent)
    : QObject(parent), history_(history), selection_(std::make_unique<ShownSelection>(*this)) {
    connect(selection_.get(), &QItemSelectionModel::currentChanged, this, &ImageListController::SelectImage);
    connect(&model_, &QAbstractItemModel::dataChanged, this, [this] {
        if (filter_ != PhotoFilter::All) showPhotos(filter_);
    });
}

int ImageListController::selectedRow() const {
    return selection_->currentIndex().row();
}

QString ImageListController::selectedPath() const {
    return selection_->currentIndex().data(PhotoListModel::PathRole).toString();
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
        const QString name = tr("Add %Ln Photo(s)", nullptr, static_cast<int>(photos.images.size()));
        history_.push(new SplicePhotos(
            name, SplicePhotos::Direction::In, std::move(photos),
            [this](const ImageList::Placed& placed) { insertPhotos(placed); },
            [this](const std::vector<std::size_t>& rows) { takePhotos(rows); }));
    }
}

void ImageListController::bring(const QStringList& paths) {
    QSet<QString> fresh;
    for (const QString& path : paths) {
        if (!CheckIfImageExists(path)) fresh.insert(path);
    }
    AddImages(paths);
    const QSet<QString> wanted = fresh.isEmpty() ? QSet<QString>(paths.begin(), paths.end()) : fresh;
    QItemSelection rows;
    for (int row = 0; row < count(); ++row) {
        if (!wanted.contains(images()[static_cast<std::size_t>(row)].ImagePath)) continue;
        if (!isShown(row)) showAllPhotos();
        const QModelIndex index = model_.index(row);
        if (!rows.isEmpty() && rows.last().bottom() == row - 1) {
            rows.last() = QItemSelectionRange(rows.last().topLeft(), index);
        } else {
            rows.append(QItemSelectionRange(index));
        }
    }
    if (rows.isEmpty()) return;
    selection_->setCurrentIndex(rows.first().topLeft(), QItemSelectionModel::NoUpdate);
    selection_->select(rows, QItemSelectionModel::ClearAndSelect);
    const QSet<QString> all(paths.begin(), paths.end());
    if (const qsizetype known = all.size() - fresh.size(); known > 0) {
        Q_EMIT noted(tr("%Ln photo(s) are in the list already", nullptr, static_cast<int>(known)));
    }
}

void ImageListController::addImagesFromUrls(const QList<QUrl>& urls) {
    QStringList paths;
    for (const QUrl& url : urls) paths.append(url.toLocalFile());
    AddImages(paths);
}

void ImageListController::showPhotos(PhotoFilter filter) {
    filter_ = hasPhotosFor(filter) ? filter : PhotoFilter::All;
    refilter();
}

void ImageListController::findPhotos(const QString& name) {
    if (name == soughtName_) return;
    soughtName_ = name;
    refilter();
}

void ImageListController::showAllPhotos() {
    if (showsAllPhotos()) return;
    filter_ = PhotoFilter::All;
    soughtName_.clear();
    refilter();
}

void ImageListController::refilter() {
    Q_EMIT filtered();
    selection_->select(selection_->selection(), QItemSelectionModel::ClearAndSelect);
    const int row = selectedRow();
    if (row >= 0 && !isShown(row) && shownRowNear(row) >= 0) selectRow(row);
}

bool ImageListController::isShown(int row) const {
    const Image& photo = images()[static_cast<std::size_t>(row)];
    return fits(photo, filter_) && isCalled(photo, soughtName_);
}

std::vector<int> ImageListController::shownRows() const {
    std::vector<int> rows;
    for (int row = 0; row < count(); ++row) {
        if (isShown(row)) rows.push_back(row);
    }
    return rows;
}

bool ImageListController::hasPhotosFor(PhotoFilter filter) const {
    return std::any_of(images().begin(), images().end(),
                       [filter](const Image& photo) { return fits(photo, filter); });
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
    for (const int row : shownRows()) {
        const auto at = static_cast<std::size_t>(row);
        after[at] = check(row, before[at]);
    }
    if (after == before) return;
    history_.push(new ChangeValue<std::vector<bool>>(
        name, [this](const std::vector<bool>& checks) { takeChecks(checks); }, before, std::move(after)));
}

void ImageListController::takeChecks(const std::vector<bool>& checks) {
    const std::vector<bool> before = model_.checks();
    for (int row = 0; row < count(); ++row) {
        const auto at = static_cast<std::size_t>(row);
        if (checks[at] == before[at] || isShown(row)) continue;
        showAllPhotos();
        break;
    }
    model_.setChecks(checks);
}

void ImageListController::RemoveSelectedImage() {
    std::vector<int> rows;
    for (const QModelIndex& index : selection_->selectedIndexes()) rows.push_back(index.row());
    removeRows(tr("Remove %Ln Photo(s)", nullptr, static_cast<int>(rows.size())), rows);
}

void ImageListController::RemoveImage(int row) {
    removeRows(tr("Remove Photo"), {row});
}

void ImageListController::RemoveAllImages() {
    removeRows(tr("Remove All Photos"), shownRows());
}

void ImageListController::removeRows(const QString& name, std::vector<int> rows) {
    std::sort(rows.begin(), rows.end());
    ImageList::Placed photos;
    for (const int row : rows) {
        if (row < 0 || row >= count() || !isShown(row)) continue;
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
    const bool isSeen = std::all_of(photos.images.begin(), photos.images.end(), [this](const Image& photo) {
        return fits(photo, filter_) && isCalled(photo, soughtName_);
    });
    if (!isSeen) showAllPhotos();
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
    const bool isSeen = std::all_of(rows.begin(), rows.end(),
                                    [this](std::size_t row) { return isShown(static_cast<int>(row)); });
    model_.take(rows);
    if (isSeen) {
        showPhotos(filter_);
    } else {
        showAllPhotos();
    }
    // The row that took the place of the first one removed, or the new last row.
    selectRow(std::min(static_cast<int>(rows.front()), count() - 1));
}

void ImageListController::sortPhotos(const QString& name, const PhotoOrder& order) {
    if (std::is_sorted(order.begin(), order.end())) return;
    history_.push(new ChangeValue<PhotoOrder>(
        name,
        [this](const PhotoOrder& wanted) {
            model_.reorder(wanted);
            SelectImage();
        },
        inverseOf(order), order));
}

void ImageListController::step(int photos) {
    const int direction = photos < 0 ? -1 : 1;
    int left = std::abs(photos);
    int target = selectedRow();
    for (int row = target + direction; left > 0 && row >= 0 && row < count(); row += direction) {
        if (!isShown(row)) continue;
        target = row;
        --left;
    }
    if (target >= 0 && target != selectedRow()) selectRow(target);
}

void ImageListController::ChangeImage(const QString& row) {
    selectRow(row.toInt());
}

void ImageListController::selectRow(int row) {
    if (row < 0 || row >= count()) {
        selection_->clear();
        return;
    }
    const QModelIndex index = model_.index(shownRowNear(row));
    const bool wasCurrent = selection_->currentIndex() == index;
    selection_->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (wasCurrent) SelectImage();
}

// The first row from `row` on that is shown, or the last one above it.
int ImageListController::shownRowNear(int row) const {
    for (int below = row; below < count(); ++below) {
        if (isShown(below)) return below;
    }
    for (int above = std::min(row, count()) - 1; above >= 0; --above) {
        if (isShown(above)) return above;
    }
    return -1;
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
        Q_EMIT alert(Words::tr("Watermark Error"), error);
    }
}

}  // namespace zelto
