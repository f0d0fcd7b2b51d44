// SPDX-License-Identifier: GPL-3.0-or-later
// What exiftool is told for one output file, as pure functions: values in, argument lists out. How the arguments
// reach the program, and what becomes of its answers, is left to others. Any thread.
#pragma once

#include "records/copyright_metadata.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace zelto {

struct MetadataRequest {
    QString output;  // the JPEG, TIFF or WebP that gets the metadata
    QString source;  // the photo that has them
    std::int64_t exifDataToInclude = 0;
    double resolution = 72.0;  // of the output picture, dots per inch
    std::optional<CopyRightMetaData>
        copyright;  // written where it is enabled and the choice is not "Exclude All"
};

// The argument list that copies the metadata of the source.
QStringList metadataArguments(const MetadataRequest& request);

// What the list above leaves undone in an output, found by looking at it.
struct MetadataFaults {
    bool resolution = false;  // the output does not record the request's resolution
    bool positions = false;   // it may say where the photo was taken, though it is not to
    bool pictures = false;  // it holds pictures of the photo without its watermarks, in XMP or behind its own
    bool isJpeg = true;     // and not a TIFF or WebP, which have no JFIF block
};

// The argument list of a second command that sets right where the first misses what it is for; empty when nothing is to
// be done. Known to be missed by exiftool 12.57: "-geotag=" deletes no position; under "-n" a copyright status is stored
// as the word instead of its code; a copied Exif unit is stored as the JFIF unit, whose codes mean something else; a
// resolution that the source has in another block is lost or becomes one without a unit; and previews are copied like
// any other tag. Of a place, its position goes and its name stays.
QStringList mendArguments(const MetadataRequest& request, const MetadataFaults& faults);

}  // namespace zelto
