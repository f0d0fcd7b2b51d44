// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/thumbnail_loader.h"

#include "app/common/huge_photo.h"
#include "pictures/picture_reader.h"

#include <QDateTime>
#include <QFileInfo>

#include <limits>
#include <utility>

namespace zelto {
namespace {

constexpr int CacheKilobytes = 48 * 1024;

// No file has changed then.
constexpr qint64 Unknown = std::numeric_limits<qint64>::min();

qint64 timeOf(const QString& path) {
    return QFileInfo(path).lastModified().toMSecsSinceEpoch();
}

}  // namespace

ThumbnailLoader::ThumbnailLoader(QObject* parent)
    : QObject(parent),
      cache_(CacheKilobytes),
      huge_([this](const Job& job) { makeHuge(job); },
            [](const Job& waiting, Job newer) {
                if (waiting.size == newer.size)
                    newer.photos.insert(newer.photos.end(), waiting.photos.begin(), waiting.photos.end());
                return newer;
            }),
      worker_([this](const Job& job) { make(job); }) {}

ThumbnailLoader::~ThumbnailLoader() {
    worker_.stop();
    huge_.stop();
}

QImage ThumbnailLoader::thumbnail(const QString& path) const {
    const Entry* entry = cache_.object(path);
    return entry == nullptr ? QImage() : entry->picture;
}

QSize ThumbnailLoader::photoSize(const QString& path) const {
    const Entry* entry = cache_.object(path);
    return entry == nullptr ? QSize() : entry->photo;
}

bool ThumbnailLoader::isBroken(const QString& path) const {
    const Entry* entry = cache_.object(path);
    return entry != nullptr && entry->isMade && entry->picture.isNull();
}

bool ThumbnailLoader::isRawPreview(const QString& path) const {
    const Entry* entry = cache_.object(path);
    return entry != nullptr && entry->isRawPreview;
}

void ThumbnailLoader::want(const QStringList& paths, QSize size) {
    if (size != size_) cache_.clear();
    size_ = size;
    Job job{{}, size};
    for (const QString& path : paths) {
        const Entry* entry = cache_.object(path);
        job.photos.push_back({path, entry == nullptr ? Unknown : entry->time});
    }
    worker_.post(job);
}

void ThumbnailLoader::make(const Job& job) {
    for (const auto& [path, knownTime] : job.photos) {
        if (worker_.hasNewer()) return;
        const qint64 time = timeOf(path);
        if (time == knownTime) continue;
        const QSize photo = readPictureSize(path).value_or(QSize());
        if (isHugePhoto(photo)) {
            hand(path, job.size, {.photo = photo, .picture = {}, .isMade = false, .time = time});
            huge_.post({{{path, time}}, job.size});
        } else {
            hand(path, job.size, entryOf(path, job.size, photo, time));
        }
    }
}

ThumbnailLoader::Entry ThumbnailLoader::entryOf(const QString& path, QSize size, QSize photo, qint64 time) {
    const Picture read = readThumbnail(path, size).value_or(Picture());
    return {.photo = photo,
            .picture = read.image.convertToFormat(QImage::Format_ARGB32_Premultiplied),
            .isRawPreview = read.isRawPreview,
            .time = time};
}

void ThumbnailLoader::makeHuge(const Job& job) {
    for (const auto& [path, time] : job.photos) {
        hand(path, job.size, entryOf(path, job.size, readPictureSize(path).value_or(QSize()), time));
    }
}

void ThumbnailLoader::hand(const QString& path, QSize bound, const Entry& entry) {
    QMetaObject::invokeMethod(
        this,
        [this, path, bound, entry] {
            const Entry* known = cache_.object(path);
            if (bound != size_ || (known != nullptr && known->isMade && known->time == entry.time)) return;
            cache_.insert(path, new Entry(entry), static_cast<int>(1 + entry.picture.sizeInBytes() / 1024));
            Q_EMIT made(path);
        },
        Qt::QueuedConnection);
}

}  // namespace zelto
