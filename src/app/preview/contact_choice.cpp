// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/preview/contact_choice.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

namespace zelto {
namespace {

// How different two photos look: twice the width at the same height counts for as much as four times the pixels. The
// place in the list decides between photos that are alike.
double difference(const std::vector<QSize>& sizes, std::size_t a, std::size_t b) {
    const auto shape = [](QSize size) {
        return std::log2(static_cast<double>(size.width()) / size.height());
    };
    const auto pixels = [](QSize size) {
        return std::log2(static_cast<double>(size.width()) * size.height());
    };
    const double places = a > b ? static_cast<double>(a - b) : static_cast<double>(b - a);
    return std::abs(shape(sizes[a]) - shape(sizes[b])) + std::abs(pixels(sizes[a]) - pixels(sizes[b])) / 2.0 +
           0.01 * places / static_cast<double>(sizes.size());
}

}  // namespace

std::vector<int> differentPhotos(const std::vector<QSize>& sizes, int first, int count) {
    std::vector<double> distance(sizes.size(), std::numeric_limits<double>::max());
    std::vector<int> chosen;
    const auto take = [&](std::size_t place) {
        chosen.push_back(static_cast<int>(place));
        distance[place] = 0.0;
        for (std::size_t other = 0; other < sizes.size(); ++other) {
            if (!sizes[other].isEmpty())
                distance[other] = std::min(distance[other], difference(sizes, place, other));
        }
    };
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        if (sizes[i].isEmpty()) distance[i] = 0.0;
    }
    if (first >= 0 && static_cast<std::size_t>(first) < sizes.size() &&
        !sizes[static_cast<std::size_t>(first)].isEmpty())
        take(static_cast<std::size_t>(first));
    while (static_cast<int>(chosen.size()) < count) {
        const auto farthest = std::max_element(distance.begin(), distance.end());
        if (farthest == distance.end() || *farthest <= 0.0) break;
        take(static_cast<std::size_t>(farthest - distance.begin()));
    }
    std::sort(chosen.begin(), chosen.end());
    return chosen;
}

std::vector<int> spreadRows(const std::vector<int>& rows, int row, int count) {
    if (static_cast<int>(rows.size()) <= count) return rows;
    std::set<int> spread = {row};
    const double step = static_cast<double>(rows.size()) / count;
    for (int i = 0; i < count && static_cast<int>(spread.size()) < count; ++i) {
        spread.insert(rows[static_cast<std::size_t>(i * step)]);
    }
    return {spread.begin(), spread.end()};
}

}  // namespace zelto
