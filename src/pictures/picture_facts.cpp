// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_facts.h"

#include "pictures/exif_facts.h"
#include "pictures/picture_reader.h"
#include "pictures/resolution.h"

#include <QtEndian>

#include <gif_lib.h>

#include <vector>

namespace zelto {
namespace {

int readFrom(GifFileType* gif, GifByteType* target, int count) {
    auto* device = static_cast<QIODevice*>(gif->UserData);
    return static_cast<int>(device->read(reinterpret_cast<char*>(target), count));
}

// The rest of an image or extension: blocks up to the empty one.
template <class Next>
bool skipBlocks(GifFileType* gif, Next next, GifByteType* block) {
    while (block != nullptr) {
        if (next(gif, &block) == GIF_ERROR) return false;
    }
    return true;
}

// The first image must have all its pixels, later ones only all their blocks: they are never shown.
bool readGifImage(GifFileType* gif, bool isFirst) {
    if (DGifGetImageDesc(gif) == GIF_ERROR) return false;
    if (!isFirst) {
        int codeSize = 0;
        GifByteType* block = nullptr;
        return DGifGetCode(gif, &codeSize, &block) != GIF_ERROR && skipBlocks(gif, DGifGetCodeNext, block);
    }
    std::vector<GifPixelType> row(static_cast<std::size_t>(gif->Image.Width));
    for (int y = 0; y < gif->Image.Height; ++y) {
        if (DGifGetLine(gif, row.data(), gif->Image.Width) == GIF_ERROR) return false;
    }
    return true;
}

// Reads to the trailer, which a file that was cut short has lost.
bool isWholeGif(GifFileType* gif) {
    for (bool isFirst = true;;) {
        GifRecordType record = UNDEFINED_RECORD_TYPE;
        if (DGifGetRecordType(gif, &record) == GIF_ERROR) return false;
        if (record == IMAGE_DESC_RECORD_TYPE) {
            if (!readGifImage(gif, isFirst)) return false;
            isFirst = false;
        } else if (record == EXTENSION_RECORD_TYPE) {
            int code = 0;
            GifByteType* block = nullptr;
            if (DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
            if (!skipBlocks(gif, DGifGetExtensionNext, block)) return false;
        } else {
            return record == TERMINATE_RECORD_TYPE && !isFirst;
        }
    }
}

}  // namespace

std::optional<PictureFacts> readGifFacts(QIODevice& device) {
    int error = 0;
    GifFileType* gif = DGifOpen(&device, readFrom, &error);
    if (gif == nullptr) return std::nullopt;
    const bool whole = isWholeGif(gif);
    DGifCloseFile(gif, &error);
    return whole ? std::optional(PictureFacts()) : std::nullopt;
}

std::optional<PictureFacts> readBmpFacts(QIODevice& device) {
    // The resolution stands behind the fields that the shortest of the headers ends with.
    constexpr qsizetype HeaderSizeAt = 14;
    constexpr qsizetype DotsPerMeterAt = 38;
    const QByteArray header = device.read(DotsPerMeterAt + 8);
    PictureFacts facts;
    if (header.size() == DotsPerMeterAt + 8 &&
        qFromLittleEndian<quint32>(header.constData() + HeaderSizeAt) >= 40) {
        const char* dots = header.constData() + DotsPerMeterAt;
        facts.dpiX = qFromLittleEndian<qint32>(dots) / InchesPerMeter;
        facts.dpiY = qFromLittleEndian<qint32>(dots + 4) / InchesPerMeter;
    }
    return facts;
}

std::optional<PictureFacts> readWebpFacts(QIODevice& device) {
    constexpr qint64 ChunkHeader = 8;
    constexpr qint64 MaximumExif = 1 << 20;
    const QByteArray riff = device.read(12);
    if (riff.size() != 12) return std::nullopt;
    const qint64 end = ChunkHeader + qFromLittleEndian<quint32>(riff.constData() + 4);
    if (end > device.size()) return std::nullopt;

    PictureFacts facts;
    for (qint64 position = 12; position + ChunkHeader <= end;) {
        if (!device.seek(position)) return std::nullopt;
        const QByteArray header = device.read(ChunkHeader);
        if (header.size() != ChunkHeader) return std::nullopt;
        const qint64 length = qFromLittleEndian<quint32>(header.constData() + 4);
        if (header.startsWith("EXIF") && length <= MaximumExif) {
            const ExifFacts exif = readExifFacts(device.read(length));
            facts.orientation = exif.orientation;
            facts.dpiX = exif.dpiX;
            facts.dpiY = exif.dpiY;
            break;
        }
        position += ChunkHeader + length + length % 2;
    }
    return facts;
}

bool isReadableSize(QSize size, qint64 fileBytes) {
    constexpr qint64 AlwaysFits = qint64{1} << 26;
    constexpr qint64 MaximumPixelsPerByte = 1 << 14;
    const qint64 pixels = qint64{size.width()} * size.height();
    if (size.isEmpty() || pixels > MaximumPicturePixels) return false;
    return pixels <= AlwaysFits || pixels / MaximumPixelsPerByte <= fileBytes;
}

}  // namespace zelto
