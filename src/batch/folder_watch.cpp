// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/folder_watch.h"

#include "platform/path_parts.h"
#include "platform/words.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace zelto {
namespace {

using namespace std::chrono_literals;

// How long nothing must happen to a photo that was closed or moved in.
constexpr auto Quiet = 500ms;
// The same for one that was found in a list, where nobody has told that it is closed.
constexpr std::chrono::milliseconds QuietWhenListed = 2s;
// For one that is being written. Closing it comes first, unless that happens where the system does not see it.
constexpr auto QuietWhileOpen = 5min;
constexpr auto ListInterval = 10s;
constexpr auto FirstPause = 5s;
constexpr auto LongestPause = 5min;

constexpr std::uint32_t FolderEvents = IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM |
                                       IN_DELETE | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

// File systems on which others may write without this machine's knowing: NFS, SMB (three numbers), 9P, Ceph, AFS (two),
// FUSE, those of clusters (Lustre, GPFS, BeeGFS, OCFS2, GFS2), and the shared folders of virtual machines (three).
constexpr std::array<std::uint32_t, 17> SharedFileSystems = {
    0x6969,     0x517B,     0xFF534D42, 0xFE534D42, 0x01021997, 0x00C36400,
    0x5346414F, 0x6B414653, 0x65735546, 0x0BD00BD0, 0x47504653, 0x19830326,
    0x7461636F, 0x01161970, 0x786F4256, 0xBACBACBC, 0x7C7C6673};

bool isShared(const QString& folder) {
    struct statfs system {};
    if (::statfs(QFile::encodeName(folder).constData(), &system) != 0) return false;
    const auto type = static_cast<std::uint32_t>(system.f_type);
    return std::find(SharedFileSystems.begin(), SharedFileSystems.end(), type) != SharedFileSystems.end();
}

bool isInside(const QString& path, const QString& folder) {
    return path == folder || path.startsWith(folder + QLatin1Char('/'));
}

}  // namespace

FolderWatch::FolderWatch(WatchedFolders folders, Clock::time_point now)
    : wanted_(std::move(folders)), events_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)), nextList_(now) {
    if (events_ < 0) listsAgain_ = true;
    listAll(now);
}

FolderWatch::~FolderWatch() {
    if (events_ >= 0) ::close(events_);
}

std::optional<FolderWatch::Stamp> FolderWatch::stampOf(const QString& path) {
    struct stat file {};
    if (::stat(QFile::encodeName(path).constData(), &file) != 0 || !S_ISREG(file.st_mode))
        return std::nullopt;
    constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
    return Stamp{file.st_size, file.st_mtim.tv_sec * NanosecondsPerSecond + file.st_mtim.tv_nsec,
                 file.st_ino};
}

void FolderWatch::tell(ScanProblem problem) {
    constexpr qsizetype MostRemembered = 1000;
    if (told_.size() >= MostRemembered) told_.clear();
    const QString key = problem.path + QLatin1Char('\n') + problem.text;
    if (told_.contains(key)) return;
    told_.insert(key);
    problems_.push_back(std::move(problem));
}

// Hidden files are what programs keep while they write, or beside photos.
bool FolderWatch::isWanted(const QString& name) const {
    return !name.startsWith(QLatin1Char('.')) && isScannedName(name, wanted_.extensionList);
}

std::vector<ScanProblem> FolderWatch::takeProblems() {
    return std::exchange(problems_, {});
}

// Asked each time, as the folder may be made, or made a link, at any moment.
bool FolderWatch::isPassedOver(const QString& folder) const {
    const QString passedOver = QFileInfo(wanted_.passedOver).canonicalFilePath();
    return !passedOver.isEmpty() && isInside(QFileInfo(folder).canonicalFilePath(), passedOver);
}

// Lists every folder that was named, and with it finds those that are new or gone.
void FolderWatch::listAll(Clock::time_point now) {
    nextList_ = now + ListInterval;
    done_.removeIf([](const auto& entry) { return !QFileInfo::exists(entry.key()); });
    for (const QString& folder : wanted_.folders) {
        if (QFileInfo(folder).isDir()) {
            if (missing_.removeAll(folder) > 0) told_.clear();
            addFolder(folder, now);
        } else if (!missing_.contains(folder)) {
            missing_.append(folder);
            forgetFolder(folder);
            tell({folder, Words::tr("the watched folder is gone; waiting for it to come back")});
        }
    }
}

void FolderWatch::addFolder(const QString& folder, Clock::time_point now) {
    if (isPassedOver(folder)) return;
    if (isShared(folder)) listsAgain_ = true;
    // First watched, then listed: nothing slips through between the two.
    const int number =
        events_ < 0 ? -1 : ::inotify_add_watch(events_, QFile::encodeName(folder).constData(), FolderEvents);
    if (number >= 0) {
        folders_.insert(number, folder);
        numbers_.insert(folder, number);
    } else if (events_ < 0 || errno == ENOSPC || errno == ENOMEM) {
        listsAgain_ = true;
        const auto limit =
            QLatin1String(events_ < 0 ? "fs.inotify.max_user_instances" : "fs.inotify.max_user_watches");
        // Once: there may be thousands of folders.
        if (!std::exchange(hasToldOfLimit_, true)) {
            tell(
                {folder,
                 Words::tr("the system tells of changes in no more folders; they are listed every 10 seconds "
                           "instead (%1 says how many there may be)")
                     .arg(limit)});
        }
    }
    listFolder(folder, now);
}

void FolderWatch::listFolder(const QString& folder, Clock::time_point now) {
    const Result<FolderScan> scan = scanFolder(folder, false, wanted_.extensionList);
    if (!scan) {
        tell({folder, scan.error().message});
        return;
    }
    for (const ScanProblem& problem : scan->problems) tell(problem);
    for (const QString& photo : scan->photos) {
        if (!isWanted(lastPathComponent(photo))) continue;
        const std::optional<Stamp> stamp = stampOf(photo);
        if (!stamp || done_.value(photo) == *stamp || pending_.contains(photo)) continue;
        // Where the system tells of every write, an old file is a whole one. Elsewhere its time may be another
        // clock's, and only waiting shows that nobody writes.
        const auto age =
            std::chrono::system_clock::now().time_since_epoch() - std::chrono::nanoseconds(stamp->modified);
        const bool isOld = age > QuietWhenListed || age < 0s;
        expect(photo, isOld && !listsAgain_ ? now : now + QuietWhenListed);
        pending_[photo].stamp = stamp;
    }
    if (!wanted_.includeSubFolders) return;
    const QDir::Filters filters = QDir::Dirs | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot;
    for (const QString& name : QDir(folder).entryList(filters, QDir::Name))
        addFolder(joinedPath(folder, name), now);
}

void FolderWatch::forgetFolder(const QString& folder) {
    for (auto entry = numbers_.begin(); entry != numbers_.end();) {
        if (isInside(entry.key(), folder)) {
            ::inotify_rm_watch(events_, entry.value());
            folders_.remove(entry.value());
            entry = numbers_.erase(entry);
        } else {
            ++entry;
        }
    }
    const auto lies = [&](const auto& entry) { return isInside(entry.key(), folder); };
    pending_.removeIf(lies);
    done_.removeIf(lies);
}

void FolderWatch::look(Clock::time_point now) {
    // Events are laid out as the system has them in memory.
    alignas(inotify_event) std::array<char, 65'536> buffer;
    while (events_ >= 0) {
        const ssize_t size = ::read(events_, buffer.data(), buffer.size());
        if (size < 0 && errno == EINTR) continue;
        if (size <= 0) break;
        for (ssize_t at = 0; at < size;) {
            const char* const event = buffer.data() + at;
            take(event, now);
            at += static_cast<ssize_t>(sizeof(inotify_event) +
                                       reinterpret_cast<const inotify_event*>(event)->len);
        }
    }
    if (now >= nextList_ && (listsAgain_ || !missing_.isEmpty())) listAll(now);
}

void FolderWatch::take(const char* bytes, Clock::time_point now) {
    const auto& event = *reinterpret_cast<const inotify_event*>(bytes);
    if ((event.mask & IN_Q_OVERFLOW) != 0) {
        // That a photo was closed may be among what is lost.
        for (Pending& pending : pending_)
            pending.due = std::min<Clock::time_point>(pending.due, now + QuietWhenListed);
        listAll(now);
        return;
    }
    const QString folder = folders_.value(event.wd);
    if (folder.isEmpty()) return;
    if ((event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT)) != 0) {
        // What is mounted there next has no events before it is listed.
        if ((event.mask & IN_UNMOUNT) != 0) listsAgain_ = true;
        forgetFolder(folder);
        if (wanted_.folders.contains(folder)) listAll(now);
        return;
    }
    if (event.len == 0) return;
    const QByteArray name(bytes + sizeof(inotify_event));
    const QString path = joinedPath(folder, QFile::decodeName(name));
    if ((event.mask & IN_ISDIR) == 0) {
        if (!isWanted(lastPathComponent(path))) return;
        if (QFile::encodeName(QFile::decodeName(name)) == name) {
            noteFile(path, event.mask, now);
        } else {
            tell(nameIsNoText(path));
        }
    } else if (wanted_.includeSubFolders) {
        if ((event.mask & (IN_CREATE | IN_MOVED_TO)) != 0) addFolder(path, now);
        if ((event.mask & (IN_DELETE | IN_MOVED_FROM)) != 0) forgetFolder(path);
    }
}

void FolderWatch::noteFile(const QString& path, std::uint32_t what, Clock::time_point now) {
    if ((what & (IN_DELETE | IN_MOVED_FROM)) != 0) {
        pending_.remove(path);
        done_.remove(path);
        return;
    }
    // A second name or a link of a file is made, not written: nobody will close it.
    const QFileInfo file(path);
    struct stat entry {};
    const bool isWhole = (what & (IN_CLOSE_WRITE | IN_MOVED_TO)) != 0 || file.isSymLink() ||
                         ((what & IN_CREATE) != 0 &&
                          ::stat(QFile::encodeName(path).constData(), &entry) == 0 && entry.st_nlink > 1);
    pending_[path].tries = 0;
    expect(path, now + (isWhole ? Clock::duration(Quiet) : Clock::duration(QuietWhileOpen)));
}

void FolderWatch::expect(const QString& path, Clock::time_point due) {
    Pending& pending = pending_[path];
    if (pending.order == 0) pending.order = ++arrivals_;
    pending.due = due;
    pending.stamp = stampOf(path);
}

std::vector<FolderWatch::Arrival> FolderWatch::takeReady(std::size_t most, Clock::time_point now) {
    std::vector<std::pair<std::uint64_t, Arrival>> ready;
    for (auto entry = pending_.begin(); entry != pending_.end();) {
        Pending& pending = entry.value();
        if (pending.due > now) {
            ++entry;
            continue;
        }
        const QString& path = entry.key();
        const std::optional<Stamp> stamp = stampOf(path);
        if (stamp && stamp != pending.stamp) {
            pending.stamp = stamp;
            pending.due = now + (listsAgain_ ? QuietWhenListed : Quiet);
            ++entry;
            continue;
        }
        // An empty file is the beginning of one. One that was only opened, or has lost its old name, is none that is
        // new.
        const auto done = done_.constFind(path);
        const bool isNew = stamp && stamp->size > 0 && (done == done_.cend() || *done != *stamp);
        if (!isNew) {
            entry = pending_.erase(entry);
            continue;
        }
        ready.emplace_back(pending.order, Arrival{path, pending.tries});
        ++entry;
    }
    std::sort(ready.begin(), ready.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    if (ready.size() > most) ready.resize(most);
    std::vector<Arrival> taken;
    for (auto& [order, arrival] : ready) {
        done_.insert(arrival.photo, *pending_.take(arrival.photo).stamp);
        taken.push_back(std::move(arrival));
    }
    return taken;
}

void FolderWatch::tryAgain(const Arrival& arrival, Clock::time_point now) {
    done_.remove(arrival.photo);
    if (pending_.contains(arrival.photo)) return;  // it is written again already
    Clock::duration pause = FirstPause;
    for (int i = 0; i < arrival.tries && pause < LongestPause; ++i) pause *= 2;
    expect(arrival.photo, now + std::min<Clock::duration>(pause, LongestPause));
    pending_[arrival.photo].tries = arrival.tries + 1;
}

std::optional<FolderWatch::Clock::time_point> FolderWatch::nextLook() const {
    std::optional<Clock::time_point> next;
    if (listsAgain_ || !missing_.isEmpty()) next = nextList_;
    for (const Pending& pending : pending_) next = next ? std::min(*next, pending.due) : pending.due;
    return next;
}

}  // namespace zelto
