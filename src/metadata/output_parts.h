// SPDX-License-Identifier: GPL-3.0-or-later
// Which bytes of a written JPEG or TIFF file, or of a WebP stand-in, are its picture and which are about it. exiftool
// only ever touches the latter, so it is given a stand-in, and what it made of that is looked at before it goes into
// the output. Any thread.
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <utility>
#include <vector>

namespace zelto {

// A small file that exiftool treats like `output`: a JPEG without its picture's data; a TIFF, whose directories point
// into them, is its own stand-in.
QByteArray standIn(const QByteArray& output);

// `output`, with the colour profile it may have, and with the metadata that `filled`, its stand-in, has come back with.
// Error: ErrorCode::ProgramFailed where that is no such file any more, to the end of its structure and to the last byte
// of its picture.
Result<QByteArray> withMetadataOf(const QByteArray& filled, const QByteArray& output);

// Whether something was put behind the picture of a stand-in, as some makers' previews are. It is never taken over.
bool hasTrailer(const QByteArray& filled);

// The parts of a file that are about the picture, as positions from and to.
using ByteRange = std::pair<qsizetype, qsizetype>;
std::vector<ByteRange> metadataRanges(QByteArrayView file);

// Whether the Exif or GeoTIFF tags of a file say where on earth its photo was taken.
bool holdsPosition(QByteArrayView file);

}  // namespace zelto
