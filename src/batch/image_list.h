// SPDX-License-Identifier: GPL-3.0-or-later
// The list of photos a run works on, in the order they were added unless the user asks for another, and the folders
// they came from. Paths are compared as plain text and nothing is looked up on disk, so a path need not be that of a
// photo. One thread at a time.
#pragma once

#include "batch/destination_map.h"
#include "batch/photo_order.h"
#include "records/image.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace zelto {

class ImageList {
  public:
    // Appends the photo and notes its folder. False, and nothing done, when the very same path is in the
    // list.
    bool AddImage(const QString& path);
    // Constant time.
    bool CheckIfImageExists(const QString& path) const { return paths_.contains(path); }

    // Photos and the rows they have in the list, ascending.
    struct Placed {
        std::vector<std::size_t> rows;
        std::vector<Image> images;
    };
    // Takes the photos of `rows` (ascending) out, and puts photos (none of them in the list) back where they
    // were. Linear in the length of the list, however many they are.
    Placed takeImages(const std::vector<std::size_t>& rows);
    void insertImages(const Placed& photos);

    // Puts the photos into another order.
    void reorder(const PhotoOrder& order);

    void setApplyWatermark(std::size_t row, bool apply) { images_.at(row).ApplyWatermark = apply; }

    // How a run left a photo; an empty `errorMessage` keeps the text of an earlier failure.
    void setOutcome(std::size_t row, PhotoStatus status, const QString& errorMessage,
                    const QStringList& warnings = {});

    const std::vector<Image>& images() const { return images_; }
    // Every folder a photo was ever added from, without destinations.
    const FolderDestinations& InputOutputDictionary() const { return folders_; }

  private:
    void note(const QString& path);

    std::vector<Image> images_;
    QSet<QString> paths_;
    FolderDestinations folders_;
};

}  // namespace zelto
