// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/color_profile.h"

#include "pictures/color_transform.h"
#include "pictures/picture_memory.h"

namespace zelto {
namespace {

bool isWide(const QImage& picture) {
    return picture.format() == QImage::Format_Grayscale16 || picture.depth() > 32;
}

}  // namespace

QImage convertedToSrgb(QImage picture, const QByteArray& profile) {
    if (picture.isNull()) return picture;
    const bool hasAlpha = picture.hasAlphaChannel();
    const bool wide = isWide(picture);
    const QImage::Format format = hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    const auto transform = ColorTransform::toSrgb(profile, wide ? SourcePixels::Rgbx16 : SourcePixels::Bgrx8);
    if (wide && transform) {
        picture = converted(
            std::move(picture).convertToFormat(hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64));
        QImage narrow = converted(picture.convertToFormat(format));
        transform->apply(picture.constBits(), picture.bytesPerLine(), narrow);
        return narrow;
    }
    picture = converted(std::move(picture).convertToFormat(format));
    if (transform) transform->apply(picture.bits(), picture.bytesPerLine(), picture);
    return picture;
}

void convertCmykToSrgb(QImage& picture, InkScale inks, const QByteArray& profile) {
    if (picture.isNull()) return;
    const bool inverted = inks == InkScale::FullIs0;
    const auto transform =
        ColorTransform::toSrgb(profile, inverted ? SourcePixels::InvertedCmyk8 : SourcePixels::Cmyk8);
    if (transform) transform->apply(picture.bits(), picture.bytesPerLine(), picture);
    const int flip = inverted ? 0 : 255;
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* inksOfPixel = picture.scanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x, inksOfPixel += 4) {
            if (transform) {
                pixels[x] |= 0xFF000000U;
                continue;
            }
            // Ideal inks: each takes away its own share of the light that the paper and the black leave.
            const int light = inksOfPixel[3] ^ flip;
            const auto share = [&](int ink) { return (inksOfPixel[ink] ^ flip) * light / 255; };
            pixels[x] = qRgb(share(0), share(1), share(2));
        }
    }
}

const QByteArray& adobeRgb1998Profile() {
    static const QByteArray bytes = [] {
        const LcmsMemory memory;
        // Adobe RGB (1998) Color Image Encoding, section 4.3.1: these primaries, gamma 2 51/256.
        const Profile profile = rgbProfile(AdobeRgbPrimaries, 2.19921875);
        cmsUInt32Number length = 0;
        cmsSaveProfileToMem(profile.get(), nullptr, &length);
        QByteArray saved(static_cast<qsizetype>(length), '\0');
        cmsSaveProfileToMem(profile.get(), saved.data(), &length);
        memory.check();
        return saved;
    }();
    return bytes;
}

}  // namespace zelto
