// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/metadata_queue.h"

#include "platform/file_identity.h"

#include <QLoggingCategory>

#include <algorithm>
#include <exception>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(metadataLog, "zelto.metadata")

// Requests waiting for a thread before it is worth starting another: the program a new one needs takes as long to
// start as this many requests take.
constexpr std::size_t QueuedPerThread = 16;

}  // namespace

MetadataQueue::MetadataQueue(int threads, Transfer transfer)
    : mostThreads_(static_cast<std::size_t>(std::max(threads, 1))), transfer_(std::move(transfer)) {}

MetadataQueue::~MetadataQueue() {
    settle();
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
}

void MetadataQueue::add(MetadataRequest request, std::optional<KeptFile> keptSource) {
    FileSet files;
    files.insert(fileIdentity(request.output));
    files.insert(fileIdentity(request.source));
    if (keptSource) request.source = keptSource->path();
    std::unique_lock lock(mutex_);
    // Requests may hold files open, so they must not pile up.
    changed_.wait(lock, [this] { return entries_.size() <= mostThreads_ * (QueuedPerThread + 1); });
    entries_.push_back({std::move(request), std::move(keptSource), std::move(files), false});
    const bool isBehind = entries_.size() > threads_.size() * (QueuedPerThread + 1);
    if (threads_.empty() || (isBehind && threads_.size() < mostThreads_)) {
        threads_.emplace_back([this] { work(); });
    }
    changed_.notify_all();
}

void MetadataQueue::waitFor(const QString& path) {
    std::unique_lock lock(mutex_);
    if (entries_.empty()) return;
    const FileIdentity file = fileIdentity(path);
    changed_.wait(lock, [&] {
        return std::none_of(entries_.begin(), entries_.end(),
                            [&](const Entry& entry) { return entry.files.contains(file); });
    });
}

void MetadataQueue::settle() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return entries_.empty(); });
    if (std::exchange(failures_, 0) == 0) return;
    qCWarning(metadataLog, "metadata could not be carried into every output, the first time because: %s",
              qUtf8Printable(firstFailure_));
}

void MetadataQueue::work() {
    std::unique_lock lock(mutex_);
    while (true) {
        const auto next =
            std::find_if(entries_.begin(), entries_.end(), [](const Entry& entry) { return !entry.begun; });
        if (next == entries_.end()) {
            if (ending_) return;
            changed_.wait(lock);
            continue;
        }
        next->begun = true;
        lock.unlock();
        Result<void> done;
        try {
            done = transfer_(next->request);
        } catch (const std::exception& exception) {
            done = fail(ErrorCode::ProgramFailed, QString::fromLocal8Bit(exception.what()));
        }
        lock.lock();
        if (!done && failures_++ == 0) firstFailure_ = done.error().message;
        entries_.erase(next);
        changed_.notify_all();
    }
}

}  // namespace zelto
