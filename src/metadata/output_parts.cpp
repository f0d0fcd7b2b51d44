// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/output_parts.h"

#include "metadata/jpeg_segments.h"
#include "metadata/tiff_entries.h"
#include "metadata/webp_chunks.h"
#include "pictures/tiff_decoder.h"
#include "platform/words.h"

#include <QBuffer>

#include <algorithm>
#include <array>
#include <optional>

namespace zelto {
namespace {

constexpr QByteArrayView JpegEnd("\xFF\xD9", 2);

QByteArray joined(std::initializer_list<QByteArrayView> parts) {
    QByteArray bytes;
    for (const QByteArrayView part : parts) bytes.append(part);
    return bytes;
}

// What says how the strips of a TIFF are to be read: sizes, bits and their order, compression, colours, planes,
// predictor, palette, and that there are no tiles and no depths in their place.
constexpr std::array<quint16, 21> LayoutTags = {256, 257, 258, 259, 262, 266, 277,   278,   284,   317,  320,
                                                322, 323, 324, 325, 338, 339, 32995, 32996, 32997, 32998};
// Pixel scale, tie points, transform, and the three of the GeoTIFF directory.
constexpr std::array<quint16, 7> PositionEntries = {
    tiff_tag::GpsDirectory, 33550, 33922, 34264, 34735, 34736, 34737};

// All of the head that is not metadata.
QByteArray pictureHead(const JpegParts& parts) {
    QByteArray head;
    for (const JpegSegment& segment : parts.segments) {
        if (!segment.isMetadata()) head.append(segment.whole);
    }
    return head.append(parts.scanHeader);
}

// The head of `filled` with the colour profile of `output`, which exiftool takes out with all else and does not copy.
QByteArray headWithProfile(const JpegParts& filled, const JpegParts& output) {
    QByteArray profile;
    for (const JpegSegment& segment : output.segments) {
        if (segment.isProfile()) profile.append(segment.whole);
    }
    if (profile.isEmpty()) return filled.head.toByteArray();
    QByteArray head(filled.head.first(2).toByteArray());
    for (const JpegSegment& segment : filled.segments) {
        // It follows the other segments that are about the picture.
        if (!segment.isMetadata()) head.append(std::exchange(profile, QByteArray()));
        if (!segment.isProfile()) head.append(segment.whole);
    }
    return head;
}

// Where the strips lie; nothing where one lies outside the file.
std::optional<std::vector<ByteRange>> strips(QByteArrayView tiff) {
    const std::vector<TiffEntry> entries = tiffEntries(tiff);
    const auto numbersOf = [&](quint16 tag) {
        const TiffEntry* entry = tiffEntry(entries, tag);
        return entry ? entry->numbers() : std::vector<quint32>();
    };
    const std::vector<quint32> offsets = numbersOf(tiff_tag::StripOffsets);
    const std::vector<quint32> sizes = numbersOf(tiff_tag::StripByteCounts);
    if (offsets.empty() || offsets.size() != sizes.size()) return std::nullopt;
    std::vector<ByteRange> ranges;
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        ranges.emplace_back(offsets[i], qsizetype{offsets[i]} + sizes[i]);
        if (ranges.back().second > tiff.size()) return std::nullopt;
    }
    return ranges;
}

// Whether the two have no entry with `tag`, or the same one.
bool haveSameEntry(const std::vector<TiffEntry>& one, const std::vector<TiffEntry>& other, quint16 tag) {
    const TiffEntry* entryOfOne = tiffEntry(one, tag);
    const TiffEntry* entryOfOther = tiffEntry(other, tag);
    if (!entryOfOne || !entryOfOther) return entryOfOne == entryOfOther;
    return entryOfOne->type == entryOfOther->type && entryOfOne->value == entryOfOther->value;
}

bool isSameTiffPicture(const QByteArray& output, QByteArray filled) {
    // Samples are in the file's order of bytes, which comes first.
    constexpr qsizetype ByteOrder = 2;
    if (filled.first(std::min(ByteOrder, filled.size())) != output.first(ByteOrder)) return false;
    QBuffer file(&filled);
    if (!file.open(QIODevice::ReadOnly) || !readTiffFacts(file) || isCameraRaw(file)) return false;
    // An entry that is stepped over here may be one that readers go by.
    if (!isFirstDirectoryWhole(filled)) return false;

    const auto stripsOfOutput = strips(output);
    const auto stripsOfFilled = strips(filled);
    if (!stripsOfOutput || !stripsOfFilled) return false;
    const std::vector<TiffEntry> entriesOfOutput = tiffEntries(output);
    const std::vector<TiffEntry> entriesOfFilled = tiffEntries(filled);
    const auto isSame = [&](quint16 tag) { return haveSameEntry(entriesOfOutput, entriesOfFilled, tag); };
    const auto bytesOf = [](QByteArrayView bytes, const ByteRange& range) {
        return bytes.sliced(range.first, range.second - range.first);
    };
    return std::ranges::all_of(LayoutTags, isSame) &&
           std::ranges::equal(*stripsOfOutput, *stripsOfFilled, [&](const ByteRange& a, const ByteRange& b) {
               return bytesOf(output, a) == bytesOf(filled, b);
           });
}

bool hasPositionTag(QByteArrayView tiff) {
    const std::vector<TiffEntry> entries = tiffEntries(tiff);
    return std::any_of(entries.begin(), entries.end(), [](const TiffEntry& entry) {
        return std::find(PositionEntries.begin(), PositionEntries.end(), entry.tag) != PositionEntries.end();
    });
}

std::vector<ByteRange> gapsBetween(std::vector<ByteRange> strips, qsizetype size) {
    std::sort(strips.begin(), strips.end());
    std::vector<ByteRange> gaps;
    qsizetype at = 0;
    for (const auto& [from, end] : strips) {
        if (from > at) gaps.emplace_back(at, from);
        at = std::max(at, end);
    }
    if (at < size) gaps.emplace_back(at, size);
    return gaps;
}

}  // namespace

QByteArray standIn(const QByteArray& output) {
    const std::optional<JpegParts> parts = jpegParts(output);
    return parts ? joined({parts->head, parts->scanHeader, JpegEnd}) : output;
}

Result<QByteArray> withMetadataOf(const QByteArray& filled, const QByteArray& output) {
    const auto unusable = fail(ErrorCode::ProgramFailed,
                               Words::tr("exiftool left a file that is not the picture it was given."));
    const std::optional<JpegParts> parts = jpegParts(output);
    if (!parts) return isSameTiffPicture(output, filled) ? Result<QByteArray>(filled) : unusable;
    const std::optional<JpegParts> filledParts = jpegParts(filled);
    const bool isWhole = filledParts && pictureHead(*filledParts) == pictureHead(*parts) &&
                         filledParts->scans.startsWith(joined({parts->scanHeader, JpegEnd}));
    if (!isWhole) return unusable;
    return joined({headWithProfile(*filledParts, *parts), parts->scans});
}

bool hasTrailer(const QByteArray& filled) {
    const std::optional<JpegParts> parts = jpegParts(filled);
    return parts && parts->scans.size() > parts->scanHeader.size() + JpegEnd.size();
}

std::vector<ByteRange> metadataRanges(QByteArrayView file) {
    std::vector<ByteRange> ranges;
    if (const std::optional<JpegParts> parts = jpegParts(file)) {
        for (const JpegSegment& segment : parts->segments) {
            // A large Exif block goes on behind the name of the next segment.
            const QByteArrayView content = segment.exif().isEmpty() ? segment.content : segment.exif();
            const qsizetype from = content.data() - file.data();
            if (segment.isMetadata()) ranges.emplace_back(from, from + content.size());
        }
        return ranges;
    }
    if (const auto chunks = webpChunks(file)) {
        for (const WebpChunk& chunk : *chunks) {
            const qsizetype from = chunk.content.data() - file.data();
            if (chunk.isMetadata()) ranges.emplace_back(from, from + chunk.content.size());
        }
        return ranges;
    }
    return gapsBetween(strips(file).value_or(std::vector<ByteRange>()), file.size());
}

bool holdsPosition(QByteArrayView file) {
    if (webpChunks(file)) return hasPositionTag(exifOfWebp(file));
    const std::optional<JpegParts> parts = jpegParts(file);
    if (!parts) return hasPositionTag(file);
    return std::any_of(parts->segments.begin(), parts->segments.end(),
                       [](const JpegSegment& segment) { return hasPositionTag(segment.exif()); });
}

}  // namespace zelto
