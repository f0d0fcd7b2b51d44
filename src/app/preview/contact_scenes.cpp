// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/contact_scenes.h"

#include "app/preview/halved_picture.h"
#include "pictures/parallel_rows.h"
#include "pictures/resample.h"
#include "render/canvas.h"
#include "render/composition.h"

#include <algorithm>
#include <new>
#include <utility>

namespace zelto {
namespace {

// A kept picture is at least this many times as large as a cell of an ordinary window, so that drawing on it is finer
// than what is seen, and it stays of use when the window grows.
constexpr int LeastKeptSide = 640;

Picture reducedPicture(Picture photo) {
    int times = 0;
    while (times < MaximumHalvings &&
           std::max(photo.image.width(), photo.image.height()) >> (times + 1) >= LeastKeptSide) {
        ++times;
    }
    if (times > 0) photo.image = allocated(halvedPicture(photo.image, photo.image.rect(), times));
    return photo;
}

QImage fitted(const QImage& picture, QSize cell) {
    const QSize size = picture.size().scaled(cell, Qt::KeepAspectRatio);
    if (size.width() >= picture.width()) return picture;
    return allocated(resizedImage(picture, size.expandedTo({1, 1})));
}

// Whether both make the same picture of a photo, before its layers.
bool hasSameGround(const PhotoRequest& a, const PhotoRequest& b) {
    return a.final == b.final && a.stack->SelectedFilter == b.stack->SelectedFilter &&
           a.stack->Effects == b.stack->Effects;
}

}  // namespace

ContactScenes::ContactScenes(QObject* parent)
    : QObject(parent),
      logos_(std::make_shared<LogoCache>()),
      drawing_(std::make_unique<NewestWorker<Job>>([this](const Job& job) { draw(job); })),
      loading_(std::make_unique<NewestWorker<Job>>([this](const Job& job) { load(job); })) {}

ContactScenes::~ContactScenes() {
    loading_->stop();
    drawing_->stop();
}

void ContactScenes::show(std::vector<PhotoRequest> photos, QSize cell) {
    Photos shown;
    for (const PhotoRequest& request : photos) {
        const auto known = std::find_if(job_.photos.begin(), job_.photos.end(),
                                        [&](const auto& photo) { return photo->path == request.path; });
        shown.push_back(known == job_.photos.end() ? std::make_shared<Photo>() : *known);
        shown.back()->path = request.path;
    }
    job_.photos = std::move(shown);
    job_.cell = cell;
    ++job_.showRevision;
    take(std::move(photos));
    job_.revision = ++loadPosted_;
    loading_->post(job_);
    post();
}

void ContactScenes::update(std::vector<PhotoRequest> photos) {
    if (photos.size() != job_.photos.size()) return;
    take(std::move(photos));
    post();
}

void ContactScenes::take(std::vector<PhotoRequest> requests) {
    job_.requests = std::move(requests);
    for (PhotoRequest& request : job_.requests) request.logos = logos_;
}

void ContactScenes::post() {
    job_.revision = ++posted_;
    drawing_->post(job_);
}

// Runs `report` on the main thread, unless other photos are shown by then.
template <class Report>
void ContactScenes::tell(const Job& job, Report report) {
    QMetaObject::invokeMethod(
        this,
        [this, revision = job.showRevision, report = std::move(report)] {
            if (revision == job_.showRevision) report();
        },
        Qt::QueuedConnection);
}

void ContactScenes::load(const Job& job) {
    for (std::size_t place = 0; place < job.photos.size() && !loading_->hasNewer(); ++place) {
        Photo& photo = *job.photos[place];
        {
            const std::lock_guard lock(photo.mutex);
            if (photo.isTried) continue;
        }
        Picture reduced;
        QSize size;
        QString message;
        try {
            Result<Picture> read = readPicture(photo.path);
            if (read) {
                size = read->image.size();
                reduced = reducedPicture(std::move(*read));
            } else {
                message = read.error().message;
            }
        } catch (const std::bad_alloc&) {
            message = notEnoughMemory(photo.path).message;
        }
        {
            const std::lock_guard lock(photo.mutex);
            photo.reduced = std::move(reduced);
            photo.size = size;
            photo.message = message;
            photo.isTried = true;
        }
        tell(job, [this] { post(); });
    }
    QMetaObject::invokeMethod(
        this, [this, revision = job.revision] { loaded_ = revision; }, Qt::QueuedConnection);
}

void ContactScenes::draw(const Job& job) {
    // One photo is one row of work, and never too small to be handed out.
    constexpr int WorkOfOne = 1 << 20;
    parallelRows(static_cast<int>(job.photos.size()), WorkOfOne, [&](int first, int end) {
        for (int place = first; place < end; ++place) drawOne(job, static_cast<std::size_t>(place));
    });
    QMetaObject::invokeMethod(
        this, [this, revision = job.revision] { drawn_ = revision; }, Qt::QueuedConnection);
}

void ContactScenes::drawOne(const Job& job, std::size_t place) {
    Photo& photo = *job.photos[place];
    const PhotoRequest& request = job.requests[place];
    const auto fail = [&](const QString& message) {
        tell(job, [this, place, message] { Q_EMIT failed(static_cast<int>(place), message); });
    };
    const std::lock_guard lock(photo.mutex);
    if (!photo.isTried) return;
    if (photo.reduced.image.isNull()) {
        fail(photo.message);
        return;
    }
    try {
        if (photo.scene && hasSameGround(photo.request, request)) {
            MakeWatermarkChanges(*photo.scene, request);
        } else {
            photo.scene.reset();
            Result<PhotoScene> scene = buildPhotoScene(request, photo.reduced, photo.size);
            if (!scene) {
                fail(scene.error().message);
                return;
            }
            photo.scene = std::move(*scene);
        }
        photo.request = request;
        QStringList warnings;
        for (const PhotoWarning& warning : warningsOf(*photo.scene)) warnings.append(warning.text);
        const QImage picture = fitted(allocated(MakeWatermarkImage(*photo.scene, *request.stack)), job.cell);
        tell(job, [this, place, picture, size = photo.size, text = warnings.join(QLatin1Char('\n'))] {
            Q_EMIT made(static_cast<int>(place), picture, size, text);
        });
    } catch (const std::bad_alloc&) {
        photo.scene.reset();
        fail(notEnoughMemory(photo.path).message);
    }
}

}  // namespace zelto
