// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/preview_view.h"

#include "app/common/check_mark.h"
#include "app/common/hearing.h"
#include "app/preview/preview_paint.h"
#include "render/hand_edits.h"
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
    setAccessibleRole(*this, QAccessible::Canvas);
    setMinimumSize(100, 80);
}

void PreviewView::apply(const PreviewUpdate& update) {
    const bool isOtherPhoto = !shown_ || shown_->path != update.shown->path;
    const bool isOtherSize = !shown_ || shown_->scene.picture.size() != update.shown->scene.picture.size();
    shown_ = update.shown;
    isBare_ = update.isBare;
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
    endGesture(false);
    shown_.reset();
    piece_ = {};
    whole_ = {};
    message_ = message;
    ViewGeometry geometry = geometry_;
    geometry.picture = {};
    setGeometryAndView(geometry);
    viewport()->update();
}

void PreviewView::showSign(const QString& sign) {
    if (sign == sign_) return;
    sign_ = sign;
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
    setGeometryAndView(geometry_.zoomedAbout(1.0, QRectF(QPointF(), geometry_.viewport).center()));
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

// The handles of the selected layer, which only a layer with a single place has.
std::optional<LayerHandles> PreviewView::handles() const {
    if (!shown_ || isBare_ || selectedLayer_ < 0) return std::nullopt;
    const auto index = static_cast<std::size_t>(selectedLayer_);
    const std::vector<Watermark>& records = shown_->stack->Watermarks;
    if (index >= records.size() || !records[index].IsEnabled || !isMovable(records[index]))
        return std::nullopt;
    const std::optional<LayerOutline> outline = layerOutline(shown_->scene, index);
    if (!outline || outline->size.isEmpty()) return std::nullopt;
    return handlesOf(*outline, canBeTurned(records[index]), geometry_, devicePixelRatio_);
}

std::optional<Grip> PreviewView::gripUnder(const QMouseEvent& event) const {
    const std::optional<LayerHandles> held = handles();
    return held ? gripAt(*held, devicePoint(event.position()), devicePixelRatio_) : std::nullopt;
}

void PreviewView::take(int index, const Grip& grip, const QMouseEvent& event) {
    gesture_.emplace(shown_->scene, *shown_->stack, index, grip, picturePoint(event));
}

void PreviewView::mousePressEvent(QMouseEvent* event) {
    pressed_ = devicePoint(event->position());
    if (!shown_ || gesture_) return;
    if (event->button() == Qt::MiddleButton) {
        isPanning_ = true;
    } else if (event->button() == Qt::LeftButton) {
        if (const std::optional<Grip> grip = gripUnder(*event)) {
            take(selectedLayer_, *grip, *event);
        } else {
            const std::optional<int> layer = isBare_ ? std::nullopt : layerUnder(*event);
            Q_EMIT layerPicked(layer.value_or(-1));
            if (layer && isMovable(shown_->stack->Watermarks[static_cast<std::size_t>(*layer)])) {
                take(*layer, {}, *event);
            } else {
                isPanning_ = true;
            }
        }
    } else if (event->button() == Qt::RightButton) {
        Q_EMIT layerPicked(layerUnder(*event).value_or(-1));
    }
    updateCursor(*event);
}

void PreviewView::mouseMoveEvent(QMouseEvent* event) {
    const QPointF point = devicePoint(event->position());
    if (gesture_) {
        const double distance = QApplication::startDragDistance() * devicePixelRatio_;
        if (!hasMoved_ && (point - pressed_).manhattanLength() >= distance) {
            hasMoved_ = true;
            Q_EMIT gestureBegan(gesture_->index());
        }
        if (hasMoved_) {
            const bool snaps = !event->modifiers().testFlag(Qt::AltModifier);
            const double snap = snaps ? SnapDistance * devicePixelRatio_ / scale() : 0.0;
            const bool isFree = event->modifiers().testFlag(Qt::ShiftModifier);
            Q_EMIT gestureMoved(gesture_->moveTo(picturePoint(*event), snap, isFree), gesture_->grip().part);
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
    endGesture(true);
    updateCursor(*event);
}

void PreviewView::mouseDoubleClickEvent(QMouseEvent* event) {
    endGesture(false);
    if (const std::optional<int> layer = layerUnder(*event)) Q_EMIT layerActivated(*layer);
}

void PreviewView::endGesture(bool isKept) {
    gesture_.reset();
    if (!std::exchange(hasMoved_, false)) return;
    Q_EMIT gestureEnded(isKept);
    viewport()->update();
}

void PreviewView::updateCursor(const QMouseEvent& event) {
    if (const std::optional<Grip> grip = gesture_ ? gesture_->grip() : gripUnder(event)) {
        const std::optional<LayerHandles> held = handles();
        viewport()->setCursor(cursorFor(*grip, held ? held->degrees : 0.0));
        return;
    }
    const std::optional<int> layer = isBare_ ? std::nullopt : layerUnder(event);
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
    if (event->key() == Qt::Key_Escape && gesture_) {
        endGesture(false);
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

void PreviewView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void PreviewView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
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
    if (!sign_.isEmpty()) paintSign(painter, geometry_.viewport, sign_, palette(), font(), devicePixelRatio_);
    if (hasFocus()) {
        painter.resetTransform();
        paintFocus(painter, viewport()->rect(), false, palette());
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
    if (isBare_) return;
    const std::optional<LayerHandles> held = handles();
    const QRectF frame =
        selectedLayer_ < 0 ? QRectF() : layerFrame(shown_->scene, static_cast<std::size_t>(selectedLayer_));
    if (frame.isNull()) return;
    const QRectF seen = geometry_.toView(frame);
    paintLayerMark(painter, held ? held->outline : QPolygonF(seen), palette(), devicePixelRatio_);
    const bool isMoved = hasMoved_ && gesture_->grip().part == Grip::Part::Body;
    if (isMoved) {
        PlaceGuides guides = placeGuides(shown_->stack->Watermarks[static_cast<std::size_t>(selectedLayer_)],
                                         frame, QRectF(shown_->scene.referenceRect));
        for (QLineF& line : guides.lines) line = geometry_.toView(line);
        for (PlaceGuides::Distance& distance : guides.distances)
            distance.line = geometry_.toView(distance.line);
        paintGuides(painter, guides, seen, palette(), font(), devicePixelRatio_);
    } else if (held) {
        paintHandles(painter, *held, palette(), devicePixelRatio_);
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
