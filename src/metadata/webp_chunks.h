// SPDX-License-Identifier: GPL-3.0-or-later
// The chunks of a WebP file, found without decoding it. Views live as long as the bytes they were taken from. Any
// thread.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>
#include <vector>

namespace zelto {

struct WebpChunk {
    QByteArrayView name;  // four letters
    QByteArrayView content;

    // Whether it is about the picture rather than part of it.
    bool isMetadata() const { return name == "EXIF" || name == "XMP " || name == "ICCP"; }
};

// Nothing where the file is no WebP or ends before its last chunk does.
std::optional<std::vector<WebpChunk>> webpChunks(QByteArrayView file);

// The TIFF structure of its Exif block, and its XMP packet; empty where there is none.
QByteArrayView exifOfWebp(QByteArrayView file);
QByteArrayView xmpOfWebp(QByteArrayView file);

// A file of a few white pixels.
QByteArray smallestWebp();

}  // namespace zelto
