// SPDX-License-Identifier: GPL-3.0-or-later
// How large and how many the pictures of a HEVC or AV1 stream are, by the headers in the stream itself.
// Written from ISO/IEC 23008-2 (HEVC) and the AV1 bitstream specification. Any thread.
#pragma once

#include <QByteArrayView>

namespace zelto {

// Of a picture with these sides, whatever they are.
qint64 codedPixels(quint64 width, quint64 height);

struct CodedStream {
    qint64 largest = 0;   // pixels of the largest picture, 0 where none is described
    qint64 pictures = 0;  // or slices of them, each of which may be as large as its picture
};

// `data` as they stand in a HEIC file, each unit behind its length in four bytes, with the parameters that the file
// keeps outside of them ("hvcC").
CodedStream hevcStream(QByteArrayView configuration, QByteArrayView data);
// The same for AVIF ("av1C").
CodedStream av1Stream(QByteArrayView configuration, QByteArrayView data);

}  // namespace zelto
