// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/color_transform.h"

#include "pictures/parallel_rows.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <list>
#include <mutex>

namespace zelto {
namespace {

// The memory format for pixels of a profile's colour space, 0 where the two do not go together.
// A file may name any number as its colour space.
cmsUInt32Number inputFormat(SourcePixels pixels, cmsUInt32Number space) {
    struct Row {
        SourcePixels pixels;
        cmsUInt32Number space;
        cmsUInt32Number format;
    };
    static constexpr Row Rows[] = {
        {SourcePixels::Bgrx8, cmsSigRgbData, TYPE_BGRA_8},
        {SourcePixels::Bgrx8, cmsSigGrayData, GreyInBgrx8},
        {SourcePixels::Rgbx16, cmsSigRgbData, TYPE_RGBA_16},
        {SourcePixels::Rgbx16, cmsSigGrayData, GreyInRgbx16},
        {SourcePixels::Cmyk8, cmsSigCmykData, TYPE_CMYK_8},
        {SourcePixels::InvertedCmyk8, cmsSigCmykData, TYPE_CMYK_8_REV},
    };
    for (const Row& row : Rows) {
        if (row.pixels == pixels && row.space == space) return row.format;
    }
    return 0;
}

// Whether a transform of RGB pixels gives back what it is given, to one level: sRGB goes by many names and
// comes in many encodings, but only sRGB does that.
bool isIdentity(cmsHPROFILE profile, cmsHPROFILE srgb) {
    const TransformHandle transform(
        cmsCreateTransform(profile, TYPE_BGRA_8, srgb, TYPE_BGRA_8, INTENT_PERCEPTUAL, cmsFLAGS_NOCACHE));
    if (!transform) return false;
    constexpr unsigned Steps = 9;
    for (unsigned i = 0; i < Steps * Steps * Steps; ++i) {
        std::array<quint8, 4> color{};
        const unsigned steps[] = {i % Steps, i / Steps % Steps, i / (Steps * Steps)};
        for (std::size_t c = 0; c < 3; ++c) color[c] = static_cast<quint8>(steps[c] * 255 / (Steps - 1));
        std::array<quint8, 4> result{};
        cmsDoTransform(transform.get(), color.data(), result.data(), 1);
        for (std::size_t c = 0; c < 3; ++c) {
            if (std::abs(color[c] - result[c]) > 1) return false;
        }
    }
    return true;
}

using SharedTransform = std::shared_ptr<const ColorTransform>;

// Photos of one batch mostly come from a camera or two.
class Cache {
  public:
    template <class Make>
    SharedTransform find(const QByteArray& key, Make make) {
        // Held while a transform is made: threads that start on the same kind of photo need it only once.
        const std::lock_guard lock(mutex_);
        const auto found = std::ranges::find(entries_, key, &Entry::key);
        if (found != entries_.end()) {
            entries_.splice(entries_.begin(), entries_, found);
        } else {
            SharedTransform made = make();
            if (entries_.size() == Capacity) entries_.pop_back();
            entries_.push_front({key, std::move(made)});
        }
        return entries_.front().transform;
    }

  private:
    static constexpr std::size_t Capacity = 8;
    struct Entry {
        QByteArray key;
        SharedTransform transform;
    };
    std::mutex mutex_;
    std::list<Entry> entries_;  // the last used first
};

}  // namespace

SharedTransform ColorTransform::make(const QByteArray& profile, SourcePixels pixels) {
    const Profile source(
        cmsOpenProfileFromMem(profile.constData(), static_cast<cmsUInt32Number>(profile.size())));
    if (!source) return nullptr;
    const cmsUInt32Number format = inputFormat(pixels, cmsGetColorSpace(source.get()));
    if (format == 0) return nullptr;
    const Profile srgb = srgbProfile();
    const bool isRgb = T_COLORSPACE(format) == PT_RGB;
    if (isRgb && isIdentity(source.get(), srgb.get())) return nullptr;

    const auto made = std::make_shared<ColorTransform>();
    using Depth = AdditiveTransform::Depth;
    made->additive_ =
        AdditiveTransform::make(source.get(), pixels == SourcePixels::Rgbx16 ? Depth::Bits16 : Depth::Bits8);
    if (made->additive_) return made;
    // Shared by threads, so without lcms2's one-pixel cache. Its usual coarser grid is levels off in dark tones.
    made->lcms_.reset(cmsCreateTransform(source.get(), format, srgb.get(), TYPE_BGRA_8, INTENT_PERCEPTUAL,
                                         cmsFLAGS_NOCACHE | (isRgb ? cmsFLAGS_HIGHRESPRECALC : 0)));
    return made->lcms_ ? made : nullptr;
}

SharedTransform ColorTransform::makeFromSrgb(const QByteArray& profile) {
    const Profile target(
        cmsOpenProfileFromMem(profile.constData(), static_cast<cmsUInt32Number>(profile.size())));
    if (!target) return nullptr;
    const cmsUInt32Number format = inputFormat(SourcePixels::Bgrx8, cmsGetColorSpace(target.get()));
    if (format == 0) return nullptr;
    const auto made = std::make_shared<ColorTransform>();
    made->writesGrey_ = format == GreyInBgrx8;
    made->lcms_.reset(cmsCreateTransform(srgbProfile().get(), TYPE_BGRA_8, target.get(), format,
                                         INTENT_PERCEPTUAL, cmsFLAGS_NOCACHE | cmsFLAGS_HIGHRESPRECALC));
    return made->lcms_ ? made : nullptr;
}

namespace {

// One of few kept transforms, by the profile and what it is for.
template <class Make>
SharedTransform kept(const QByteArray& profile, char use, Make make) {
    static Cache cache;
    const QByteArray key = QCryptographicHash::hash(profile, QCryptographicHash::Sha1) + use;
    return cache.find(key, [&] {
        const LcmsMemory memory;
        SharedTransform transform = make();
        memory.check();
        return transform;
    });
}

}  // namespace

SharedTransform ColorTransform::toSrgb(const QByteArray& profile, SourcePixels pixels) {
    if (profile.isEmpty()) return nullptr;
    return kept(profile, static_cast<char>(pixels), [&] { return make(profile, pixels); });
}

SharedTransform ColorTransform::fromSrgb(const QByteArray& profile) {
    return kept(profile, 'f', [&] { return makeFromSrgb(profile); });
}

void ColorTransform::apply(const uchar* source, qsizetype stride, QImage& target) const {
    if (additive_) {
        additive_->apply(source, stride, target);
        return;
    }
    uchar* bits = target.bits();
    const qsizetype targetStride = target.bytesPerLine();
    parallelRows(target.height(), target.width(), [&](int first, int end) {
        cmsDoTransformLineStride(
            lcms_.get(), source + stride * first, bits + targetStride * first,
            static_cast<cmsUInt32Number>(target.width()), static_cast<cmsUInt32Number>(end - first),
            static_cast<cmsUInt32Number>(stride), static_cast<cmsUInt32Number>(targetStride), 0, 0);
        if (!writesGrey_) return;
        for (int y = first; y < end; ++y) {
            uchar* pixel = bits + targetStride * y;
            for (int x = 0; x < target.width(); ++x, pixel += 4) pixel[2] = pixel[1] = pixel[0];
        }
    });
}

}  // namespace zelto
