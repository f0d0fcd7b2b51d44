// SPDX-License-Identifier: GPL-3.0-or-later
// Small pictures of photos and the sizes of the photos, made in the background for those that are seen and kept as long
// as there is room; a file that has been changed since is looked at again. Asking for others drops what has not been
// begun, so that scrolling through a long list never leaves work behind. Huge photos are worked on apart, so that the
// others do not wait for them. Main thread only.
#pragma once

#include "app/common/newest_worker.h"

#include <QCache>
#include <QImage>
#include <QObject>
#include <QSize>
#include <QStringList>

#include <vector>

namespace zelto {

class ThumbnailLoader : public QObject {
    Q_OBJECT

  public:
    explicit ThumbnailLoader(QObject* parent = nullptr);
    ~ThumbnailLoader() override;

    // The picture of the photo at `path`, no larger than the size last wanted; null before it is made, and
    // for a file that is not a picture.
    QImage thumbnail(const QString& path) const;
    // The photo's own size in upright pixels; invalid before it is known.
    QSize photoSize(const QString& path) const;
    // Whether the file has been looked at and is not a picture.
    bool isBroken(const QString& path) const;
    // Whether it is the preview in a camera's raw file; known once the thumbnail is made.
    bool isRawPreview(const QString& path) const;

    // These photos are seen now; `size` in device pixels bounds their thumbnails.
    void want(const QStringList& paths, QSize size);

  Q_SIGNALS:
    void made(const QString& path);

  private:
    struct Wanted {
        QString path;
        qint64 knownTime = 0;  // of the change that is known
    };

    struct Job {
        std::vector<Wanted> photos;
        QSize size;
    };

    struct Entry {
        QSize photo;
        QImage picture;
        bool isRawPreview = false;
        bool isMade = true;  // else the picture is still to come
        qint64 time = 0;     // when the file was last changed, in milliseconds
    };

    static Entry entryOf(const QString& path, QSize size, QSize photo, qint64 time);
    void make(const Job& job);
    void makeHuge(const Job& job);
    void hand(const QString& path, QSize bound, const Entry& entry);

    QCache<QString, Entry> cache_;
    QSize size_;
    NewestWorker<Job> huge_;
    NewestWorker<Job> worker_;  // fills huge_
};

}  // namespace zelto
