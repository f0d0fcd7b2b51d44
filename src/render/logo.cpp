// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/logo.h"

#include "pictures/picture_additions.h"
#include "pictures/picture_reader.h"
#include "pictures/resample.h"
#include "render/canvas.h"
#include "render/lengths.h"
#include "render/opacity.h"
#include "render/photo_filters.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace zelto {
namespace {

LogoKey keyOf(const Watermark& record) {
    LogoKey key;
    key.data = record.ImageData;
    key.path = record.ImagePath;
    if (!key.path.isEmpty()) {
        const QFileInfo file(key.path);
        key.fileSize = file.exists() ? file.size() : -1;
        key.fileTime = file.lastModified().toMSecsSinceEpoch();
    }
    if (record.IsTransparent) key.removedColor = record.TransparentColor;
    key.blackAndWhite = record.CreateBW;
    key.opacity = opacityOf(record.Transparency);
    return key;
}

// The picture that was read; null where there is none. That memory ran out says nothing of the file.
QImage imageOf(Result<Picture> picture) {
    if (!picture && picture.error().code == ErrorCode::OutOfMemory) throw std::bad_alloc();
    return picture ? std::move(picture->image) : QImage();
}

QImage readLogo(const Watermark& record) {
    QImage logo;
    if (!record.ImageData.isEmpty()) logo = imageOf(decodePicture(record.ImageData));
    if (logo.isNull() && !record.ImagePath.isEmpty()) logo = imageOf(readPicture(record.ImagePath));
    return logo;
}

QImage treatedLogo(const Watermark& record, const LogoKey& key) {
    QImage logo = readLogo(record);
    if (logo.isNull()) return logo;
    if (key.removedColor) {
        const Color& color = *key.removedColor;
        logo = allocated(replaceColor(std::move(logo), color.Red, color.Green, color.Blue));
    }
    if (key.blackAndWhite) logo = allocated(ApplyFilter(GrayScaleFilter, std::move(logo)));
    return allocated(imageWithOpacity(std::move(logo), key.opacity));
}

// At least one pixel where there is any length at all, so that a thin line does not vanish.
double wholeLength(double length) {
    return length > 0.0 && std::isfinite(length) ? std::max(1.0, std::round(length)) : 0.0;
}

}  // namespace

QSizeF logoSize(const Watermark& record, QSize loaded, QSizeF reference) {
    const QSizeF asLoaded(loaded);
    if (!record.Resize || loaded.isEmpty()) return asLoaded;
    QSizeF size;
    if (record.ResizeFormat == logo_resize::Absolute) {
        size = QSizeF(record.ResizeWidth, record.ResizeHeight);
    } else if (const auto side = sideNamed(record.ImageProportionalResize, reference)) {
        if (*side == Side::Width) {
            const double width = relativeLength(record.ResizeWidth, reference.width());
            size = QSizeF(width, asLoaded.height() / asLoaded.width() * width);
        } else {
            const double height = relativeLength(record.ResizeWidth, reference.height());
            size = QSizeF(asLoaded.width() / asLoaded.height() * height, height);
        }
    }
    const QSizeF whole(wholeLength(size.width()), wholeLength(size.height()));
    return whole.isEmpty() ? QSizeF() : whole;
}

Logo loadLogo(const Watermark& record, QSizeF reference, LogoCache& cache) {
    const LogoKey key = keyOf(record);
    Logo logo;
    logo.picture = cache.picture(key, [&] { return treatedLogo(record, key); });
    logo.loadedSize = logo.picture.size();
    logo.size = logoSize(record, logo.loadedSize, reference);
    if (logo.size.isEmpty()) {
        logo.picture = QImage();
        return logo;
    }
    // A logo far larger than the photo shows only in part: it is stretched while it is drawn instead of being
    // made whole in memory.
    constexpr double LargestOverPhoto = 2.0;
    const double pixels = logo.size.width() * logo.size.height();
    if (pixels > LargestOverPhoto * reference.width() * reference.height()) return logo;
    LogoKey sized = key;
    sized.size = logo.size.toSize();
    if (sized.size != logo.loadedSize) {
        const QImage& treated = logo.picture;
        logo.picture = cache.picture(sized, [&] { return allocated(resizedImage(treated, sized.size)); });
    }
    return logo;
}

}  // namespace zelto
