// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/photo_filter_box.h"

#include "app/photos/image_list_controller.h"

#include <array>

namespace zelto {
namespace {

// By `PhotoFilter`.
constexpr std::array Choices = {QT_TRANSLATE_NOOP("zelto::PhotoFilterBox", "All Photos"),
                                QT_TRANSLATE_NOOP("zelto::PhotoFilterBox", "Failed or with Warnings"),
                                QT_TRANSLATE_NOOP("zelto::PhotoFilterBox", "Failed"),
                                QT_TRANSLATE_NOOP("zelto::PhotoFilterBox", "With Warnings")};

}  // namespace

PhotoFilterBox::PhotoFilterBox(ImageListController& photos, QWidget* parent)
    : QComboBox(parent), photos_(photos) {
    for (const char* choice : Choices) addItem(tr(choice));
    setAccessibleName(tr("Show"));
    setToolTip(tr("The photos that the list shows"));
    connect(this, &QComboBox::activated, &photos_,
            [this](int choice) { photos_.showPhotos(static_cast<PhotoFilter>(choice)); });
    connect(&photos_, &ImageListController::filtered, this, &PhotoFilterBox::follow);
    const PhotoListModel& rows = photos_.model();
    connect(&rows, &QAbstractItemModel::dataChanged, this, &PhotoFilterBox::follow);
    connect(&rows, &QAbstractItemModel::rowsInserted, this, &PhotoFilterBox::follow);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, &PhotoFilterBox::follow);
    connect(&rows, &QAbstractItemModel::modelReset, this, &PhotoFilterBox::follow);
    follow();
}

void PhotoFilterBox::follow() {
    setCurrentIndex(static_cast<int>(photos_.filter()));
    setVisible(photos_.hasPhotosFor(PhotoFilter::FailedOrWarned));
}

}  // namespace zelto
