// SPDX-License-Identifier: GPL-3.0-or-later
// The entries of a TIFF structure, as an Exif block or a TIFF file is one, without an opinion on what they mean. Any
// thread.
#pragma once

#include <QByteArrayView>

#include <vector>

namespace zelto {

namespace tiff_tag {
inline constexpr quint16 StripOffsets = 273;
inline constexpr quint16 StripByteCounts = 279;
inline constexpr quint16 GpsDirectory = 0x8825;
}  // namespace tiff_tag

struct TiffEntry {
    int directory = 0;  // its place in the chain; 0 is the picture's own
    quint16 tag = 0;
    quint16 type = 0;
    bool isLittleEndian = true;
    QByteArrayView value;  // its bytes as stored, wherever that is

    // The value of whole numbers of 16 and 32 bits; empty for other types.
    std::vector<quint32> numbers() const;
};

// The entries of the directories in the chain, not of those that entries lead to. What does not fit into the bytes is
// left out, so that every view lies within them. `tiff` starts with the header ("II" or "MM").
std::vector<TiffEntry> tiffEntries(QByteArrayView tiff);

// Whether nothing of the picture's own directory has been left out.
bool isFirstDirectoryWhole(QByteArrayView tiff);

// The first entry with `tag` in the picture's own directory; null where there is none.
const TiffEntry* tiffEntry(const std::vector<TiffEntry>& entries, quint16 tag);

}  // namespace zelto
