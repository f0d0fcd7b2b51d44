// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/preview_view.h"

#include "app/preview/preview_paint.h"
#include "render/scene_geometry.h"

#include <QApplication>
#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

constexpr double ZoomStep = 0.1;      // of the scale, inward and outward
constexpr double SnapDistance = 8.0;  // device-independent pixels
constexpr double GripReach = 8.0;     // half the side of the smallest layer that can be gripped everywhere
constexpr int NudgeStep = 1;          // photo pixels
constexpr int LargeNudgeStep = 10;

}  // namespace

PreviewView::PreviewView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->grabGesture(Qt::PinchGesture);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("Preview"));
    setMinimumSize(160, 120);
}

void PreviewView::apply(const PreviewUpdate& update) {
    const bool isOtherPhoto = !shown_ || shown_->path != update.shown->path;
    const bool isOtherSize = !shown_ || shown_->scene.picture.size() != update.shown->scene.picture.size();
    shown_ = update.shown;
    message_.clear();
    if (update.isOtherPicture) whole_ = {};
    if (!update.isPatch) {
        piece_ = {update.region, update.image};
    } else if (!update.image.isNull() && piece_.region.scale == update.region.scale) {
        QPainter painter(&piece_.image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(update.region.rect.topLeft() - piece_.region.rect.topLeft(), update.image);
    }
    if (isOtherPhoto || isOtherSize) {
        ViewGeometry geometry = geometry_;
        geometry.picture = shown_->scene.picture.size();
        if (isOtherPhoto) geometry.scroll = {};
        setGeometryAndView(geometry);
    }
    const QRect all(QPoint(0, 0), geometry_.scaledSize());
    if (piece_.region.rect == all && piece_.region.scale == geometry_.scale()) whole_ = piece_;
    viewport()->update();
}

void PreviewView::showMessage(const QString& message) {
    endDrag(false);
    shown_.reset();
    piece_ = {};
    whole_ = {};
    message_ = message;
    ViewGeometry geometry = geometry_;
    geometry.picture = {};
    setGeometryAndView(geometry);
    viewport()->update();
}

void PreviewView::showPicture(const QImage& picture) {
    picture_ = picture;
    viewport()->update();
}

// ---- zoom

void PreviewView::ZoomIn() {
    scrollToTop(scale() + ZoomStep * scale());
}

void PreviewView::ZoomOut() {
    scrollToTop(scale() - ZoomStep * scale());
}

void PreviewView::ActualSize() {
    scrollToTop(1.0);
}

void PreviewView::FittoScreen() {
    ViewGeometry geometry = geometry_;
    geometry.fitToScreen = true;
    setGeometryAndView(geometry);
}

// The top of the picture is seen, and the same part of it between left and right as before.
void PreviewView::scrollToTop(double newScale) {
    ViewGeometry geometry = geometry_.zoomedAbout(newScale, QRectF(QPointF(), geometry_.viewport).center());
    geometry.scroll.setY(0);
    setGeometryAndView(geometry);
}

void PreviewView::zoomBy(double factor, QPointF about) {
    if (shown_) setGeometryAndView(geometry_.zoomedAbout(scale() * factor, about));
}

void PreviewView::setGeometryAndView(ViewGeometry geometry) {
    geometry.scroll = geometry.clampedScroll();
    if (geometry == geometry_) return;
    const double before = geometry_.scale();
    geometry_ = geometry;
    isTakingGeometry_ = true;
    const auto set = [](QScrollBar* bar, int largest, int page, int value) {
        bar->setRange(0, largest);
        bar->setPageStep(page);
        bar->setSingleStep(std::max(1, page / 20));
        bar->setValue(value);
    };
    const QPoint largest = geometry_.largestScroll();
    set(horizontalScrollBar(), largest.x(), geometry_.viewport.width(), geometry_.scroll.x());
    set(verticalScrollBar(), largest.y(), geometry_.viewport.height(), geometry_.scroll.y());
    isTakingGeometry_ = false;
    viewport()->update();
    Q_EMIT viewChanged(geometry_);
    if (before != geometry_.scale()) Q_EMIT scaleChanged(geometry_.scale());
}

void PreviewView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    if (isTakingGeometry_) return;
    ViewGeometry geometry = geometry_;
    geometry.scroll = {horizontalScrollBar()->value(), verticalScrollBar()->value()};
    setGeometryAndView(geometry);
}

void PreviewView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    takeViewportSize();
}

void PreviewView::takeViewportSize() {
    devicePixelRatio_ = devicePixelRatioF();
    ViewGeometry geometry = geometry_;
    geometry.viewport = (QSizeF(viewport()->size()) * devicePixelRatio_).toSize();
    setGeometryAndView(geometry);
}

// ---- pointer and keys

QPointF PreviewView::devicePoint(QPointF widgetPoint) const {
    return widgetPoint * devicePixelRatio_;
}

QPointF PreviewView::picturePoint(const QMouseEvent& event) const {
    return geometry_.toPicture(devicePoint(event.position()));
}

std::optional<int> PreviewView::layerUnder(const QMouseEvent& event) const {
    if (!shown_) return std::nullopt;
    const double reach = GripReach * devicePixelRatio_ / scale();
    return layerAt(shown_->scene, *shown_->stack, picturePoint(event), reach);
}

bool PreviewView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Gesture || event->type() == QEvent::NativeGesture) {
        if (pinch(event)) return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

bool PreviewView::pinch(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        const auto* native = static_cast<QNativeGestureEvent*>(event);
        if (native->gestureType() != Qt::ZoomNativeGesture) return false;
        zoomBy(1.0 + native->value(), devicePoint(native->position()));
        return true;
    }
    const auto* gestures = static_cast<QGestureEvent*>(event);
    const auto* gesture = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture));
    if (gesture == nullptr) return false;
    if (gesture->changeFlags().testFlag(QPinchGesture::ScaleFactorChanged)) {
        const QPointF centre = viewport()->mapFromGlobal(gesture->hotSpot());
        zoomBy(gesture->scaleFactor(), devicePoint(centre));
    }
    return true;
}

void PreviewView::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    constexpr double UnitsOfOneNotch = 120.0;
    const double notches = event->angleDelta().y() / UnitsOfOneNotch;
    const double factor = notches > 0 ? 1.0 + ZoomStep : 1.0 - ZoomStep;
    zoomBy(std::pow(factor, std::abs(notches)), devicePoint(event->position()));
    event->accept();
}

void PreviewView::mousePressEvent(QMouseEvent* event) {
    pressed_ = devicePoint(event->position());
    if (!shown_) return;
    if (event->button() == Qt::MiddleButton) {
        isPanning_ = true;
    } else if (event->button() == Qt::LeftButton) {
        const std::optional<int> layer = layerUnder(*event);
        Q_EMIT layerPicked(layer.value_or(-1));
        if (layer && isMovable(shown_->stack->Watermarks[static_cast<std::size_t>(*layer)])) {
            drag_.emplace(*layer, layerFrame(shown_->scene, static_cast<std::size_t>(*layer)),
                          QRectF(shown_->scene.referenceRect), picturePoint(*event));
        } else {
            isPanning_ = true;
        }
    }
    updateCursor(*event);
}

void PreviewView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF point = devicePoint(event->position());
    if (drag_) {
        const double distance = QApplication::startDragDistance() * devicePixelRatio_;
        isDragging_ = isDragging_ || (point - pressed_).manhattanLength() >= distance;
        if (isDragging_) {
            const bool snaps = !event->modifiers().testFlag(Qt::AltModifier);
            drag_->moveTo(picturePoint(*event), snaps ? SnapDistance * devicePixelRatio_ / scale() : 0.0);
            Q_EMIT layerDragged(MovedLayer{drag_->index(), drag_->frame().topLeft()});
            viewport()->update();
        }
    } else if (isPanning_) {
        ViewGeometry geometry = geometry_;
        geometry.scroll -= (point - pressed_).toPoint();
        pressed_ = point;
        setGeometryAndView(geometry);
    }
    updateCursor(*event);
}

void PreviewView::mouseReleaseEvent(QMouseEvent* event) {
    isPanning_ = false;
    endDrag(true);
    updateCursor(*event);
}

void PreviewView::mouseDoubleClickEvent(QMouseEvent* event) {
    endDrag(false);
    if (const std::optional<int> layer = layerUnder(*event)) Q_EMIT layerActivated(*layer);
}

void PreviewView::endDrag(bool drop) {
    if (!drag_) return;
    const int index = drag_->index();
    const auto place = drag_->place();
    const bool isDropped = drop && drag_->isMoved();
    drag_.reset();
    if (!std::exchange(isDragging_, false)) return;
    if (isDropped) Q_EMIT layerDropped(index, place);
    Q_EMIT layerDragged(std::nullopt);
    viewport()->update();
}

void PreviewView::updateCursor(const QMouseEvent& event) {
    const std::optional<int> layer = drag_ ? drag_->index() : layerUnder(event);
    const bool canPan = !geometry_.largestScroll().isNull();
    Qt::CursorShape shape = canPan && shown_ ? Qt::OpenHandCursor : Qt::ArrowCursor;
    if (isPanning_ && canPan) {
        shape = Qt::ClosedHandCursor;
    } else if (layer && isMovable(shown_->stack->Watermarks[static_cast<std::size_t>(*layer)])) {
        shape = Qt::SizeAllCursor;
    }
    viewport()->setCursor(shape);
}

void PreviewView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && drag_) {
        endDrag(false);
        return;
    }
    const int length = event->modifiers().testFlag(Qt::ShiftModifier) ? LargeNudgeStep : NudgeStep;
    QPoint step;
    switch (event->key()) {
        case Qt::Key_Left:
            step = {-length, 0};
            break;
        case Qt::Key_Right:
            step = {length, 0};
            break;
        case Qt::Key_Up:
            step = {0, -length};
            break;
        case Qt::Key_Down:
            step = {0, length};
            break;
        default:
            break;
    }
    if (step.isNull() || selectedLayer_ < 0) {
        QAbstractScrollArea::keyPressEvent(event);
    } else {
        Q_EMIT layerNudged(selectedLayer_, step);
    }
}

void PreviewView::selectLayer(int index) {
    if (index == selectedLayer_) return;
    selectedLayer_ = index;
    viewport()->update();
}

// ---- painting

void PreviewView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) viewport()->update();
    QAbstractScrollArea::changeEvent(event);
}

void PreviewView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(viewport());
    paintOnDevicePixels(painter);
    paintBackground(painter, geometry_.viewport, palette());
    if (!picture_.isNull()) {
        paintFittedPicture(painter);
    } else if (shown_) {
        paintPicture(painter);
        paintMarks(painter);
    } else {
        paintMessage(painter);
    }
}

QImage PreviewView::seenPicture() const {
    QImage seen(geometry_.viewport, QImage::Format_ARGB32_Premultiplied);
    seen.fill(Qt::transparent);
    QPainter painter(&seen);
    if (shown_) paintPicture(painter);
    return seen;
}

void PreviewView::paintPicture(QPainter& painter) const {
    const QRect area(geometry_.origin(), geometry_.scaledSize());
    if (shown_->scene.picture.hasAlphaChannel()) {
        paintCheckerboard(painter, area.intersected(QRect(QPoint(0, 0), geometry_.viewport)), palette(),
                          devicePixelRatio_);
    }
    const ViewRegion seen = geometry_.visibleRegion();
    const bool isCovered = piece_.region.scale == seen.scale && piece_.region.rect.contains(seen.rect);
    if (!isCovered) paintPiece(painter, whole_);
    paintPiece(painter, piece_);
}

void PreviewView::paintPiece(QPainter& painter, const Piece& piece) const {
    if (piece.image.isNull()) return;
    if (piece.region.scale == geometry_.scale()) {
        painter.drawImage(geometry_.origin() + piece.region.rect.topLeft(), piece.image);
        return;
    }
    // Until it is composed at the new size, what there is stands in for it.
    const double factor = geometry_.scale() / piece.region.scale;
    const QRectF place(QPointF(piece.region.rect.topLeft()) * factor + geometry_.origin(),
                       QSizeF(piece.region.rect.size()) * factor);
    painter.drawImage(place, piece.image);
}

void PreviewView::paintMarks(QPainter& painter) const {
    const int index = isDragging_ ? drag_->index() : selectedLayer_;
    if (index < 0 || static_cast<std::size_t>(index) >= shown_->scene.layers.size()) return;
    const QRectF frame =
        isDragging_ ? drag_->frame() : layerFrame(shown_->scene, static_cast<std::size_t>(index));
    if (!frame.isNull()) paintLayerMark(painter, geometry_.toView(frame), palette(), devicePixelRatio_);
    if (!isDragging_) return;
    const QRectF area = geometry_.toView(QRectF(shown_->scene.referenceRect));
    const Guides& guides = drag_->guides();
    if (guides.x) {
        const double x = geometry_.toView(QPointF(*guides.x, 0)).x();
        paintGuide(painter, {x, area.top(), x, area.bottom()}, palette(), devicePixelRatio_);
    }
    if (guides.y) {
        const double y = geometry_.toView(QPointF(0, *guides.y)).y();
        paintGuide(painter, {area.left(), y, area.right(), y}, palette(), devicePixelRatio_);
    }
}

void PreviewView::paintFittedPicture(QPainter& painter) const {
    const QRect view(QPoint(), geometry_.viewport);
    QRect place(QPoint(), picture_.size().scaled(view.size(), Qt::KeepAspectRatio));
    place.moveCenter(view.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture_);
}

void PreviewView::paintMessage(QPainter& painter) const {
    if (!message_.isEmpty())
        paintCentredMessage(painter, geometry_.viewport, message_, palette(), font(), devicePixelRatio_);
}

}  // namespace zelto
