// SPDX-License-Identifier: GPL-3.0-or-later
// One ICC profile's conversion to or from sRGB for one form of pixels. Making one is dear (milliseconds, for CMYK
// tens of them), so the last few are kept, shared by all threads. Any thread.
#pragma once

#include "pictures/additive_transform.h"
#include "pictures/lcms.h"

#include <QByteArray>
#include <QImage>

#include <memory>
#include <optional>

namespace zelto {

// The memory a transform reads. Grey profiles read the first of three equal components.
enum class SourcePixels { Bgrx8, Rgbx16, Cmyk8, InvertedCmyk8 };

class ColorTransform {
  public:
    // Null where the profile is broken, empty, not for such pixels, or sRGB itself.
    static std::shared_ptr<const ColorTransform> toSrgb(const QByteArray& profile, SourcePixels pixels);

    // From sRGB, in Bgrx8. Null where the profile does not say how to come to its colours.
    static std::shared_ptr<const ColorTransform> fromSrgb(const QByteArray& profile);

    // Writes red, green and blue of every pixel of `target`, which has 32-bit pixels and keeps its fourth
    // byte. The source may be the target's own memory where its pixels have 32 bits, too; it must be for
    // Bgrx8.
    void apply(const uchar* source, qsizetype stride, QImage& target) const;

  private:
    static std::shared_ptr<const ColorTransform> make(const QByteArray& profile, SourcePixels pixels);
    static std::shared_ptr<const ColorTransform> makeFromSrgb(const QByteArray& profile);

    std::optional<AdditiveTransform> additive_;
    TransformHandle lcms_;     // where it is not additive
    bool writesGrey_ = false;  // into the first component alone
};

}  // namespace zelto
