// SPDX-License-Identifier: GPL-3.0-or-later
// What a file says about its picture that Qt's image format plugins do not pass on, or pass on only in part:
// whether it is complete, its resolution, its EXIF orientation, its ICC profile. One function a format; each
// leaves `device` wherever it likes. Any thread.
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSize>

#include <optional>

namespace zelto {

struct PictureFacts {
    int orientation = 1;  // EXIF, 1 to 8
    double dpiX = 0.0;    // as stored (not upright); 0 where none is recorded
    double dpiY = 0.0;
    // The profile to convert from, empty for sRGB. Not set where the plugin knows the colours.
    std::optional<QByteArray> profile;
};

// Nothing where the file ends early or its headers are broken.
std::optional<PictureFacts> readPngFacts(QIODevice& device);
std::optional<PictureFacts> readTiffFacts(QIODevice& device);
std::optional<PictureFacts> readGifFacts(QIODevice& device);
std::optional<PictureFacts> readBmpFacts(QIODevice& device);
std::optional<PictureFacts> readWebpFacts(QIODevice& device);

// Whether a file of `fileBytes` bytes can hold a picture of `size` pixels. No format packs a photo that
// tightly where this says no: such a header is an attempt to make the program reserve memory.
bool isReadableSize(QSize size, qint64 fileBytes);

}  // namespace zelto
