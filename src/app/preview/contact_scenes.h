// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of the contact view: a few photos with one stack, each as large as it is seen. A photo is read whole once
// and kept reduced; a change of the stack then places and draws all layers anew by the same function as for the preview,
// on the cores there are. Reading and drawing each have a thread of their own. Call it from the main thread.
#pragma once

#include "app/common/newest_worker.h"
#include "render/photo_scene.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace zelto {

class ContactScenes : public QObject {
    Q_OBJECT

  public:
    explicit ContactScenes(QObject* parent = nullptr);
    ~ContactScenes() override;

    // Shows these photos, each within `cell` device pixels; none to forget all. Photos that are shown already are not
    // read again.
    void show(std::vector<PhotoRequest> photos, QSize cell);
    // The same photos with another stack.
    void update(std::vector<PhotoRequest> photos);

    // Whether everything asked for has been sent.
    bool isSettled() const { return drawn_ == posted_ && loaded_ == loadPosted_; }

  Q_SIGNALS:
    // The picture of the photo at `place` of those that are shown. `warnings` says what draws nothing there.
    void made(int place, const QImage& picture, QSize photoSize, const QString& warnings);
    void failed(int place, const QString& message);

  private:
    struct Photo {
        QString path;
        std::mutex mutex;  // guards all of it
        bool isTried = false;
        Picture reduced;  // none where it cannot be read
        QSize size;
        QString message;
        // Built last, and from what.
        std::optional<PhotoScene> scene;
        PhotoRequest request;
    };
    using Photos = std::vector<std::shared_ptr<Photo>>;
    struct Job {
        std::vector<PhotoRequest> requests;
        Photos photos;
        QSize cell;
        quint64 revision = 0;
        quint64 showRevision = 0;
    };

    void load(const Job& job);
    void draw(const Job& job);
    void drawOne(const Job& job, std::size_t place);
    void take(std::vector<PhotoRequest> requests);
    void post();
    template <class Report>
    void tell(const Job& job, Report report);

    Job job_;
    quint64 posted_ = 0;
    quint64 drawn_ = 0;
    quint64 loadPosted_ = 0;
    quint64 loaded_ = 0;
    std::shared_ptr<LogoCache> logos_;
    std::unique_ptr<NewestWorker<Job>> drawing_;
    std::unique_ptr<NewestWorker<Job>> loading_;
};

}  // namespace zelto
