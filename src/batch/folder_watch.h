// SPDX-License-Identifier: GPL-3.0-or-later
// The photos that arrive in folders: each is given out once it is written whole, which is when whoever wrote it has
// closed it, or moved it in, and nothing has happened to it for a moment; and again whenever it has been written again.
// Photos that are there at the start are the first. The system tells what happens (inotify); where it does not see
// everything, as on network file systems, or loses track, the folders are listed anew.
//
// What it remembers is bounded by the photos that lie in the folders. One thread at a time.
#pragma once

#include "batch/folder_scan.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace zelto {

struct WatchedFolders {
    QStringList folders;  // absolute paths
    bool includeSubFolders = false;
    QString extensionList;  // see GetExtensionList()
    QString passedOver;     // a folder whose photos are never given out, nor those below it; need not exist
};

class FolderWatch {
  public:
    using Clock = std::chrono::steady_clock;

    // Lists the folders. Where the system refuses to tell of changes, they are listed again and again.
    explicit FolderWatch(WatchedFolders folders, Clock::time_point now = Clock::now());
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    // Can be read from when look() has something to see; -1 where the system tells nothing.
    int descriptor() const { return events_; }

    // Takes note of what has happened up to now.
    void look(Clock::time_point now = Clock::now());

    struct Arrival {
        QString photo;
        int tries = 0;  // how often it has come back by tryAgain()
    };
    // Up to `most` photos that are written whole, in the order in which they arrived.
    std::vector<Arrival> takeReady(std::size_t most, Clock::time_point now = Clock::now());

    // Has an arrival given out once more after a while, which grows from try to try up to five minutes, or sooner if it
    // is written again.
    void tryAgain(const Arrival& arrival, Clock::time_point now = Clock::now());

    // When there may be something to take or to look at without an event.
    std::optional<Clock::time_point> nextLook() const;

    // What the user should know of the folders, each problem once.
    std::vector<ScanProblem> takeProblems();

  private:
    // Which content a file has: it differs where the file was written again.
    struct Stamp {
        std::int64_t size = 0;
        std::int64_t modified = 0;  // nanoseconds
        ino_t inode = 0;

        bool operator==(const Stamp&) const = default;
    };
    struct Pending {
        Clock::time_point due;
        std::optional<Stamp> stamp;  // as it was when it became due
        std::uint64_t order = 0;
        int tries = 0;
    };

    static std::optional<Stamp> stampOf(const QString& path);
    bool isPassedOver(const QString& folder) const;
    void addFolder(const QString& folder, Clock::time_point now);
    void forgetFolder(const QString& folder);
    void listAll(Clock::time_point now);
    void listFolder(const QString& folder, Clock::time_point now);
    void take(const char* event, Clock::time_point now);
    void noteFile(const QString& path, std::uint32_t what, Clock::time_point now);
    void expect(const QString& path, Clock::time_point due);
    bool isWanted(const QString& name) const;
    void tell(ScanProblem problem);

    const WatchedFolders wanted_;
    int events_ = -1;
    QHash<int, QString> folders_;  // by the system's number
    QHash<QString, int> numbers_;
    QStringList missing_;  // of the folders that were named
    bool listsAgain_ = false;
    bool hasToldOfLimit_ = false;
    Clock::time_point nextList_;
    QHash<QString, Pending> pending_;
    QHash<QString, Stamp> done_;
    std::uint64_t arrivals_ = 0;
    std::vector<ScanProblem> problems_;
    QSet<QString> told_;
};

}  // namespace zelto
