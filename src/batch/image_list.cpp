// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/image_list.h"

#include "batch/path_parts.h"

#include <iterator>

namespace zelto {

bool ImageList::AddImage(const QString& path) {
    if (CheckIfImageExists(path)) return false;
    images_.emplace_back(path);
    paths_.insert(path);
    const QString folder = withoutLastPathComponent(path);
    if (!folders_.contains(folder)) folders_.insert(folder, QLatin1String(""));
    return true;
}

std::optional<std::size_t> ImageList::RemoveImage(std::size_t row) {
    paths_.remove(images_.at(row).ImagePath);
    images_.erase(std::next(images_.begin(), static_cast<std::ptrdiff_t>(row)));
    if (images_.empty()) return std::nullopt;
    return std::min(row, images_.size() - 1);
}

void ImageList::RemoveAllImages() {
    images_.clear();
    paths_.clear();
}

void ImageList::CheckAllImages() {
    for (Image& image : images_) image.ApplyWatermark = true;
}

void ImageList::UncheckAllImages() {
    for (Image& image : images_) image.ApplyWatermark = false;
}

void ImageList::ToggleCheck() {
    for (Image& image : images_) image.ApplyWatermark = !image.ApplyWatermark;
}

void ImageList::markUnprocessed() {
    for (Image& image : images_) image.StsImage = statusImage(PhotoStatus::NotProcessed);
}

void ImageList::setOutcome(std::size_t row, PhotoStatus status, const QString& errorMessage) {
    Image& image = images_.at(row);
    image.StsImage = statusImage(status);
    if (!errorMessage.isEmpty()) image.ErrorMessage = errorMessage;
}

}  // namespace zelto
