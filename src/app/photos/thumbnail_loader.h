// SPDX-License-Identifier: GPL-3.0-or-later
// Small pictures of photos, made in the background for those that are seen and kept as long as there is room.
// Asking for others drops what has not been begun, so that scrolling through a long list never leaves work
// behind. Main thread only.
#pragma once

#include "app/common/newest_worker.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QStringList>

namespace zelto {

class ThumbnailLoader : public QObject {
    Q_OBJECT

  public:
    explicit ThumbnailLoader(QObject* parent = nullptr);
    ~ThumbnailLoader() override;

    // The picture of the photo at `path`, no larger than the size last wanted; null before it is made, and
    // for a file that is not a picture.
    QImage thumbnail(const QString& path) const;
    // Whether the file has been looked at and is not a picture.
    bool isBroken(const QString& path) const;

    // These photos are seen now; `size` in device pixels bounds their thumbnails.
    void want(const QStringList& paths, QSize size);

  Q_SIGNALS:
    void made(const QString& path);

  private:
    struct Job {
        QStringList paths;
        QSize size;
    };

    void make(const Job& job);
    void take(const QString& path, const QImage& picture);

    QCache<QString, QImage> cache_;
    QSize size_;
    NewestWorker<Job> worker_;
};

}  // namespace zelto
