// SPDX-License-Identifier: GPL-3.0-or-later
// Logo watermarks: from a record to the picture that is placed.
#pragma once

#include "records/watermark.h"
#include "render/logo_cache.h"

#include <QImage>
#include <QSize>
#include <QSizeF>

namespace zelto {

struct Logo {
    // With its colour removed and its opacity. It has its final size unless that would be far larger than the photo.
    // Null where the logo cannot be loaded or has no size.
    QImage picture;
    QSizeF size;       // on the photo, whole pixels; the picture is stretched to it where it differs
    QSize loadedSize;  // pixels of the file
};

// The logo of a record for photos whose reference area is `reference`. The bytes in the record come first;
// where they are no picture, the file it names.
Logo loadLogo(const Watermark& record, QSizeF reference, LogoCache& cache);

// The size in whole pixels of a logo of `loaded` pixels; empty where the record's rules give it none.
QSizeF logoSize(const Watermark& record, QSize loaded, QSizeF reference);

}  // namespace zelto
