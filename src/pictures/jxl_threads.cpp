// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jxl_threads.h"

#include "pictures/parallel_rows.h"

#include <QThread>

#include <algorithm>
#include <memory>

namespace zelto {
namespace {

// libjxl keeps memory for each number of a worker, so a number is used by one thread at a time.
class WorkerNumbers {
  public:
    explicit WorkerNumbers(int count)
        : count_(count), taken_(std::make_unique<std::atomic_flag[]>(static_cast<std::size_t>(count))) {}

    std::size_t take() {
        for (int i = 0;; i = (i + 1) % count_) {
            if (!taken_[static_cast<std::size_t>(i)].test_and_set(std::memory_order_acquire))
                return static_cast<std::size_t>(i);
        }
    }
    void giveBack(std::size_t number) { taken_[number].clear(std::memory_order_release); }

  private:
    int count_;
    std::unique_ptr<std::atomic_flag[]> taken_;
};

constexpr int PieceWidth = 1 << 18;  // parallelRows() hands out single pieces of work as large as that

}  // namespace

JxlParallelRetCode runJxlInParallel(void* limit, void* work, JxlParallelRunInit begin,
                                    JxlParallelRunFunction run, std::uint32_t first, std::uint32_t end) {
    auto* const time = static_cast<DecodingTime*>(limit);
    const int workers = std::min<int>(QThread::idealThreadCount(), static_cast<int>(end - first));
    if (end <= first) return 0;
    try {
        if (const JxlParallelRetCode refused = begin(work, static_cast<std::size_t>(workers)); refused != 0)
            return refused;
        WorkerNumbers numbers(workers);
        std::atomic<bool> ranOut = false;
        parallelRows(static_cast<int>(end - first), workers == 1 ? 1 : PieceWidth, [&](int from, int to) {
            const std::size_t number = numbers.take();
            for (int piece = from; piece < to && !ranOut; ++piece) {
                const qint64 before = time == nullptr ? 0 : threadTime();
                run(work, first + static_cast<std::uint32_t>(piece), number);
                if (time != nullptr && !time->take(threadTime() - before)) ranOut = true;
            }
            numbers.giveBack(number);
        });
        return ranOut ? JXL_PARALLEL_RET_RUNNER_ERROR : 0;
    } catch (const std::bad_alloc&) {
        return JXL_PARALLEL_RET_RUNNER_ERROR;
    }
}

}  // namespace zelto
