// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of a JPEG file, found without decoding it. Values in, views out: they live as long as the bytes they were
// taken from. Any thread.
#pragma once

#include <QByteArrayView>
#include <QSize>

#include <optional>
#include <vector>

namespace zelto {

namespace jpeg_marker {
inline constexpr uchar App0 = 0xE0;
inline constexpr uchar App1 = 0xE1;
inline constexpr uchar App2 = 0xE2;
inline constexpr uchar App14 = 0xEE;
inline constexpr uchar App15 = 0xEF;
inline constexpr uchar Comment = 0xFE;
inline constexpr uchar StartOfScan = 0xDA;
inline constexpr uchar EndOfImage = 0xD9;
}  // namespace jpeg_marker

struct JpegSegment {
    uchar marker = 0;
    QByteArrayView whole;    // from the marker on
    QByteArrayView content;  // behind the length

    // Whether it is about the picture rather than part of it. The Adobe segment says how the samples are to be read.
    bool isMetadata() const;
    // Whether it holds an ICC profile, or a part of one.
    bool isProfile() const;
    // The TIFF structure of an Exif segment; empty for any other.
    QByteArrayView exif() const;
};

struct JpegParts {
    std::vector<JpegSegment> segments;  // those before the first scan
    QByteArrayView head;                // from the start of the file to the first scan
    QByteArrayView scanHeader;          // the segment that begins the first scan
    QByteArrayView scans;               // from the first scan to the end of the file, scanHeader included
};

// Nothing where the file is no JPEG or ends before its first scan.
std::optional<JpegParts> jpegParts(QByteArrayView file);

// A JPEG file inside other bytes.
struct JpegExtent {
    qsizetype length = 0;  // of the whole file; up to the end of the bytes where it does not end in them
    QSize size;            // in pixels
    bool isComplete = true;
};

// The JPEG file at the start of `bytes`, which may go on behind it; nothing where none with a frame and a scan starts
// there. Its very first byte may be any: some cameras store another one.
std::optional<JpegExtent> jpegAt(QByteArrayView bytes);

}  // namespace zelto
