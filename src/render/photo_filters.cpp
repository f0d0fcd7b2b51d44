// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_filters.h"

#include "pictures/image_filters.h"
#include "platform/words.h"

#include <algorithm>
#include <vector>

namespace zelto {
namespace {

// Saved settings hold the number, so a number keeps its name and its chain for good.
struct PhotoFilter {
    int number;
    MarkedText name;
    FilterChain chain;
};

CrossPolynomial gains(double red, double green, double blue) {
    return {{red, 0.0, 0.0}, {0.0, green, 0.0}, {0.0, 0.0, blue}};
}

const std::vector<PhotoFilter>& photoFilters() {
    const ColorControls grey{.contrast = 1.0, .brightness = 0.0, .saturation = 0.0};
    const CrossPolynomial lumina = gains(3.5, 3.5, 3.5);
    const CrossPolynomial matrix{{0.0, 0.5, 0.0}, {1.0, 1.0, 1.0}, {0.0, 0.5, 0.0}};
    const VignetteEffect keyhole{.intensity = 0.8};
    const WhiteGradientOver haze{.innerRadius = 0.6, .outerRadius = 1.0};
    static const std::vector<PhotoFilter> filters = {
        {1, MarkedText(QT_TRANSLATE_NOOP("Words", "Bubblegum")), {.before = {gains(4.0, 1.0, 4.0)}}},
        {2,
         MarkedText(QT_TRANSLATE_NOOP("Words", "Delhi")),
         {.before = {lumina, ColorControls{1.0, 0.08, 1.08}}}},
        {3,
         MarkedText(QT_TRANSLATE_NOOP("Words", "Earth")),
         {.before = {gains(3.5, 3.4, 3.4), grey}, .place = keyhole}},
        {4, MarkedText(QT_TRANSLATE_NOOP("Words", "Evening")), {.before = {ColorControls{1.0, 0.03, 0.99}}}},
        {5, MarkedText(QT_TRANSLATE_NOOP("Words", "Lumina")), {.before = {lumina}}},
        {6, MarkedText(QT_TRANSLATE_NOOP("Words", "Matrix")), {.before = {matrix, matrix}}},
        {7,
         MarkedText(QT_TRANSLATE_NOOP("Words", "Old TV")),
         {.before = {gains(4.5, 4.5, 4.5), grey}, .place = keyhole}},
        {GrayScaleFilter, MarkedText(QT_TRANSLATE_NOOP("Words", "Paris")), {.before = {grey}}},
        {9,
         MarkedText(QT_TRANSLATE_NOOP("Words", "Rome")),
         {.place = haze, .after = {ColorControls{1.04, 0.0, 1.0}}}},
        {11,
         MarkedText(QT_TRANSLATE_NOOP("Words", "Vintage")),
         {.sepia = true, .before = {ColorControls{1.025, 0.0, 1.0}}}},
        {12, MarkedText(QT_TRANSLATE_NOOP("Words", "Keyhole")), {.place = keyhole}},
        {13, MarkedText(QT_TRANSLATE_NOOP("Words", "Haze")), {.place = haze}},
    };
    return filters;
}

const PhotoFilter* findFilter(int number) {
    const auto& filters = photoFilters();
    const auto found = std::find_if(filters.begin(), filters.end(),
                                    [number](const PhotoFilter& filter) { return filter.number == number; });
    return found == filters.end() ? nullptr : &*found;
}

}  // namespace

QImage ApplyFilter(int number, QImage picture) {
    const PhotoFilter* const filter = findFilter(number);
    return filter ? applyFilterChain(std::move(picture), filter->chain) : picture;
}

QString GetFilterName(int number) {
    const PhotoFilter* const filter = findFilter(number);
    return filter ? QString(filter->name) : Words::tr("None");
}

}  // namespace zelto
