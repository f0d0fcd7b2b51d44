// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/photo_cache.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace zelto {
namespace {

constexpr qint64 BytesPerPixel = 4;

}  // namespace

PhotoRequest withoutWatermarks(const PhotoRequest& request) {
    WatermarkStack stack;
    stack.Effects = request.stack->Effects;
    stack.SelectedFilter = request.stack->SelectedFilter;
    PhotoRequest bare = request;
    bare.stack = std::make_shared<const WatermarkStack>(std::move(stack));
    return bare;
}

PhotoCache::Source::Source(const PhotoRequest& request)
    : path(request.path),
      filter(request.stack->SelectedFilter),
      effects(request.stack->Effects),
      final(request.final) {
    const QFileInfo file(path);
    modified = file.lastModified();
    size = file.size();
}

bool PhotoCache::Source::isSameFile(const Source& other) const {
    return path == other.path && modified == other.modified && size == other.size;
}

qint64 PhotoCache::Entry::bytes() const {
    const qint64 sceneBytes = scene ? scene->picture.sizeInBytes() : 0;
    const bool shared = scene && scene->picture.cacheKey() == photo.image.cacheKey();
    return sceneBytes + (shared ? 0 : photo.image.sizeInBytes());
}

Result<std::shared_ptr<const PhotoScene>> PhotoCache::get(const PhotoRequest& request) {
    return make(request, true);
}

std::shared_ptr<const PhotoScene> PhotoCache::find(const PhotoRequest& request) {
    const Source source(request);
    const std::lock_guard lock(mutex_);
    const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return !each.busy && each.source == source; });
    if (entry == entries_.end()) return nullptr;
    entries_.splice(entries_.begin(), entries_, entry);
    return entries_.front().scene;
}

void PhotoCache::prefetch(const PhotoRequest& request) {
    const Result<QSize> size = readPictureSize(request.path);
    if (!size) return;
    // The photo on show and its neighbours on both sides are to fit together.
    constexpr qint64 Places = 3;
    const qint64 bytes = BytesPerPixel * size->width() * size->height();
    if (bytes * Places <= budget_) make(request, false);
}

void PhotoCache::clear() {
    const std::lock_guard lock(mutex_);
    entries_.remove_if([](const Entry& entry) { return !entry.busy; });
}

Result<std::shared_ptr<const PhotoScene>> PhotoCache::make(const PhotoRequest& request, bool keepPhoto) {
    const Source source(request);
    std::unique_lock lock(mutex_);
    Picture photo;
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        if (entry->source.path != source.path) {
            ++entry;
        } else if (entry->busy) {
            ready_.wait(lock);
            entry = entries_.begin();
        } else if (entry->source == source) {
            entries_.splice(entries_.begin(), entries_, entry);
            return entries_.front().scene;
        } else {
            if (entry->source.isSameFile(source)) photo = std::move(entry->photo);
            entry = entries_.erase(entry);
        }
    }
    const auto mine = entries_.insert(entries_.begin(), Entry{.source = source, .photo = {}, .scene = {}});
    lock.unlock();

    std::optional<Error> error;
    if (photo.image.isNull()) {
        Result<Picture> read = readPicture(request.path);
        if (read) {
            photo = std::move(*read);
        } else {
            error = std::move(read.error());
        }
    }
    std::shared_ptr<const PhotoScene> scene;
    Picture kept;
    if (!error) {
        // A photo that is neither filtered nor framed shares its pixels with the scene.
        const bool isPlain = source.filter == 0 && !source.effects;
        if (keepPhoto || isPlain) kept = photo;
        Result<PhotoScene> built = buildPhotoScene(withoutWatermarks(request), std::move(photo));
        if (built) {
            scene = std::make_shared<const PhotoScene>(std::move(*built));
        } else {
            error = std::move(built.error());
        }
    }

    lock.lock();
    if (error) {
        entries_.erase(mine);
    } else {
        mine->scene = scene;
        mine->photo = std::move(kept);
        mine->busy = false;
        dropOldest();
    }
    lock.unlock();
    ready_.notify_all();
    if (error) return tl::unexpected<Error>(std::move(*error));
    return scene;
}

void PhotoCache::dropOldest() {
    qint64 bytes = 0;
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        bytes += entry->bytes();
        const bool isFirst = entry == entries_.begin();
        entry = isFirst || entry->busy || bytes <= budget_ ? std::next(entry) : entries_.erase(entry);
    }
}

}  // namespace zelto
