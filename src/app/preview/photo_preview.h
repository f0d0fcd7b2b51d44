// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the preview up to date with the selected photo, with every change of the stack, and with what the user does to
// layers on the canvas. Each of these becomes a request to the scene builder, and the results go to the canvas, with a
// warning to each row of the watermark list that draws nothing there. Main thread only.
#pragma once

#include "app/preview/preview_view.h"
#include "app/preview/scene_builder.h"
#include "app/watermarks/watermark_document.h"

#include <QObject>
#include <QRectF>
#include <QTimer>

#include <memory>
#include <optional>

namespace zelto {

class ImageListController;
class WatermarkController;

class PhotoPreview : public QObject {
    Q_OBJECT

  public:
    // All outlive it.
    PhotoPreview(ImageListController& photos, WatermarkController& watermarks, PreviewView& view,
                 QObject* parent = nullptr);

    // The request for the photo of a row as the preview shows it.
    PhotoRequest requestFor(int row) const;
    // The request for the selected photo as the run would write it.
    PhotoRequest finalRequest() const;

    // The photo at `path` is shown while there are none in the list; nothing for an empty path.
    void showSample(const QString& path);
    // What texts read on the photo on show; nothing where there is none.
    std::optional<MacroContext> shownContext() const;

    // Between the two the canvas shows the pictures that a run hands over, and photos that are selected are not loaded.
    void beginRun();
    void showRunPicture(const QImage& picture);
    void endRun();

    // Shows the selected photo without its watermarks, or with them again.
    void setBare(bool isBare) { builder_.setBare(isBare); }

    // Whether the canvas shows everything as it is now.
    bool isSettled() const { return builder_.isSettled(); }

  Q_SIGNALS:
    // Something new is on the canvas.
    void shown();

  private:
    PhotoRequest requestFor(int row, bool final) const;
    PhotoRequest request() const;  // for the selected photo
    void selectImage(int row);
    void follow(const StackChange& change);
    void take(const PreviewUpdate& update);
    void showWarnings(const PhotoScene& scene);
    void prefetchNeighbours();
    void writeDiagnostics();
    void beginWaiting();
    void endWaiting();
    void showSign();
    void nudge(int index, QPoint step);
    void beginGesture(int index);
    void moveGesture(const LayerEdit& edit, Grip::Part part);
    void endGesture(bool isKept);

    ImageListController& photos_;
    WatermarkController& watermarks_;
    WatermarkDocument& document_;
    PreviewView& view_;
    SceneBuilder builder_;
    NewestWorker<QImage> diagnostics_;  // writes the framed photo into the home folder
    QTimer diagnosticsDue_;
    QTimer patience_;  // runs while another picture is awaited
    std::shared_ptr<LogoCache> logos_;
    QString sample_;
    bool isRunning_ = false;
    // A layer in hand: which one, as it was, and the undo step that all of it becomes.
    struct Gesture {
        int index;
        Watermark start;
        QString step;
    };
    std::optional<Gesture> gesture_;
    int gestures_ = 0;
    int neighboursOf_ = -1;  // the row whose neighbours have been made ready
};

}  // namespace zelto
