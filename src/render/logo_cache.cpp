// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/logo_cache.h"

#include <algorithm>
#include <utility>

namespace zelto {

LogoCache::LogoCache(qint64 maximumBytes) : maximumBytes_(maximumBytes) {}

QImage LogoCache::picture(const LogoKey& key, const std::function<QImage()>& make) {
    std::promise<QImage> promise;
    std::unique_lock lock(mutex_);
    const auto known = std::ranges::find(entries_, key, &Entry::key);
    if (known != entries_.end()) {
        entries_.splice(entries_.begin(), entries_, known);
        const std::shared_future<QImage> picture = known->picture;
        lock.unlock();
        return picture.get();
    }
    entries_.push_front({key, promise.get_future().share(), 0});
    lock.unlock();
    try {
        QImage made = make();
        promise.set_value(made);
        settle(key, made.sizeInBytes() + key.data.size());
        return made;
    } catch (...) {
        promise.set_exception(std::current_exception());
        drop(key);
        throw;
    }
}

// The newest entry stays whatever its size: it is in use anyway. Entries being made have no size yet and stay
// too.
void LogoCache::settle(const LogoKey& key, qint64 bytes) {
    const std::scoped_lock lock(mutex_);
    const auto made = std::ranges::find(entries_, key, &Entry::key);
    if (made != entries_.end()) made->bytes = bytes;
    qint64 kept = 0;
    for (auto entry = entries_.begin(); entry != entries_.end();) {
        kept += entry->bytes;
        const bool tooMany = kept > maximumBytes_ && entry != entries_.begin() && entry->bytes > 0;
        entry = tooMany ? entries_.erase(entry) : std::next(entry);
    }
}

void LogoCache::drop(const LogoKey& key) {
    const std::scoped_lock lock(mutex_);
    entries_.remove_if([&key](const Entry& entry) { return entry.key == key; });
}

}  // namespace zelto
