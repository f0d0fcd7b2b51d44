// SPDX-License-Identifier: GPL-3.0-or-later
// Orders a photo list can be put into on demand. By itself it keeps the order in which photos were added. Any thread.
#pragma once

#include "records/image.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <vector>

namespace zelto {

// For each place of the list, the row whose photo comes there.
using PhotoOrder = std::vector<std::size_t>;

// The order that takes `order` back.
PhotoOrder inverseOf(const PhotoOrder& order);

// By file names as people read them, IMG_2 before IMG_10; photos of one name by their folders.
PhotoOrder orderByName(const std::vector<Image>& images);

// By the moments of the photos, as momentTaken() tells them; those without one come last. Photos of one moment keep
// their order.
PhotoOrder orderByMoment(const QStringList& moments);

// When the photo was taken, by its camera's clock, in a form whose texts sort by time; empty where the photo does not
// tell. Reads the photo's metadata.
QString momentTaken(const QString& path);

}  // namespace zelto
