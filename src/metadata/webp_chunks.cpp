// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/webp_chunks.h"

#include <QtEndian>

namespace zelto {
namespace {

// Of the first chunk of that name; empty where there is none.
QByteArrayView contentOf(QByteArrayView file, QByteArrayView name) {
    for (const WebpChunk& chunk : webpChunks(file).value_or(std::vector<WebpChunk>())) {
        if (chunk.name == name) return chunk.content;
    }
    return {};
}

}  // namespace

std::optional<std::vector<WebpChunk>> webpChunks(QByteArrayView file) {
    constexpr qsizetype FileHeader = 12;
    constexpr qsizetype ChunkHeader = 8;
    if (file.size() < FileHeader || !file.startsWith("RIFF") || file.sliced(8, 4) != "WEBP")
        return std::nullopt;
    std::vector<WebpChunk> chunks;
    for (qsizetype at = FileHeader; at + ChunkHeader <= file.size();) {
        const qsizetype length = qFromLittleEndian<quint32>(file.data() + at + 4);
        if (length > file.size() - at - ChunkHeader) return std::nullopt;
        chunks.push_back({file.sliced(at, 4), file.sliced(at + ChunkHeader, length)});
        at += ChunkHeader + length + length % 2;
    }
    return chunks;
}

QByteArrayView exifOfWebp(QByteArrayView file) {
    constexpr QByteArrayView Signature("Exif\0\0", 6);  // that some programs put before it
    const QByteArrayView exif = contentOf(file, "EXIF");
    return exif.startsWith(Signature) ? exif.sliced(Signature.size()) : exif;
}

QByteArrayView xmpOfWebp(QByteArrayView file) {
    return contentOf(file, "XMP ");
}

QByteArray smallestWebp() {
    return QByteArray::fromBase64("UklGRh4AAABXRUJQVlA4TBEAAAAvAUAAAAfQ//73v/+BiOh/AAA=");
}

}  // namespace zelto
