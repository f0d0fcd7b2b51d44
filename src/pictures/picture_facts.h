// SPDX-License-Identifier: GPL-3.0-or-later
// What a file says about its picture beside the pixels: resolution, EXIF orientation, ICC profile. The function reads
// it where no decoder passes it on, and check that the file is complete; each leaves `device` wherever it likes.
#pragma once

#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"
#include "pictures/resolution.h"
#include "pictures/upright.h"

#include <QByteArray>
#include <QIODevice>

#include <optional>
#include <utility>

namespace zelto {

struct PictureFacts {
    int orientation = 1;  // EXIF, 1 to 8
    double dpiX = 0.0;    // as stored (not upright); 0 where none is recorded
    double dpiY = 0.0;
    // The profile to convert from, empty for sRGB. Not set where the decoded picture knows its colours.
    std::optional<QByteArray> profile = std::nullopt;
};

// Those of a BMP file, which no decoder passes on. Leaves `device` wherever it likes.
std::optional<PictureFacts> readBmpFacts(QIODevice& device);

// What a picture of `stored` pixels that takes `memory` bytes to decode needs in all, being turned included.
PictureNeeds needsOf(QSize stored, const PictureFacts& facts, qint64 memory);

// Records the resolution of a Picture or of PictureNeeds, swapped where the picture lies on its side.
template <class Of>
void setResolution(Of& of, double storedDpiX, double storedDpiY, int orientation) {
    of.dpiX = intendedDpi(storedDpiX);
    of.dpiY = intendedDpi(storedDpiY);
    if (swapsAxes(orientation)) std::swap(of.dpiX, of.dpiY);
}

// The picture that `facts` make of stored pixels: sRGB, upright, premultiplied. Nothing of a null picture.
std::optional<Picture> finishedPicture(QImage stored, const PictureFacts& facts);
// The same of pixels that are sRGB already.
std::optional<Picture> finishedSrgbPicture(QImage stored, const PictureFacts& facts);

}  // namespace zelto
