// SPDX-License-Identifier: GPL-3.0-or-later
// Builds what the preview shows on a thread of its own, and sends the main thread pictures that are ready to be put on
// the screen. The newest request wins: requests that pile up become one, and results for a photo that is no longer
// wanted are dropped. Photos are loaded on threads of their own, huge ones apart from the others, so that the next
// photo never waits for one that is no longer wanted. The last scene is kept, so that an edit rebuilds only the layers
// it changed and composes only the pixels they touch. Call it from the main thread.
#pragma once

#include "app/common/newest_worker.h"
#include "app/preview/photo_cache.h"
#include "app/preview/view_geometry.h"
#include "render/photo_scene.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <atomic>
#include <memory>
#include <vector>

namespace zelto {

// A scene as the preview shows it, with the stack it was built from.
struct ShownScene {
    QString path;
    PhotoScene scene;
    std::shared_ptr<const WatermarkStack> stack;
};

struct PreviewUpdate {
    std::shared_ptr<const ShownScene> shown;
    bool isOtherPicture = false;  // what was drawn before has nothing to do with it
    bool isBare = false;          // the picture is without its layers
    bool isPatch = false;         // `image` replaces a part of the region sent before, else all of it
    ViewRegion region;            // what `image` covers; empty where nothing has changed that is seen
    QImage image;
};

class SceneBuilder : public QObject {
    Q_OBJECT

  public:
    explicit SceneBuilder(QObject* parent = nullptr);
    ~SceneBuilder() override;

    // The photo of `request` is to be shown, or its stack has another filter or frame.
    void showPhoto(const PhotoRequest& request);
    // All layers, or those of `records`, have changed.
    void updateLayers(const PhotoRequest& request);
    void updateLayers(const PhotoRequest& request, const std::vector<int>& records);
    // Shows the photo with its filter and its frame but without any layer, or with them again.
    void setBare(bool isBare);
    // The picture is looked at in another way. The size of the picture itself is not needed.
    void setView(const ViewGeometry& view);
    // Nothing is to be shown.
    void clear();

    // Whether everything asked for has been built and sent.
    bool isSettled() const { return done_ == posted_ && !isLoading_; }

    // Makes these photos ready, the first one first; replaces what was asked for before.
    void prefetch(const std::vector<PhotoRequest>& requests);

  Q_SIGNALS:
    void updated(const zelto::PreviewUpdate& update);
    // The photo cannot be shown.
    void failed(const QString& path, const QString& message);

  private:
    struct Job {
        PhotoRequest request;
        bool photo = false;
        bool layers = false;
        std::vector<int> records;
        bool isBare = false;
        ViewGeometry view;
        quint64 revision = 0;
        quint64 photoRevision = 0;                 // the revision that asked for this photo
        std::shared_ptr<const PhotoScene> loaded;  // the photo, where it had to be loaded first
    };
    struct Load {
        PhotoRequest request;
        quint64 photoRevision = 0;
    };
    class Worker;

    void post();
    void load(const Load& load);
    void take(const Load& load, const Result<std::shared_ptr<const PhotoScene>>& photo);
    bool isStale(quint64 photoRevision) const { return photoRevision != photoRevision_; }

    Job next_;
    quint64 posted_ = 0;
    quint64 done_ = 0;
    std::atomic<quint64> photoRevision_ = 0;
    bool isLoading_ = false;  // what is to be shown
    PhotoCache cache_;
    NewestWorker<Load> loads_;
    NewestWorker<Load> hugeLoads_;
    std::unique_ptr<Worker> worker_;
    std::unique_ptr<NewestWorker<Job>> jobs_;
    std::unique_ptr<NewestWorker<std::vector<PhotoRequest>>> prefetches_;
};

}  // namespace zelto
