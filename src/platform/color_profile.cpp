// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/color_profile.h"

#include <QCryptographicHash>

#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <list>
#include <memory>
#include <mutex>
#include <vector>

namespace zelto {
namespace {

struct CloseProfile {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
struct DeleteTransform {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Profile = std::unique_ptr<void, CloseProfile>;
using TransformHandle = std::unique_ptr<void, DeleteTransform>;

// The memory a transform reads. What it writes is always 32-bit BGRX; the fourth byte is left alone.
enum class Pixels { Bgrx8, Rgbx16, Cmyk8, InvertedCmyk8 };

constexpr cmsUInt32Number OutputFormat = TYPE_BGRA_8;

// Grey pictures arrive with three equal components, of which the first is read.
constexpr cmsUInt32Number greyOf(int bytes) {
    return COLORSPACE_SH(PT_GRAY) | CHANNELS_SH(1) | EXTRA_SH(3) | BYTES_SH(static_cast<unsigned>(bytes));
}

// The memory format for pixels of a profile's colour space, 0 where the two do not go together.
cmsUInt32Number inputFormat(Pixels pixels, cmsColorSpaceSignature space) {
    struct Row {
        Pixels pixels;
        cmsColorSpaceSignature space;
        cmsUInt32Number format;
    };
    static constexpr Row Rows[] = {
        {Pixels::Bgrx8, cmsSigRgbData, TYPE_BGRA_8},
        {Pixels::Bgrx8, cmsSigGrayData, greyOf(1)},
        {Pixels::Rgbx16, cmsSigRgbData, TYPE_RGBA_16},
        {Pixels::Rgbx16, cmsSigGrayData, greyOf(2)},
        {Pixels::Cmyk8, cmsSigCmykData, TYPE_CMYK_8},
        {Pixels::InvertedCmyk8, cmsSigCmykData, TYPE_CMYK_8_REV},
    };
    for (const Row& row : Rows) {
        if (row.pixels == pixels && row.space == space) return row.format;
    }
    return 0;
}

// Whether a transform of RGB pixels gives back what it is given, to one level: sRGB goes by many names and
// comes in many encodings, but only sRGB does that.
bool isIdentity(void* transform, Pixels pixels) {
    constexpr int Steps = 9;
    constexpr int Count = Steps * Steps * Steps;
    std::array<std::array<quint8, 4>, Count> samples{};
    std::array<std::array<quint16, 4>, Count> wideSamples{};
    for (int i = 0; i < Count; ++i) {
        const int levels[] = {i % Steps, i / Steps % Steps, i / (Steps * Steps)};
        for (std::size_t c = 0; c < 3; ++c) {
            const auto level = static_cast<quint8>(levels[c] * 255 / (Steps - 1));
            samples[std::size_t(i)][c] = level;
            wideSamples[std::size_t(i)][2 - c] = static_cast<quint16>(level * 257);
        }
    }
    std::array<std::array<quint8, 4>, Count> results{};
    const void* input = pixels == Pixels::Rgbx16 ? static_cast<const void*>(&wideSamples) : &samples;
    cmsDoTransform(transform, input, &results, Count);
    for (std::size_t i = 0; i < Count; ++i) {
        for (std::size_t c = 0; c < 3; ++c) {
            if (std::abs(samples[i][c] - results[i][c]) > 1) return false;
        }
    }
    return true;
}

// Null when the profile cannot be used for such pixels or would change nothing.
TransformHandle makeTransform(const QByteArray& profileBytes, Pixels pixels) {
    const Profile source(
        cmsOpenProfileFromMem(profileBytes.constData(), static_cast<cmsUInt32Number>(profileBytes.size())));
    if (!source) return nullptr;
    const cmsUInt32Number format = inputFormat(pixels, cmsGetColorSpace(source.get()));
    if (format == 0) return nullptr;
    const Profile srgb(cmsCreate_sRGBProfile());
    // Shared by threads, so without lcms2's one-pixel cache.
    TransformHandle transform(cmsCreateTransform(source.get(), format, srgb.get(), OutputFormat,
                                                 INTENT_PERCEPTUAL, cmsFLAGS_NOCACHE));
    const bool isRgb = T_COLORSPACE(format) == PT_RGB;
    if (transform && isRgb && isIdentity(transform.get(), pixels)) return nullptr;
    return transform;
}

// Photos of one batch mostly come from a camera or two.
class TransformCache {
  public:
    std::shared_ptr<void> transformFor(const QByteArray& profile, Pixels pixels) {
        if (profile.isEmpty()) return nullptr;
        QByteArray key = QCryptographicHash::hash(profile, QCryptographicHash::Sha1);
        key.append(static_cast<char>(pixels));
        // Held while a transform is made: threads that start on the same kind of photo need it only once.
        const std::lock_guard lock(mutex_);
        auto found =
            std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.key == key; });
        if (found == entries_.end()) {
            if (entries_.size() == Capacity) entries_.pop_back();
            entries_.push_front({key, makeTransform(profile, pixels)});
        } else {
            entries_.splice(entries_.begin(), entries_, found);
        }
        return entries_.front().transform;
    }

  private:
    static constexpr std::size_t Capacity = 8;
    struct Entry {
        QByteArray key;
        std::shared_ptr<void> transform;
    };
    std::mutex mutex_;
    std::list<Entry> entries_;  // the last used first
};

std::shared_ptr<void> transformFor(const QByteArray& profile, Pixels pixels) {
    static TransformCache cache;
    return cache.transformFor(profile, pixels);
}

void transformPixels(void* transform, const uchar* source, qsizetype sourceStride, QImage& target) {
    cmsDoTransformLineStride(transform, source, target.bits(), static_cast<cmsUInt32Number>(target.width()),
                             static_cast<cmsUInt32Number>(target.height()),
                             static_cast<cmsUInt32Number>(sourceStride),
                             static_cast<cmsUInt32Number>(target.bytesPerLine()), 0, 0);
}

bool isWide(const QImage& picture) {
    return picture.format() == QImage::Format_Grayscale16 || picture.depth() > 32;
}

}  // namespace

QImage convertedToSrgb(QImage picture, const QByteArray& profile) {
    if (picture.isNull()) return picture;
    const bool hasAlpha = picture.hasAlphaChannel();
    const Pixels pixels = isWide(picture) ? Pixels::Rgbx16 : Pixels::Bgrx8;
    const std::shared_ptr<void> transform = transformFor(profile, pixels);
    const QImage::Format format = hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    if (pixels == Pixels::Rgbx16 && transform) {
        picture.convertTo(hasAlpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64);
        QImage narrow = picture.convertToFormat(format);
        if (!narrow.isNull())
            transformPixels(transform.get(), picture.constBits(), picture.bytesPerLine(), narrow);
        return narrow;
    }
    picture.convertTo(format);
    if (transform && !picture.isNull()) {
        uchar* bits = picture.bits();
        transformPixels(transform.get(), bits, picture.bytesPerLine(), picture);
    }
    return picture;
}

void convertCmykToSrgb(QImage& picture, InkScale inks, const QByteArray& profile) {
    if (picture.isNull()) return;
    const bool inverted = inks == InkScale::FullIs0;
    const std::shared_ptr<void> transform =
        transformFor(profile, inverted ? Pixels::InvertedCmyk8 : Pixels::Cmyk8);
    if (transform) {
        uchar* bits = picture.bits();
        transformPixels(transform.get(), bits, picture.bytesPerLine(), picture);
    }
    const int flip = inverted ? 0 : 255;
    for (int y = 0; y < picture.height(); ++y) {
        uchar* line = picture.scanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(line);
        for (int x = 0; x < picture.width(); ++x, line += 4) {
            if (transform) {
                pixels[x] |= 0xFF000000U;
                continue;
            }
            // Ideal inks: each takes away its own share of the light that the paper and the black leave.
            const int light = line[3] ^ flip;
            pixels[x] = qRgb((line[0] ^ flip) * light / 255, (line[1] ^ flip) * light / 255,
                             (line[2] ^ flip) * light / 255);
        }
    }
}

const QByteArray& adobeRgb1998Profile() {
    static const QByteArray bytes = [] {
        // Adobe RGB (1998) Color Image Encoding, section 4.3.1: D65 white, these primaries, gamma 2 51/256.
        const cmsCIExyY white{0.3127, 0.3290, 1.0};
        const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
        cmsToneCurve* curve = cmsBuildGamma(nullptr, 2.19921875);
        cmsToneCurve* const curves[] = {curve, curve, curve};
        const Profile profile(cmsCreateRGBProfile(&white, &primaries, curves));
        cmsFreeToneCurve(curve);
        cmsUInt32Number length = 0;
        cmsSaveProfileToMem(profile.get(), nullptr, &length);
        QByteArray saved(static_cast<qsizetype>(length), '\0');
        cmsSaveProfileToMem(profile.get(), saved.data(), &length);
        return saved;
    }();
    return bytes;
}

}  // namespace zelto
