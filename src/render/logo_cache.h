// SPDX-License-Identifier: GPL-3.0-or-later
// Logos kept between the photos of a run, so that a file is read, treated and resized once for hundreds of photos. The
// run or the preview owns a cache and hands it to each scene. Safe for threads: those that want the same picture at the
// same time wait for the one that makes it.
#pragma once

#include "records/watermark.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <functional>
#include <future>
#include <list>
#include <mutex>
#include <optional>

namespace zelto {

// Everything a finished logo picture depends on.
struct LogoKey {
    LogoBytes data;  // the bytes of the file, where the record carries them
    QString path;    // the file; its size and time tell when it has changed
    qint64 fileSize = -1;
    qint64 fileTime = 0;  // milliseconds
    std::optional<Color> removedColor;
    bool blackAndWhite = false;
    double opacity = 1.0;
    QSize size;  // pixels; empty for the size it was loaded with

    bool operator==(const LogoKey&) const = default;
};

class LogoCache {
  public:
    // Keeps pictures of up to `maximumBytes` in all, those used last.
    explicit LogoCache(qint64 maximumBytes = qint64{256} << 20);

    // The picture of `key`, made by `make` where it is not kept. `make` may ask for pictures of other keys.
    QImage picture(const LogoKey& key, const std::function<QImage()>& make);

  private:
    struct Entry {
        LogoKey key;
        std::shared_future<QImage> picture;
        qint64 bytes = 0;  // 0 while it is being made
    };

    void settle(const LogoKey& key, qint64 bytes);
    void drop(const LogoKey& key);

    const qint64 maximumBytes_;
    std::mutex mutex_;
    std::list<Entry> entries_;  // used last first
};

}  // namespace zelto
