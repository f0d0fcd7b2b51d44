// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/recorded_resolution.h"

#include "metadata/jpeg_segments.h"
#include "metadata/webp_chunks.h"
#include "pictures/exif_facts.h"
#include "pictures/resolution.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace zelto {
namespace {

// The density of a JFIF segment's content; 0 where it states no unit.
double jfifDpi(QByteArrayView jfif) {
    const char unit = jfif[7];
    const double density = qFromBigEndian<quint16>(jfif.data() + 8);
    if (unit == 1) return density;
    return unit == 2 ? density * 2.54 : 0.0;
}

std::vector<double> resolutionsOf(const JpegParts& jpeg) {
    std::vector<double> found;
    for (const JpegSegment& segment : jpeg.segments) {
        const QByteArrayView content = segment.content;
        if (segment.marker == jpeg_marker::App0 && content.size() >= 12 &&
            content.startsWith(QByteArrayView("JFIF\0", 5))) {
            found.push_back(jfifDpi(content));
        } else if (!segment.exif().isEmpty()) {
            found.push_back(readExifFacts(segment.exif()).dpiX);
        }
    }
    return found;
}

}  // namespace

bool recordsResolution(QByteArrayView file, double dpi) {
    const std::optional<JpegParts> jpeg = jpegParts(file);
    const QByteArrayView exif = webpChunks(file) ? exifOfWebp(file) : file;
    std::vector<double> stated = jpeg ? resolutionsOf(*jpeg) : std::vector{readExifFacts(exif).dpiX};
    if (stated.empty()) stated.push_back(DefaultDpi);
    constexpr double WholeDotsPerCentimetre = 1.28;
    return std::all_of(stated.begin(), stated.end(), [dpi](double value) {
        return std::abs(intendedDpi(value) - dpi) <= WholeDotsPerCentimetre;
    });
}

}  // namespace zelto
