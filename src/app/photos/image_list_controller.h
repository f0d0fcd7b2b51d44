// SPDX-License-Identifier: GPL-3.0-or-later
// What can be done to the photo list: adding, removing, checking, sorting and selecting photos, each an undo step,
// choosing which of them are shown, and telling whoever shows the selected photo that it must be shown anew. The rules
// of the list itself are the batch folder's, its looks are the view's. Main thread only.
#pragma once

#include "app/photos/photo_list_model.h"

#include <QItemSelectionModel>
#include <QObject>
#include <QStringList>
#include <QUndoStack>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace zelto {

// Which photos the list shows, by how the last run left them.
enum class PhotoFilter { All, FailedOrWarned, Failed, Warned };

class ImageListController : public QObject {
    Q_OBJECT

  public:
    // The changes of the list become steps of `history`, which outlives the controller.
    explicit ImageListController(QUndoStack& history, QObject* parent = nullptr);

    PhotoListModel& model() { return model_; }
    const PhotoListModel& model() const { return model_; }
    // Which rows are selected; the current one is the photo on the preview.
    QItemSelectionModel& selection() { return *selection_; }

    const std::vector<Image>& images() const { return model_.images(); }
    int count() const { return model_.rowCount(); }
    int selectedRow() const;  // -1 for none
    QString selectedPath() const;

    // Adds the photo unless it is in the list already.
    void AddImage(const QString& path);
    // The same for many, as one step.
    void AddImages(const QStringList& paths);
    // The same, and selects what has come in, the first of it to be shown; where nothing is new, those that were there.
    void bring(const QStringList& paths);
    bool CheckIfImageExists(const QString& path) const { return model_.list().CheckIfImageExists(path); }
    void addImagesFromUrls(const QList<QUrl>& urls);

    // ---- what is shown
    //
    // Photos that are not shown are never selected, checked or removed; steps that are undone or done again show all
    // photos first where they reach others. The list goes back to all when none is left that `filter` lets through.
    void showPhotos(PhotoFilter filter);
    PhotoFilter filter() const { return filter_; }
    // Shows, of those, only photos with this in their file names, capitals or not. Where there is none, the photo on
    // show stays on show.
    void findPhotos(const QString& name);
    const QString& soughtName() const { return soughtName_; }
    void showAllPhotos();
    bool showsAllPhotos() const { return filter_ == PhotoFilter::All && soughtName_.isEmpty(); }
    bool isShown(int row) const;
    std::vector<int> shownRows() const;  // ascending
    bool hasPhotosFor(PhotoFilter filter) const;

    // ---- changes

    void CheckAllImages();
    void UncheckAllImages();
    void ToggleCheck();
    void setApplyWatermark(const std::vector<int>& rows, bool apply);

    void RemoveSelectedImage();
    void RemoveImage(int row);
    void RemoveAllImages();

    // Puts the list, and with it the run, into another order.
    void sortPhotos(const QString& name, const PhotoOrder& order);

    // Goes on by so many of the photos that are shown.
    void step(int photos);
    // Selects the row whose number `row` spells, alone.
    void ChangeImage(const QString& row);
    // Has the selected photo shown anew.
    void SelectImage();
    // Tells what went wrong with the photo of a row, if anything did.
    void ImageListDoubleClicked(int row);

  Q_SIGNALS:
    // The photo of `row` is to be shown, though it may be the one that is on show; -1 for none.
    void photoSelected(int row);
    // The user is to be told something.
    void alert(const QString& title, const QString& text);
    // The same, in passing.
    void noted(const QString& text);
    // Other photos may be shown.
    void filtered();

  private:
    class ShownSelection;

    void setChecks(const QString& name, const std::function<bool(int row, bool checked)>& check);
    void removeRows(const QString& name, std::vector<int> rows);
    void insertPhotos(const ImageList::Placed& photos);
    void takePhotos(const std::vector<std::size_t>& rows);
    void takeChecks(const std::vector<bool>& checks);
    void refilter();
    void selectRow(int row);
    int shownRowNear(int row) const;

    QUndoStack& history_;
    PhotoListModel model_;
    PhotoFilter filter_ = PhotoFilter::All;
    QString soughtName_;
    std::unique_ptr<QItemSelectionModel> selection_;
};

}  // namespace zelto
