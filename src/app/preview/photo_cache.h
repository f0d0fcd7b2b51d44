// SPDX-License-Identifier: GPL-3.0-or-later
// Photos made ready for the preview: loaded, filtered and framed, without layers. The cache keeps the photo on show and,
// within a budget of bytes, those shown before and those that may be shown next. A photo that several threads want is
// made once. A file that has changed on disk is read again. Any thread.
#pragma once

#include "pictures/picture_reader.h"
#include "render/photo_scene.h"

#include <QDateTime>
#include <QString>

#include <condition_variable>
#include <list>
#include <memory>
#include <mutex>
#include <optional>

namespace zelto {

// The request for the same photo, filter and frame without layers. Any thread.
PhotoRequest withoutWatermarks(const PhotoRequest& request);

class PhotoCache {
  public:
    static constexpr qint64 DefaultBudget = qint64{768} << 20;  // bytes

    explicit PhotoCache(qint64 budget = DefaultBudget) : budget_(budget) {}

    // The scene of `request`, without layers. Error: as readPicture.
    Result<std::shared_ptr<const PhotoScene>> get(const PhotoRequest& request);

    // The same without waiting: null where it has still to be made.
    std::shared_ptr<const PhotoScene> find(const PhotoRequest& request);

    // Makes a photo ready that may be wanted next, unless it is so large that others would be dropped for it.
    void prefetch(const PhotoRequest& request);

    void clear();

  private:
    // What the picture of a scene is made from.
    struct Source {
        QString path;
        QDateTime modified;
        qint64 size = 0;
        int filter = 0;
        std::optional<PhotoEffects> effects;
        bool final = true;

        explicit Source(const PhotoRequest& request);
        bool isSameFile(const Source& other) const;
        bool operator==(const Source&) const = default;
    };
    struct Entry {
        Source source;
        Picture photo;                            // as loaded; none where only the scene is kept
        std::shared_ptr<const PhotoScene> scene;  // none while it is being made
        bool busy = true;

        qint64 bytes() const;
    };

    Result<std::shared_ptr<const PhotoScene>> make(const PhotoRequest& request, bool keepPhoto);
    void dropOldest();

    const qint64 budget_;
    std::mutex mutex_;
    std::condition_variable ready_;
    std::list<Entry> entries_;  // used last first
};

}  // namespace zelto
