// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/image_list.h"

#include "platform/path_parts.h"

#include <iterator>

namespace zelto {

bool ImageList::AddImage(const QString& path) {
    if (CheckIfImageExists(path)) return false;
    images_.emplace_back(path);
    note(path);
    return true;
}

void ImageList::note(const QString& path) {
    paths_.insert(path);
    const QString folder = withoutLastPathComponent(path);
    if (!folders_.contains(folder)) folders_.insert(folder, QLatin1String(""));
}

ImageList::Placed ImageList::takeImages(const std::vector<std::size_t>& rows) {
    Placed taken;
    std::vector<Image> kept;
    auto next = rows.begin();
    for (std::size_t row = 0; row < images_.size(); ++row) {
        if (next == rows.end() || *next != row) {
            kept.push_back(std::move(images_[row]));
            continue;
        }
        paths_.remove(images_[row].ImagePath);
        taken.rows.push_back(row);
        taken.images.push_back(std::move(images_[row]));
        ++next;
    }
    images_ = std::move(kept);
    return taken;
}

void ImageList::insertImages(const Placed& photos) {
    std::vector<Image> all;
    all.reserve(images_.size() + photos.images.size());
    auto old = std::make_move_iterator(images_.begin());
    for (std::size_t i = 0; i < photos.images.size(); ++i) {
        while (all.size() < photos.rows.at(i)) all.push_back(*old++);
        all.push_back(photos.images[i]);
        note(photos.images[i].ImagePath);
    }
    all.insert(all.end(), old, std::make_move_iterator(images_.end()));
    images_ = std::move(all);
}

void ImageList::reorder(const PhotoOrder& order) {
    std::vector<Image> images;
    images.reserve(images_.size());
    for (const std::size_t row : order) images.push_back(std::move(images_.at(row)));
    images_ = std::move(images);
}

void ImageList::setOutcome(std::size_t row, PhotoStatus status, const QString& errorMessage,
                           const QStringList& warnings) {
    Image& image = images_.at(row);
    image.Status = status;
    image.Warnings = warnings;
    if (!errorMessage.isEmpty()) image.ErrorMessage = errorMessage;
}

}  // namespace zelto
