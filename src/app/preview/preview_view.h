// SPDX-License-Identifier: GPL-3.0-or-later
// The preview canvas. It shows the parts of the composed photo that it is sent, at any zoom and pixel for pixel, and
// lets the user scroll, zoom, and move, size and turn layers. It composes nothing and changes no record: signals say
// which part it needs and what the user did. Main thread only.
#pragma once

#include "app/preview/layer_gesture.h"
#include "app/preview/layer_handles.h"
#include "app/preview/scene_builder.h"
#include "app/preview/view_geometry.h"

#include <QAbstractScrollArea>
#include <QImage>

#include <memory>
#include <optional>

namespace zelto {

class PreviewView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit PreviewView(QWidget* parent = nullptr);

    void apply(const PreviewUpdate& update);
    // Shows no photo but a message; the first line stands out.
    void showMessage(const QString& message);
    const QString& message() const { return message_; }
    // A line over the photo while something takes long; an empty one ends that.
    void showSign(const QString& sign);
    // Shows a picture in place of everything else, as much of it as fits; a null one ends that.
    void showPicture(const QImage& picture);
    const QImage& picture() const { return picture_; }

    // Device pixels a photo pixel takes.
    double scale() const { return geometry_.scale(); }
    bool FitToScreen() const { return geometry_.fitToScreen; }
    void ZoomIn();
    void ZoomOut();
    void FittoScreen();
    void ActualSize();

    const ViewGeometry& geometry() const { return geometry_; }
    const std::shared_ptr<const ShownScene>& shown() const { return shown_; }

    // The layer that is marked and that the arrow keys move; -1 for none.
    int selectedLayer() const { return selectedLayer_; }
    void selectLayer(int index);

    // What is to be seen on the screen, in device pixels; for looking at it without one.
    QImage seenPicture() const;

  Q_SIGNALS:
    // Another part is seen, or at another size.
    void viewChanged(const zelto::ViewGeometry& geometry);
    void scaleChanged(double scale);
    // A layer was clicked, or -1 for the photo itself; a layer was double-clicked.
    void layerPicked(int index);
    void layerActivated(int index);
    // A layer is taken in hand; what each step makes of its record; it is let go, or was not meant.
    void gestureBegan(int index);
    void gestureMoved(const zelto::LayerEdit& edit, zelto::Grip::Part part);
    void gestureEnded(bool isKept);
    // The keyboard moves a layer by `step` pixels.
    void layerNudged(int index, QPoint step);

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    struct Piece {
        ViewRegion region;
        QImage image;
    };

    QPointF devicePoint(QPointF widgetPoint) const;
    QPointF picturePoint(const QMouseEvent& event) const;
    void setGeometryAndView(ViewGeometry geometry);
    void takeViewportSize();
    void zoomBy(double factor, QPointF about);
    void scrollToTop(double newScale);
    bool pinch(QEvent* event);
    std::optional<int> layerUnder(const QMouseEvent& event) const;
    void updateCursor(const QMouseEvent& event);
    std::optional<LayerHandles> handles() const;
    std::optional<Grip> gripUnder(const QMouseEvent& event) const;
    void take(int index, const Grip& grip, const QMouseEvent& event);
    void endGesture(bool isKept);
    void paintPicture(QPainter& painter) const;
    void paintPiece(QPainter& painter, const Piece& piece) const;
    void paintMarks(QPainter& painter) const;
    void paintFittedPicture(QPainter& painter) const;
    void paintMessage(QPainter& painter) const;

    ViewGeometry geometry_;
    double devicePixelRatio_ = 1.0;
    std::shared_ptr<const ShownScene> shown_;
    Piece piece_;  // what was composed last
    Piece whole_;  // the whole picture, for places the last piece does not cover
    QString message_;
    QString sign_;
    QImage picture_;  // shown in place of the photo
    int selectedLayer_ = -1;
    std::optional<LayerGesture> gesture_;
    bool hasMoved_ = false;  // the pointer has gone far enough for a gesture
    bool isBare_ = false;    // the photo is shown without its layers
    QPointF pressed_;        // device pixels, of the press or of the last step of panning
    bool isPanning_ = false;
    bool isTakingGeometry_ = false;
};

}  // namespace zelto
