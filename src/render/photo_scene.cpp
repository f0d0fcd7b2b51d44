// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_scene.h"

#include "platform/words.h"
#include "render/canvas.h"
#include "render/layer_builder.h"
#include "render/photo_effects.h"
#include "render/photo_filters.h"

#include <memory>
#include <new>
#include <utility>

namespace zelto {
namespace {

// Whether the frame was put on; there is none that would make the photo too large.
bool frame(PhotoScene& scene, const std::optional<PhotoEffects>& effect, bool final) {
    scene.size = scene.photoSize;
    scene.imageRect = QRect(QPoint(), scene.photoSize);
    scene.borderRect = scene.imageRect;
    scene.referenceRect = scene.imageRect;
    if (!effect) return true;
    const FramedPlaces places = framedPlaces(scene.photoSize, *effect, final);
    if (places.size.isEmpty()) return false;
    const QSize reduced = scene.picture.size();
    QRect image;
    QRect border;
    scene.picture = allocated(imagewithEffects(
        std::move(scene.picture),
        reduced == scene.photoSize ? *effect : reducedEffect(*effect, scene.photoSize, reduced), image,
        border, final));
    scene.size = places.size;
    scene.imageRect = places.image;
    scene.borderRect = places.border;
    scene.referenceRect = effect->ApplyWatermarkOnBorder ? scene.borderRect : scene.imageRect;
    scene.referenceRect.moveBottom(scene.size.height() - 1 - scene.referenceRect.top());
    return true;
}

std::optional<PhotoWarning> warningFor(std::size_t index, const Watermark& record,
                                       const std::optional<LayerWarning>& warning) {
    if (!warning || !record.IsEnabled) return std::nullopt;
    const auto place = static_cast<std::int64_t>(index);
    return PhotoWarning{place, warning->kind,
                        Words::tr("Watermark %1: %2").arg(place + 1).arg(warning->text)};
}

// Layers of `scene` from the record at `first` up to the one before `end`.
void buildLayers(PhotoScene& scene, const PhotoRequest& request, std::size_t first, std::size_t end) {
    LogoCache logosOfThisPhoto;
    const LayerContext context{.reference = scene.referenceRect.size(),
                               .macros = macroContext(scene, request),
                               .logos = request.logos ? request.logos.get() : &logosOfThisPhoto};
    const std::vector<Watermark>& records = request.stack->Watermarks;
    scene.layers.resize(records.size());
    scene.warnings.resize(records.size());
    for (std::size_t i = first; i < end; ++i) {
        BuiltLayer built = GetWatermarkViewfromWatermark(records.at(i), context);
        scene.layers[i] = std::move(built.view);
        scene.warnings[i] = warningFor(i, records[i], built.warning);
        if (built.lastAutoNumber) scene.lastAutoNumber = built.lastAutoNumber;
    }
}

}  // namespace

MacroContext macroContext(const PhotoScene& scene, const PhotoRequest& request) {
    return {.photoPath = request.path,
            .pixelSize = scene.photoSize,
            .dpiX = scene.dpiX,
            .dpiY = scene.dpiY,
            .row = request.row,
            .listSize = request.listSize,
            .batchRunning = request.batchRunning,
            .now = request.now,
            .locale = request.locale,
            .properties = scene.properties};
}

Result<PhotoScene> buildPhotoScene(const PhotoRequest& request) {
    Result<Picture> photo = readPicture(request.path);
    if (!photo) return tl::unexpected<Error>(std::move(photo.error()));
    return buildPhotoScene(request, std::move(*photo));
}

Error notEnoughMemory(const QString& path) {
    return {ErrorCode::OutOfMemory, Words::tr("There is not enough memory for this photo."), path};
}

Result<PhotoScene> buildPhotoScene(const PhotoRequest& request, Picture photo) {
    const QSize size = photo.image.size();
    return buildPhotoScene(request, std::move(photo), size);
}

Result<PhotoScene> buildPhotoScene(const PhotoRequest& request, Picture photo, QSize photoSize) try {
    PhotoScene scene;
    scene.photoSize = photoSize;
    scene.dpiX = photo.dpiX;
    scene.dpiY = photo.dpiY;
    scene.properties = std::make_shared<LazyImageProperties>(request.path);
    scene.picture = std::move(photo.image);
    const WatermarkStack& stack = *request.stack;
    if (stack.SelectedFilter != 0) {
        scene.picture = allocated(ApplyFilter(stack.SelectedFilter, std::move(scene.picture)));
    }
    if (!frame(scene, stack.Effects, request.final)) {
        return fail(ErrorCode::Unsupported,
                    Words::tr("Its border and shadow would make this photo too large."), request.path);
    }
    MakeWatermarkChanges(scene, request);
    return scene;
} catch (const std::bad_alloc&) {
    return tl::unexpected(notEnoughMemory(request.path));
}

PhotoScene buildLayersAlone(const PhotoRequest& request, QSize size, double dpiX, double dpiY) {
    PhotoScene scene;
    scene.photoSize = scene.size = size;
    scene.dpiX = dpiX;
    scene.dpiY = dpiY;
    scene.properties = std::make_shared<LazyImageProperties>(request.path);
    scene.imageRect = scene.borderRect = scene.referenceRect = QRect(QPoint(0, 0), size);
    MakeWatermarkChanges(scene, request);
    return scene;
}

std::vector<PhotoWarning> warningsOf(const PhotoScene& scene) {
    std::vector<PhotoWarning> warnings;
    for (const std::optional<PhotoWarning>& warning : scene.warnings) {
        if (warning) warnings.push_back(*warning);
    }
    return warnings;
}

void MakeWatermarkChanges(PhotoScene& scene, const PhotoRequest& request) {
    scene.lastAutoNumber.reset();
    buildLayers(scene, request, 0, request.stack->Watermarks.size());
}

void UpdateWatermark(PhotoScene& scene, const PhotoRequest& request, std::size_t index) {
    buildLayers(scene, request, index, index + 1);
}

}  // namespace zelto
