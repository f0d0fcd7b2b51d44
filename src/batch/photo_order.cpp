// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/photo_order.h"

#include "metadata/image_properties.h"
#include "platform/path_parts.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zelto {
namespace {

PhotoOrder orderAsAdded(std::size_t photos) {
    PhotoOrder order(photos);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

}  // namespace

PhotoOrder inverseOf(const PhotoOrder& order) {
    PhotoOrder inverse(order.size());
    for (std::size_t place = 0; place < order.size(); ++place) inverse[order[place]] = place;
    return inverse;
}

PhotoOrder orderByName(const std::vector<Image>& images) {
    // Without a language, Qt compares code by code and knows no numbers.
    const QLocale own;
    QCollator collator(own.language() == QLocale::C ? QLocale(QLocale::English) : own);
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<std::pair<QCollatorSortKey, QCollatorSortKey>> keys;  // name and folder
    keys.reserve(images.size());
    for (const Image& image : images) {
        keys.emplace_back(collator.sortKey(lastPathComponent(image.ImagePath)),
                          collator.sortKey(withoutLastPathComponent(image.ImagePath)));
    }
    PhotoOrder order = orderAsAdded(images.size());
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const int byName = keys[a].first.compare(keys[b].first);
        return byName != 0 ? byName < 0 : keys[a].second.compare(keys[b].second) < 0;
    });
    return order;
}

PhotoOrder orderByMoment(const QStringList& moments) {
    PhotoOrder order = orderAsAdded(static_cast<std::size_t>(moments.size()));
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const QString& first = moments[static_cast<qsizetype>(a)];
        const QString& second = moments[static_cast<qsizetype>(b)];
        return first.isEmpty() || second.isEmpty() ? !first.isEmpty() && second.isEmpty() : first < second;
    });
    return order;
}

QString momentTaken(const QString& path) {
    const QVariantMap exif = readImageProperties(path).exif;
    for (const auto& [moment, fraction] : {std::pair("DateTimeOriginal", "SubsecTimeOriginal"),
                                           std::pair("DateTimeDigitized", "SubsecTimeDigitized")}) {
        const QString text = exif.value(QLatin1String(moment)).toString();
        // A clock that was never set tells a row of zeros or blanks.
        if (text.size() < 10 || !text.front().isDigit() || text.startsWith(QLatin1String("0000"))) continue;
        return text + exif.value(QLatin1String(fraction)).toString();
    }
    return {};
}

}  // namespace zelto
