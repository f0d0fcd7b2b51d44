// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_size.h"

#include "render/photo_effects.h"

#include <algorithm>
#include <limits>

namespace zelto {
namespace {

// Room for the products below: two 31-bit factors fit into 64 bits.
struct Extent {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

std::int64_t limited(std::int64_t value) {
    return std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

Extent withWidth(Extent photo, std::int64_t width) {
    return {width, width * photo.height / photo.width};
}

Extent withHeight(Extent photo, std::int64_t height) {
    return {height * photo.width / photo.height, height};
}

Extent pixelsInProportion(Extent photo, Extent asked) {
    if (asked.width == 0 && asked.height == 0) return {};
    if (asked.height == 0) return withWidth(photo, asked.width);
    if (asked.width == 0) return withHeight(photo, asked.height);
    // The asked proportion is a whole number here: 800 x 600 counts as 1.
    const std::int64_t askedProportion = asked.width / asked.height;
    const double proportion = static_cast<double>(photo.width) / static_cast<double>(photo.height);
    return proportion > static_cast<double>(askedProportion) ? withWidth(photo, asked.width)
                                                             : withHeight(photo, asked.height);
}

Extent longerSide(Extent photo, std::int64_t side, bool inProportion) {
    if (photo.height > photo.width) return inProportion ? withHeight(photo, side) : Extent{photo.width, side};
    return inProportion ? withWidth(photo, side) : Extent{side, photo.height};
}

}  // namespace

QSize outputSize(QSize photo, const OutputOptions& options) {
    if (!options.ResizeImage || photo.isEmpty()) return photo;
    const Extent source{photo.width(), photo.height()};
    const Extent asked{limited(options.ResizeWidth), limited(options.ResizeHeight)};
    Extent size;
    switch (options.ResizeType) {
        case resize_type::Percentage:
            size = {source.width * asked.width / 100, source.height * asked.height / 100};
            break;
        case resize_type::Pixels:
            size = options.AspectRatio ? pixelsInProportion(source, asked) : asked;
            break;
        case resize_type::LongerSide:
            size = longerSide(source, limited(options.LongestsideSize), options.AspectRatio);
            break;
        default:
            return {0, 0};
    }
    const bool enlarges = size.width > source.width || size.height > source.height;
    if (enlarges && options.DontEnlargeSmallImage && options.ResizeType != resize_type::Percentage)
        return photo;
    return {static_cast<int>(limited(size.width)), static_cast<int>(limited(size.height))};
}

QSize writtenSize(QSize photo, const OutputOptions& options, const std::optional<PhotoEffects>& effects) {
    if (options.ResizeImage || !effects) return outputSize(photo, options);
    return sizeWithEffects(photo, *effects);
}

}  // namespace zelto
