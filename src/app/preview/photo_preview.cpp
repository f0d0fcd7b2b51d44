// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/photo_preview.h"

#include "app/photos/image_list_controller.h"
#include "app/watermarks/watermark_controller.h"
#include "platform/dates.h"
#include "platform/path_parts.h"
#include "render/effect_diagnostics.h"
#include "render/placement.h"
#include "render/scene_geometry.h"

#include <QLoggingCategory>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(preview, "zelto.preview", QtWarningMsg)

// How long an effect must have stayed as it is before its pictures are written: encoding takes seconds.
constexpr int DiagnosticsMilliseconds = 1500;

// What takes longer says that it is at work.
constexpr int PatienceMilliseconds = 300;

}  // namespace

PhotoPreview::PhotoPreview(ImageListController& photos, WatermarkController& watermarks, PreviewView& view,
                           QObject* parent)
    : QObject(parent),
      photos_(photos),
      watermarks_(watermarks),
      document_(watermarks.document()),
      view_(view),
      diagnostics_([](const QImage& framed) {
          const Result<void> written = writeEffectDiagnostics(framed, framed);
          if (!written) qCWarning(preview, "%s", qUtf8Printable(written.error().message));
      }),
      logos_(std::make_shared<LogoCache>()) {
    diagnosticsDue_.setSingleShot(true);
    diagnosticsDue_.setInterval(DiagnosticsMilliseconds);
    connect(&diagnosticsDue_, &QTimer::timeout, this, &PhotoPreview::writeDiagnostics);
    patience_.setSingleShot(true);
    patience_.setInterval(PatienceMilliseconds);
    connect(&patience_, &QTimer::timeout, this, &PhotoPreview::showSign);
    connect(&photos_, &ImageListController::photoSelected, this, &PhotoPreview::selectImage);
    connect(&photos_.model(), &QAbstractItemModel::rowsInserted, this,
            [this] { builder_.updateLayers(request()); });
    connect(&document_, &WatermarkDocument::changed, this, &PhotoPreview::follow);
    connect(&view_, &PreviewView::viewChanged, &builder_, &SceneBuilder::setView);
    connect(&builder_, &SceneBuilder::updated, this, &PhotoPreview::take);
    connect(&builder_, &SceneBuilder::failed, this, [this](const QString& /*path*/, const QString& message) {
        endWaiting();
        watermarks_.model().setWarnings({});
        view_.showMessage(tr("This photo cannot be shown") + QLatin1Char('\n') + message);
    });

    connect(&view_, &PreviewView::layerPicked, &watermarks_, &WatermarkController::selectWatermark);
    connect(&view_, &PreviewView::gestureBegan, this, &PhotoPreview::beginGesture);
    connect(&view_, &PreviewView::gestureMoved, this, &PhotoPreview::moveGesture);
    connect(&view_, &PreviewView::gestureEnded, this, &PhotoPreview::endGesture);
    connect(&view_, &PreviewView::layerNudged, this, &PhotoPreview::nudge);
    connect(&watermarks_.selection(), &QItemSelectionModel::selectionChanged, this,
            [this] { view_.selectLayer(watermarks_.watermarkRowIndexAfterRemovingFilterAndMetadata()); });
}

PhotoRequest PhotoPreview::requestFor(int row, bool final) const {
    PhotoRequest request;
    request.path = row < 0 ? sample_ : photos_.model().index(row).data(PhotoListModel::PathRole).toString();
    request.row = std::max(0, row);
    request.listSize = std::max(1, photos_.count());
    request.final = final;
    request.now = QDateTime::currentDateTime();
    request.locale = userDateLocale();
    request.stack = document_.snapshot();
    request.logos = logos_;
    return request;
}

PhotoRequest PhotoPreview::requestFor(int row) const {
    // Where watermarks may lie on the border, the shadow around it is not shown: it is not part of the place
    // they may take.
    const std::optional<PhotoEffects>& effects = watermarks_.GetEffect();
    return requestFor(row, !(effects && effects->ApplyWatermarkOnBorder));
}

PhotoRequest PhotoPreview::request() const {
    return requestFor(photos_.selectedRow());
}

PhotoRequest PhotoPreview::finalRequest() const {
    return requestFor(photos_.selectedRow(), true);
}

void PhotoPreview::showSample(const QString& path) {
    if (path == sample_) return;
    sample_ = path;
    if (photos_.selectedRow() < 0) selectImage(-1);
}

std::optional<MacroContext> PhotoPreview::shownContext() const {
    const auto& shown = view_.shown();
    if (!shown) return std::nullopt;
    PhotoRequest shownRequest = request();
    shownRequest.path = shown->path;
    return macroContext(shown->scene, shownRequest);
}

void PhotoPreview::beginRun() {
    isRunning_ = true;
    endWaiting();
    watermarks_.model().setWarnings({});
}

void PhotoPreview::showRunPicture(const QImage& picture) {
    if (isRunning_) view_.showPicture(picture);
}

void PhotoPreview::endRun() {
    if (!std::exchange(isRunning_, false)) return;
    view_.showPicture({});
    selectImage(photos_.selectedRow());
}

void PhotoPreview::selectImage(int row) {
    if (isRunning_) return;
    neighboursOf_ = -1;
    if (row < 0 && sample_.isEmpty()) {
        endWaiting();
        builder_.clear();
        watermarks_.model().setWarnings({});
        view_.showMessage({});
    } else {
        beginWaiting();
        builder_.showPhoto(request());
    }
}

void PhotoPreview::beginWaiting() {
    if (!patience_.isActive()) patience_.start();
}

void PhotoPreview::endWaiting() {
    patience_.stop();
    view_.showSign({});
}

// Another photo is not to be taken for the one that is awaited; one that is only being filtered stays.
void PhotoPreview::showSign() {
    if (isRunning_) return;
    const QString path = request().path;
    const bool isThisPhoto = view_.shown() && view_.shown()->path == path;
    if (!isThisPhoto) view_.showMessage({});
    view_.showSign(isThisPhoto ? tr("Working...") : tr("Loading %1...").arg(lastPathComponent(path)));
}

void PhotoPreview::follow(const StackChange& change) {
    view_.selectLayer(watermarks_.watermarkRowIndexAfterRemovingFilterAndMetadata());
    if (photos_.selectedRow() < 0 && sample_.isEmpty()) return;
    if (change.filter || change.effects) {
        beginWaiting();
        builder_.showPhoto(request());
    } else if (change.list) {
        builder_.updateLayers(request());
    } else if (!change.records.empty()) {
        builder_.updateLayers(request(), change.records);
    }
}

void PhotoPreview::take(const PreviewUpdate& update) {
    const PhotoScene& scene = update.shown->scene;
    if (update.isOtherPicture && update.shown->stack->SelectedFilter != 0) {
        qCInfo(preview, "photo size = %d x %d", scene.photoSize.width(), scene.photoSize.height());
        qCInfo(preview, "filtered size = %d x %d", scene.imageRect.width(), scene.imageRect.height());
    }
    if (update.isOtherPicture) {
        endWaiting();
        diagnosticsDue_.start();
    }
    view_.apply(update);
    const bool isCurrent = update.shown->stack == document_.snapshot();
    if (isCurrent && !isRunning_) showWarnings(scene);
    for (std::size_t i = 0; isCurrent && i < scene.layers.size(); ++i) {
        if (!scene.layers[i] || scene.layers[i]->logoSize.isEmpty()) continue;
        document_.amendRecord(static_cast<int>(i), [size = scene.layers[i]->logoSize](Watermark& logo) {
            logo.Width = static_cast<float>(size.width());
            logo.Height = static_cast<float>(size.height());
        });
    }
    prefetchNeighbours();
    Q_EMIT shown();
}

void PhotoPreview::showWarnings(const PhotoScene& scene) {
    QStringList texts;
    for (const std::optional<PhotoWarning>& warning : scene.warnings) {
        texts.append(warning ? warning->text : QString());
    }
    watermarks_.model().setWarnings(texts);
}

// The effect step leaves its picture in the home folder; the preview takes that step where watermarks may lie on the
// border.
void PhotoPreview::writeDiagnostics() {
    const auto& scene = view_.shown();
    const bool hasStep = scene && scene->stack->Effects && scene->stack->Effects->ApplyWatermarkOnBorder;
    if (hasStep) diagnostics_.post(scene->scene.picture);
}

void PhotoPreview::prefetchNeighbours() {
    const int row = photos_.selectedRow();
    if (row == neighboursOf_) return;
    neighboursOf_ = row;
    std::vector<PhotoRequest> neighbours;
    for (const int neighbour : {row + 1, row - 1}) {
        if (neighbour < 0 || neighbour >= photos_.count()) continue;
        neighbours.push_back(request());
        neighbours.back().path = photos_.model().index(neighbour).data(PhotoListModel::PathRole).toString();
    }
    builder_.prefetch(neighbours);
}

void PhotoPreview::nudge(int index, QPoint step) {
    const auto& scene = view_.shown();
    if (!scene || !document_.contains(index)) return;
    const Watermark& watermark = watermarks_.GetWatermarkAtRow(index);
    const QSizeF size = layerFrame(scene->scene, static_cast<std::size_t>(index)).size();
    if (size.isNull() || !isMovable(watermark)) return;
    // Keys come faster than pictures: the place that the record has counts, not the one that is seen.
    const QRectF area(scene->scene.referenceRect);
    const QRectF from = fromArea(placedFrame(watermark, size, area.size()), area);
    const QRectF to(reachablePlace(from.topLeft() + step, size, area), size);
    Watermark moved = watermark;
    placeAt(moved, toArea(to, area), area.size(), Anchoring::Nearest);
    watermarks_.placeWatermark(index, moved, tr("Place Watermark"), QStringLiteral("nudge"));
}

void PhotoPreview::beginGesture(int index) {
    if (!document_.contains(index)) return;
    gesture_ = {index, watermarks_.GetWatermarkAtRow(index), QStringLiteral("gesture%1").arg(++gestures_)};
}

void PhotoPreview::moveGesture(const LayerEdit& edit, Grip::Part part) {
    if (!gesture_) return;
    Watermark record = gesture_->start;
    edit(record);
    const QString name = part == Grip::Part::Body     ? tr("Place Watermark")
                         : part == Grip::Part::Corner ? tr("Resize Watermark")
                                                      : tr("Turn Watermark");
    watermarks_.placeWatermark(gesture_->index, record, name, gesture_->step);
}

void PhotoPreview::endGesture(bool isKept) {
    // A step that has led back to where it began vanishes.
    if (gesture_ && !isKept) watermarks_.placeWatermark(gesture_->index, gesture_->start, {}, gesture_->step);
    gesture_.reset();
}

}  // namespace zelto
