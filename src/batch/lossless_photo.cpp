// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/lossless_photo.h"

#include "batch/output_size.h"
#include "pictures/jpeg_rewriter.h"
#include "platform/words.h"
#include "render/composition.h"
#include "render/photo_effects.h"
#include "render/photo_filters.h"

namespace zelto {
namespace {

// Why all pixels of a photo of `size` change; null where they do not.
QString changeOfAll(QSize size, const WatermarkStack& stack, const OutputOptions& options) {
    if (GetFilterName(stack.SelectedFilter) != GetFilterName(0))
        return Words::tr("A filter changes the whole photo.");
    if (stack.Effects && sizeWithEffects(size, *stack.Effects) != size)
        return Words::tr("A border or a shadow is put around it.");
    if (outputSize(size, options) != size) return Words::tr("It is resized.");
    return {};
}

}  // namespace

Result<LosslessPhoto> makeLosslessPhoto(const PhotoRequest& request, const OutputOptions& options) {
    Result<std::unique_ptr<JpegRewriter>> jpeg = JpegRewriter::open(request.path);
    if (!jpeg) return tl::unexpected(std::move(jpeg.error()));
    const QSize size = (*jpeg)->size();
    const WatermarkStack& stack = *request.stack;
    if (const QString change = changeOfAll(size, stack, options); !change.isNull())
        return fail(ErrorCode::Unsupported, change, request.path);

    LosslessPhoto photo{buildLayersAlone(request, size, (*jpeg)->dpiX(), (*jpeg)->dpiY()), {}};
    const PhotoScene& scene = photo.scene;
    return (*jpeg)
        ->rewrite(inkAreas(scene, stack),
                  [&](QImage& part, QPoint corner) {
                      addWatermarkTo(part, layersReaching(scene, QRect(corner, part.size())), stack);
                  })
        .map([&](QByteArray file) {
            photo.file = std::move(file);
            return std::move(photo);
        });
}

}  // namespace zelto
