// SPDX-License-Identifier: GPL-3.0-or-later
// One photo made ready: loaded, filtered, framed, and every watermark of the stack turned into a placed layer. The
// preview shows a scene and the batch run writes one. Both build it here, so what is seen is what is written:
//
//     Result<PhotoScene> scene = buildPhotoScene({.path = path, .now = now, .locale = locale, .stack = stack});
//     if (scene) QImage finished = MakeWatermarkImage(*std::move(scene), *stack);
//
// What all of this folder has in common. Functions depend on their arguments alone, but for the caches their headers
// name, and may run on any thread, several at a time; those that lay out text need a QGuiApplication. Lengths are photo
// pixels. Records and frames count y upward from the bottom-left corner of the area they lie in; pictures and
// everything drawn on them count y downward from the top left, as Qt does. Pictures are sRGB, RGB32 or premultiplied
// ARGB32. Where memory does not suffice in the middle of drawing, std::bad_alloc ends the whole photo (canvas.h).
#pragma once

#include "macros/macro_expander.h"
#include "metadata/image_properties.h"
#include "pictures/picture_reader.h"
#include "platform/result.h"
#include "records/photo_warning.h"
#include "records/watermark_stack.h"
#include "render/logo_cache.h"
#include "render/watermark_view.h"

#include <QDateTime>
#include <QImage>
#include <QLocale>
#include <QRect>
#include <QSize>
#include <QString>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace zelto {

// Everything a scene depends on. The stack is a snapshot shared by all photos of a run and never changes.
struct PhotoRequest {
    QString path;
    qint64 row = 0;       // place in the photo list, from 0
    qint64 listSize = 1;  // photos in the list
    bool batchRunning = false;
    bool final = true;  // draw the photo's shadow, as the written picture has it
    QDateTime now;      // the moment the run's dates speak of
    QLocale locale;
    std::shared_ptr<const WatermarkStack> stack;
    std::shared_ptr<LogoCache> logos{};  // shared by the photos of a run; may be none
};

struct PhotoScene {
    QSize photoSize;  // upright pixels of the file
    double dpiX = 72.0;
    double dpiY = 72.0;
    QImage picture;    // filtered and framed, without watermarks
    QSize size;        // of `picture`; it is larger than that where a reduced photo stands for the photo
    QRect imageRect;   // the photo inside `picture`, pixels, y up
    QRect borderRect;  // the framed photo inside `picture`, pixels, y up
    // The area watermarks are placed in, pixels of `picture`, y down: the photo, or the framed photo where watermarks
    // may lie on the border. A shadow around the photo is not part of it.
    QRect referenceRect;
    // The photo's metadata, for the texts that print some; kept so that an edit does not read the file again.
    std::shared_ptr<const LazyImageProperties> properties;
    // One place per record of the stack, in order; empty where a record yields no layer.
    std::vector<std::optional<WatermarkView>> layers;
    // One place per record as well, filled where an enabled one draws nothing or nothing that can be seen.
    std::vector<std::optional<PhotoWarning>> warnings;
    std::optional<qint64> lastAutoNumber;  // see MacroExpansion
};

// Error: as readPicture; ErrorCode::OutOfMemory where memory does not suffice, ErrorCode::Unsupported where border and
// shadow would make the photo larger than any may be.
Result<PhotoScene> buildPhotoScene(const PhotoRequest& request);

// The same for a photo already in memory. Move the photo in: without a filter and a frame its pixels are then
// the scene's, uncopied.
Result<PhotoScene> buildPhotoScene(const PhotoRequest& request, Picture photo);

// The scene of a photo of `size` pixels that is left where it is, under a stack without filter and frame: it has layers
// and no picture. Throws std::bad_alloc.
PhotoScene buildLayersAlone(const PhotoRequest& request, QSize size, double dpiX, double dpiY);

// The same for a photo of `photoSize` pixels of which only a reduced picture is at hand, for a look at it in a small
// size: everything is placed as on the photo itself and then drawn on the reduced picture. Filters and shadows are those
// of the reduced picture, which look alike.
Result<PhotoScene> buildPhotoScene(const PhotoRequest& request, Picture reduced, QSize photoSize);

// What is told of a photo that memory does not suffice for.
Error notEnoughMemory(const QString& path);

// What the texts of a scene are expanded with.
MacroContext macroContext(const PhotoScene& scene, const PhotoRequest& request);

// The warnings of a scene, in the order of its records.
std::vector<PhotoWarning> warningsOf(const PhotoScene& scene);

// After an edit of the stack: the layers of a scene built anew from the request's stack, the photo as it was.
// The stack's filter and effect must still be those the scene was built with. Throws std::bad_alloc.
void MakeWatermarkChanges(PhotoScene& scene, const PhotoRequest& request);

// The same for the one layer at `index`, which must be one of the stack's.
void UpdateWatermark(PhotoScene& scene, const PhotoRequest& request, std::size_t index);

}  // namespace zelto
