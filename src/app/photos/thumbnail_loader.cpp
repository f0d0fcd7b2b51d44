// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/photos/thumbnail_loader.h"

#include "pictures/picture_reader.h"

#include <utility>

namespace zelto {
namespace {

constexpr int CacheKilobytes = 48 * 1024;

QImage thumbnailOf(const QString& path, QSize size) {
    return readThumbnail(path, size)
        .value_or(Picture())
        .image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

}  // namespace

ThumbnailLoader::ThumbnailLoader(QObject* parent)
    : QObject(parent), cache_(CacheKilobytes), worker_([this](const Job& job) { make(job); }) {}

ThumbnailLoader::~ThumbnailLoader() {
    worker_.stop();
}

QImage ThumbnailLoader::thumbnail(const QString& path) const {
    const QImage* picture = cache_.object(path);
    return picture == nullptr ? QImage() : *picture;
}

bool ThumbnailLoader::isBroken(const QString& path) const {
    const QImage* picture = cache_.object(path);
    return picture != nullptr && picture->isNull();
}

void ThumbnailLoader::want(const QStringList& paths, QSize size) {
    if (size != size_) cache_.clear();
    size_ = size;
    Job job{{}, size};
    for (const QString& path : paths) {
        if (!cache_.contains(path)) job.paths.append(path);
    }
    worker_.post(job);
}

void ThumbnailLoader::make(const Job& job) {
    for (const QString& path : job.paths) {
        if (worker_.hasNewer()) return;
        QMetaObject::invokeMethod(
            this,
            [this, path, size = job.size, picture = thumbnailOf(path, job.size)] {
                if (size == size_) take(path, picture);
            },
            Qt::QueuedConnection);
    }
}

void ThumbnailLoader::take(const QString& path, const QImage& picture) {
    const auto kilobytes = static_cast<int>(1 + picture.sizeInBytes() / 1024);
    cache_.insert(path, new QImage(picture), kilobytes);
    Q_EMIT made(path);
}

}  // namespace zelto
