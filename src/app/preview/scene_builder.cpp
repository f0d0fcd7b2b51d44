// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/scene_builder.h"

#include "app/common/huge_photo.h"
#include "app/preview/region_composer.h"
#include "pictures/picture_additions.h"
#include "render/scene_geometry.h"

#include <algorithm>
#include <new>
#include <utility>

namespace zelto {
namespace {

// On the screen, and only there, a logo is seen at its opacity once more.
void fadeForScreen(std::optional<WatermarkView>& layer) {
    if (!layer || layer->contentOpacity >= 1.0) return;
    auto* content = std::get_if<LayerContent>(&layer->child);
    auto* picture = content == nullptr ? nullptr : std::get_if<QImage>(content);
    if (picture != nullptr) *picture = imageWithOpacity(std::move(*picture), layer->contentOpacity);
}

}  // namespace

// The work itself, and all it remembers between two jobs. Lives on the thread of the jobs.
class SceneBuilder::Worker {
  public:
    explicit Worker(SceneBuilder& owner) : owner_(owner) {}

    void work(const Job& job) {
        bool hasPhoto = true;
        try {
            if (job.photo) hasPhoto = takePhoto(job);
            if (base_ && !owner_.isStale(job.photoRevision)) {
                const QRect dirty = rebuild(job, job.photo || job.layers);
                send(job, dirty, job.photo);
            }
        } catch (const std::bad_alloc&) {
            base_.reset();
            tellFailure(job, notEnoughMemory(job.request.path));
        }
        QMetaObject::invokeMethod(
            &owner_,
            [this, revision = job.revision, photo = job.photoRevision, isThere = job.photo && hasPhoto] {
                owner_.done_ = revision;
                if (isThere && !owner_.isStale(photo)) owner_.isLoading_ = false;
            },
            Qt::QueuedConnection);
    }

  private:
    // Whether the photo is there; otherwise a job that has it follows.
    bool takePhoto(const Job& job) {
        base_.reset();
        if (job.request.path.isEmpty()) return true;
        base_ = job.loaded ? job.loaded : owner_.cache_.find(job.request);
        if (base_) return true;
        const bool isHuge = isHugePhoto(readPictureSize(job.request.path).value_or(QSize()));
        (isHuge ? owner_.hugeLoads_ : owner_.loads_).post({job.request, job.photoRevision});
        return false;
    }

    void tellFailure(const Job& job, const Error& error) {
        tell(job, [this, error] { Q_EMIT owner_.failed(error.path, error.message); });
    }

    // Builds the layers that are out of date; returns the part of the picture that has changed.
    QRect rebuild(const Job& job, bool all) {
        QRect dirty;
        if (all) {
            placed_ = *base_;
            MakeWatermarkChanges(placed_, job.request);
            for (auto& layer : placed_.layers) fadeForScreen(layer);
            dirty = placed_.picture.rect();
        } else {
            dirty |= reachOfChanges(job);
            for (const int record : job.records) {
                const auto index = static_cast<std::size_t>(record);
                UpdateWatermark(placed_, job.request, index);
                fadeForScreen(placed_.layers[index]);
            }
        }
        shown_ = std::make_shared<ShownScene>(ShownScene{job.request.path, placed_, job.request.stack});
        dirty |= reachOfChanges(job);
        return dirty;
    }

    // Where the scene on show has the layers that are about to change, or have just changed.
    QRect reachOfChanges(const Job& job) const {
        QRect area;
        for (const int record : job.records)
            area |= layerReach(shown_->scene, static_cast<std::size_t>(record));
        return area;
    }

    void send(const Job& job, const QRect& dirty, bool isOtherPicture) {
        ViewGeometry view = job.view;
        view.picture = shown_->scene.picture.size();
        const ViewRegion seen = view.visibleRegion();
        PreviewUpdate update;
        update.shown = shown_;
        update.isOtherPicture = isOtherPicture;
        update.region.scale = seen.scale;
        update.isBare = job.isBare;
        if (isOtherPicture || sentBare_ != job.isBare || sent_.scale != seen.scale ||
            !sent_.rect.contains(seen.rect)) {
            sent_ = view.comfortableRegion();
            update.region = sent_;
        } else if (dirty.isEmpty() || job.isBare) {
            update.isPatch = true;
        } else {
            update.region.rect = scaledRect(dirty, sent_.scale).intersected(sent_.rect);
            update.isPatch = update.region.rect != sent_.rect;
        }
        sentBare_ = job.isBare;
        update.image =
            composeRegion(shown_->scene, job.isBare ? WatermarkStack() : *shown_->stack, update.region);
        tell(job, [this, update] { Q_EMIT owner_.updated(update); });
    }

    // Runs `report` on the main thread, unless another photo has been asked for by then.
    template <class Report>
    void tell(const Job& job, Report report) {
        QMetaObject::invokeMethod(
            &owner_,
            [this, revision = job.photoRevision, report = std::move(report)] {
                if (!owner_.isStale(revision)) report();
            },
            Qt::QueuedConnection);
    }

    SceneBuilder& owner_;
    std::shared_ptr<const PhotoScene> base_;
    PhotoScene placed_;  // the base with its layers where they belong
    std::shared_ptr<const ShownScene> shown_;
    ViewRegion sent_;
    bool sentBare_ = false;
};

SceneBuilder::SceneBuilder(QObject* parent)
    : QObject(parent),
      loads_([this](const Load& each) { load(each); }),
      hugeLoads_([this](const Load& each) { load(each); }),
      worker_(std::make_unique<Worker>(*this)),
      jobs_(std::make_unique<NewestWorker<Job>>(
          [this](const Job& job) { worker_->work(job); },
          [](const Job& waiting, Job newer) {
              newer.photo |= waiting.photo;
              newer.layers |= waiting.layers;
              if (!newer.loaded && newer.photoRevision == waiting.photoRevision)
                  newer.loaded = waiting.loaded;
              newer.records.insert(newer.records.end(), waiting.records.begin(), waiting.records.end());
              return newer;
          })),
      prefetches_(std::make_unique<NewestWorker<std::vector<PhotoRequest>>>(
          [this](const std::vector<PhotoRequest>& requests) {
              for (const PhotoRequest& request : requests) {
                  if (prefetches_->hasNewer()) return;
                  cache_.prefetch(request);
              }
          })) {}

SceneBuilder::~SceneBuilder() {
    prefetches_->stop();
    jobs_->stop();
    loads_.stop();
    hugeLoads_.stop();
}

// On a thread of the loads.
void SceneBuilder::load(const Load& load) {
    if (isStale(load.photoRevision)) return;
    Result<std::shared_ptr<const PhotoScene>> photo;
    try {
        photo = cache_.get(load.request);
    } catch (const std::bad_alloc&) {
        photo = tl::unexpected(notEnoughMemory(load.request.path));
    }
    QMetaObject::invokeMethod(
        this, [this, load, photo] { take(load, photo); }, Qt::QueuedConnection);
}

void SceneBuilder::take(const Load& load, const Result<std::shared_ptr<const PhotoScene>>& photo) {
    if (isStale(load.photoRevision)) return;
    if (!photo) {
        isLoading_ = false;
        Q_EMIT failed(photo.error().path, photo.error().message);
        return;
    }
    next_.loaded = *photo;
    next_.photo = true;
    post();
}

void SceneBuilder::showPhoto(const PhotoRequest& request) {
    photoRevision_ = posted_ + 1;
    next_.request = request;
    next_.photo = true;
    isLoading_ = true;
    post();
}

void SceneBuilder::updateLayers(const PhotoRequest& request) {
    next_.request = request;
    next_.layers = true;
    post();
}

void SceneBuilder::updateLayers(const PhotoRequest& request, const std::vector<int>& records) {
    next_.request = request;
    next_.records = records;
    post();
}

void SceneBuilder::setBare(bool isBare) {
    next_.isBare = isBare;
    post();
}

void SceneBuilder::setView(const ViewGeometry& view) {
    next_.view = view;
    post();
}

void SceneBuilder::clear() {
    photoRevision_ = posted_ + 1;
    next_.request = {};
    next_.photo = true;
    isLoading_ = false;
    post();
    prefetches_->post({});
}

void SceneBuilder::prefetch(const std::vector<PhotoRequest>& requests) {
    prefetches_->post(requests);
}

// Sends `next_` on; what it remembers for the job after it is the photo and how it is seen.
void SceneBuilder::post() {
    if (next_.request.path.isEmpty() && !next_.photo) return;
    next_.revision = ++posted_;
    next_.photoRevision = photoRevision_;
    jobs_->post(next_);
    next_.loaded.reset();
    next_.photo = false;
    next_.layers = false;
    next_.records.clear();
}

}  // namespace zelto
