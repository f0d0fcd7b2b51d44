// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/jpeg_segments.h"

#include <QtEndian>

#include <algorithm>

namespace zelto {
namespace {

constexpr qsizetype MarkerSize = 2;
constexpr qsizetype LengthSize = 2;

uchar byteAt(QByteArrayView bytes, qsizetype at) {
    return static_cast<uchar>(bytes[at]);
}

// The segment that starts at `at`; nothing where none does or it does not fit.
std::optional<JpegSegment> segmentAt(QByteArrayView file, qsizetype at) {
    if (at + MarkerSize + LengthSize > file.size() || byteAt(file, at) != 0xFF) return std::nullopt;
    const qsizetype length = qFromBigEndian<quint16>(file.data() + at + MarkerSize);
    if (length < LengthSize || at + MarkerSize + length > file.size()) return std::nullopt;
    return JpegSegment{byteAt(file, at + 1), file.sliced(at, MarkerSize + length),
                       file.sliced(at + MarkerSize + LengthSize, length - LengthSize)};
}

bool isFrame(uchar marker) {
    constexpr uchar NotFrames[] = {0xC4, 0xC8, 0xCC};
    return marker >= 0xC0 && marker <= 0xCF &&
           std::find(std::begin(NotFrames), std::end(NotFrames), marker) == std::end(NotFrames);
}

// Where the coded data from `at` on end: at the next marker that is neither a stuffed byte nor a restart.
qsizetype endOfCodedData(QByteArrayView file, qsizetype at) {
    while (at + 1 < file.size()) {
        const uchar next = byteAt(file, at + 1);
        if (byteAt(file, at) == 0xFF && next != 0 && next != 0xFF && (next < 0xD0 || next > 0xD7)) return at;
        ++at;
    }
    return file.size();
}

}  // namespace

bool JpegSegment::isMetadata() const {
    return (marker >= jpeg_marker::App0 && marker <= jpeg_marker::App15 && marker != jpeg_marker::App14) ||
           marker == jpeg_marker::Comment;
}

bool JpegSegment::isProfile() const {
    return marker == jpeg_marker::App2 && content.startsWith(QByteArrayView("ICC_PROFILE\0", 12));
}

QByteArrayView JpegSegment::exif() const {
    constexpr QByteArrayView Name("Exif\0\0", 6);
    return marker == jpeg_marker::App1 && content.startsWith(Name) ? content.sliced(Name.size())
                                                                   : QByteArrayView();
}

std::optional<JpegParts> jpegParts(QByteArrayView file) {
    if (!file.startsWith("\xFF\xD8")) return std::nullopt;
    JpegParts parts;
    qsizetype at = MarkerSize;
    while (const std::optional<JpegSegment> segment = segmentAt(file, at)) {
        if (segment->marker == jpeg_marker::StartOfScan) {
            parts.head = file.first(at);
            parts.scanHeader = segment->whole;
            parts.scans = file.sliced(at);
            return parts;
        }
        parts.segments.push_back(*segment);
        at += segment->whole.size();
    }
    return std::nullopt;
}

std::optional<JpegExtent> jpegAt(QByteArrayView bytes) {
    if (bytes.size() < MarkerSize || byteAt(bytes, 1) != 0xD8) return std::nullopt;
    QSize size;
    bool hasScan = false;
    qsizetype at = MarkerSize;
    while (at + 1 < bytes.size() && byteAt(bytes, at) == 0xFF) {
        if (byteAt(bytes, at + 1) == jpeg_marker::EndOfImage) {
            return hasScan ? std::optional(JpegExtent{at + MarkerSize, size, true}) : std::nullopt;
        }
        const std::optional<JpegSegment> segment = segmentAt(bytes, at);
        if (!segment) break;
        if (isFrame(segment->marker) && segment->content.size() >= 5) {
            const char* const frame = segment->content.data();
            size = QSize(qFromBigEndian<quint16>(frame + 3), qFromBigEndian<quint16>(frame + 1));
        }
        at += segment->whole.size();
        if (segment->marker != jpeg_marker::StartOfScan) continue;
        if (size.isEmpty()) return std::nullopt;
        hasScan = true;
        at = endOfCodedData(bytes, at);
    }
    return hasScan ? std::optional(JpegExtent{bytes.size(), size, false}) : std::nullopt;
}

}  // namespace zelto
