// SPDX-License-Identifier: GPL-3.0-or-later
// The few EXIF values that decide how a picture is shown. Everything else in EXIF belongs to the image
// properties.
#pragma once

#include <QByteArrayView>

namespace zelto {

struct ExifFacts {
    int orientation = 1;  // 1 to 8
    double dpiX = 0.0;    // as stored (not upright); 0 where none is recorded
    double dpiY = 0.0;
    bool isDcfAdobeRgb = false;  // a camera's way to say Adobe RGB (1998) without an ICC profile
};

// `exif` starts with the TIFF header ("II" or "MM"), or with "Exif" and two zeros before it. What cannot be understood
// keeps its default. Any thread.
ExifFacts readExifFacts(QByteArrayView exif);

}  // namespace zelto
