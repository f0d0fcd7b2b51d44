// SPDX-License-Identifier: GPL-3.0-or-later
#include "render/photo_filters.h"

#include "pictures/image_filters.h"

#include <algorithm>
#include <vector>

namespace zelto {
namespace {

// Saved settings hold the number, so a number keeps its name and its chain for good.
struct PhotoFilter {
    int number;
    QLatin1String name;
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
        {1, QLatin1String("Bubblegum"), {.before = {gains(4.0, 1.0, 4.0)}}},
        {2, QLatin1String("Delhi"), {.before = {lumina, ColorControls{1.0, 0.08, 1.08}}}},
        {3, QLatin1String("Earth"), {.before = {gains(3.5, 3.4, 3.4), grey}, .place = keyhole}},
        {4, QLatin1String("Evening"), {.before = {ColorControls{1.0, 0.03, 0.99}}}},
        {5, QLatin1String("Lumina"), {.before = {lumina}}},
        {6, QLatin1String("Matrix"), {.before = {matrix, matrix}}},
        {7, QLatin1String("Old TV"), {.before = {gains(4.5, 4.5, 4.5), grey}, .place = keyhole}},
        {GrayScaleFilter, QLatin1String("Paris"), {.before = {grey}}},
        {9, QLatin1String("Rome"), {.place = haze, .after = {ColorControls{1.04, 0.0, 1.0}}}},
        {11, QLatin1String("Vintage"), {.sepia = true, .before = {ColorControls{1.025, 0.0, 1.0}}}},
        {12, QLatin1String("Keyhole"), {.place = keyhole}},
        {13, QLatin1String("Haze"), {.place = haze}},
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
    return filter ? QString(filter->name) : QStringLiteral("None");
}

}  // namespace zelto
