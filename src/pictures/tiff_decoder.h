// SPDX-License-Identifier: GPL-3.0-or-later
// The TIFF pictures that Qt's plugin would flatten: CMYK, which it turns into RGB without a thought for the
// profile, and grey with alpha, whose alpha it drops. Strips and tiles, joined and separate planes, 8 and 16
// bits per channel. Any thread.
#pragma once

#include "pictures/picture_facts.h"

#include <QIODevice>
#include <QImage>

#include <optional>

namespace zelto {

// Nothing where the file ends early or its headers are broken.
std::optional<PictureFacts> readTiffFacts(QIODevice& device);

// Adds what reading the file's strips or tiles takes, which may be far more than the pixels: they can be larger than
// the picture, and hold many samples that are never shown.
void addTiffChunks(QIODevice& device, PictureNeeds& needs);

struct TiffSamples {
    bool isCmyk = false;
    // As stored, null where the data is damaged. CMYK: 32-bit pixels of the bytes C, M, Y, K with 255 for
    // full ink; grey: ARGB32, premultiplied where the file's are.
    QImage image;
};

// Nothing for the layouts that are left to the plugin.
std::optional<TiffSamples> readTiffSamples(QIODevice& device);

// Whether this TIFF file is a camera's raw file within: it is a DNG, or one of its pictures is sensor data. What its
// first directory shows is then no more than a thumbnail.
bool isCameraRaw(QIODevice& device);

}  // namespace zelto
