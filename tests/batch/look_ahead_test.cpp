// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/look_ahead.h"

#include "support/testing.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <stdexcept>

namespace zelto {
namespace {

using namespace std::chrono_literals;

struct Photo {
    qint64 bytes = 1;
    std::chrono::milliseconds duration = 0ms;
    QString source = {};
    QString output = {};
};

// Prepares photos that take their time and memory, and keeps account of both.
class MeasuredProcessor : public PhotoProcessor {
  public:
    explicit MeasuredProcessor(std::vector<Photo> photos) : photos_(std::move(photos)) {}

    qint64 memoryNeeded(const PhotoTask& task) override {
        if (photo(task).bytes < 0) throw std::runtime_error("no size");
        return photo(task).bytes;
    }
    Result<PreparedPhoto> prepare(const PhotoTask& task) override {
        {
            const std::lock_guard lock(mutex_);
            begun_.push_back(task.row);
            atWork_[task.row] = photo(task).bytes;
            qint64 sum = 0;
            for (const auto& [row, bytes] : atWork_) sum += bytes;
            mostBytes = std::max(mostBytes, sum);
            mostPhotos = std::max(mostPhotos, atWork_.size());
            EXPECT_TRUE(photo(task).bytes <= Budget || atWork_.size() == 1) << "row " << task.row;
        }
        std::this_thread::sleep_for(photo(task).duration);
        const std::lock_guard lock(mutex_);
        atWork_.erase(task.row);
        PreparedPhoto prepared;
        prepared.file = QByteArray::number(task.row);
        return prepared;
    }
    Result<void> commit(const PhotoTask&, PreparedPhoto) override { return {}; }
    Result<QString> finishCombinedPdf() override { return QString(); }
    void settle() override {}

    std::function<std::optional<PhotoTask>()> tasks() {
        return [this]() -> std::optional<PhotoTask> {
            if (next_ == photos_.size()) return std::nullopt;
            const Photo& photo = photos_[next_];
            const auto row = static_cast<qint64>(next_++);
            const auto own = [row](const QString& path) {  // two photos without one would have the same
                return path.isEmpty() ? QStringLiteral("/nowhere/of %1").arg(row) : path;
            };
            return PhotoTask{
                row, static_cast<qint64>(photos_.size()), own(photo.source), own(photo.output), {}};
        };
    }
    std::vector<qint64> begun() {
        const std::lock_guard lock(mutex_);
        return begun_;
    }

    static constexpr qint64 Budget = 100;
    qint64 mostBytes = 0;
    std::size_t mostPhotos = 0;

  private:
    const Photo& photo(const PhotoTask& task) const { return photos_[static_cast<std::size_t>(task.row)]; }

    const std::vector<Photo> photos_;
    std::size_t next_ = 0;
    std::mutex mutex_;
    std::vector<qint64> begun_;
    std::map<qint64, qint64> atWork_;
};

// The rows in the order they were handed out, each with the content that belongs to it.
std::vector<qint64> takenRows(LookAhead& ahead) {
    std::vector<qint64> rows;
    while (auto ready = ahead.take()) {
        EXPECT_EQ(ready->photo.value().file, QByteArray::number(ready->task.row));
        rows.push_back(ready->task.row);
        ahead.release();
    }
    return rows;
}

TEST(LookAhead, HandsOutInListOrderHoweverLongEachPhotoTakes) {
    std::vector<Photo> photos;
    std::vector<qint64> order;
    for (qint64 row = 0; row < 60; ++row) {
        photos.push_back({.bytes = 1, .duration = std::chrono::milliseconds((row * 7919) % 5)});
        order.push_back(row);
    }
    for (const int jobs : {1, 2, 8}) {
        MeasuredProcessor processor(photos);
        LookAhead ahead(processor, processor.tasks(), {jobs, 100});
        EXPECT_EQ(takenRows(ahead), order) << jobs << " jobs";
        EXPECT_LE(processor.mostPhotos, static_cast<std::size_t>(jobs));
    }
}

TEST(LookAhead, KeepsToTheMemoryBudgetAndWorksOnALargerPhotoAlone) {
    std::vector<Photo> photos(16, Photo{.bytes = 30, .duration = 20ms});
    photos[8].bytes = 100;
    photos[9].bytes = -1;  // a photo whose size cannot be told is still prepared
    for (const qint64 largest : {qint64{30}, qint64{1000}}) {
        photos[3].bytes = largest;
        MeasuredProcessor processor(photos);
        LookAhead ahead(processor, processor.tasks(), {4, MeasuredProcessor::Budget});
        EXPECT_EQ(takenRows(ahead).size(), photos.size());
        EXPECT_LE(processor.mostBytes, std::max(largest, MeasuredProcessor::Budget));
    }
}

TEST(LookAhead, BeginsNoPhotoThatAnEarlierOneStillHasToWrite) {
    MeasuredProcessor processor(
        {{.source = QStringLiteral("/nowhere/a"), .output = QStringLiteral("/nowhere/b")},
         {.source = QStringLiteral("/nowhere/c"), .output = QStringLiteral("/nowhere/c")},
         {.source = QStringLiteral("/nowhere/b"), .output = QStringLiteral("/nowhere/d")}});
    LookAhead ahead(processor, processor.tasks(), {4, 100});
    ASSERT_TRUE(ahead.take());
    while (processor.begun().size() < 2) std::this_thread::sleep_for(1ms);
    std::this_thread::sleep_for(20ms);  // time for a photo to be begun too early
    EXPECT_THAT(processor.begun(), ::testing::UnorderedElementsAre(0, 1));
    ahead.release();
    EXPECT_EQ(takenRows(ahead).size(), 2U);
    EXPECT_EQ(processor.begun().back(), 2);
}

TEST(LookAhead, EndsEarlyWithoutPreparingTheRest) {
    MeasuredProcessor processor(std::vector<Photo>(1000, Photo{.bytes = 1, .duration = 1ms}));
    {
        LookAhead ahead(processor, processor.tasks(), {2, 100});
        ASSERT_TRUE(ahead.take());
    }
    EXPECT_LT(processor.begun().size(), 100U) << "and the rest is dropped";
}

}  // namespace
}  // namespace zelto
