// SPDX-License-Identifier: GPL-3.0-or-later
// Carries metadata into written outputs on threads of its own, so that a run need not wait for each, and knows which
// files are still being worked on. Any thread.
#pragma once

#include "metadata/metadata_arguments.h"
#include "platform/file_identity.h"
#include "platform/kept_file.h"
#include "platform/result.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace zelto {

class MetadataQueue {
  public:
    // Does the work of one request; called by several threads at once.
    using Transfer = std::function<Result<void>(const MetadataRequest&)>;

    // At most `threads` requests are worked on at a time.
    MetadataQueue(int threads, Transfer transfer);
    // Completes what was added.
    ~MetadataQueue();

    // Waits while many requests are queued already. `keptSource` is the source as it was before the output replaced
    // it. A request that fails leaves its output as it was written; that is told to the log by settle().
    void add(MetadataRequest request, std::optional<KeptFile> keptSource = {});

    // Returns when no request reads or writes the file at `path` any more.
    void waitFor(const QString& path);

    // Returns when every request is done.
    void settle();

  private:
    struct Entry {
        MetadataRequest request;
        std::optional<KeptFile> keptSource;
        FileSet files;
        bool begun = false;
    };

    void work();

    const std::size_t mostThreads_;
    const Transfer transfer_;

    std::mutex mutex_;  // guards everything below
    std::condition_variable changed_;
    std::list<Entry> entries_;  // not done yet, in the order they were added
    bool ending_ = false;
    int failures_ = 0;  // since the last settle()
    QString firstFailure_;
    std::vector<std::thread> threads_;
};

}  // namespace zelto
