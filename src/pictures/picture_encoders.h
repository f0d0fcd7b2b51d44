// SPDX-License-Identifier: GPL-3.0-or-later
// The encoder of each file format, one per file. encodePicture() chooses among them after it has checked what
// they all rely on: a picture of pixels, RGB32 or premultiplied ARGB32, within the format's limits. They read it row by
// row and make no second whole picture, except where a library asks for one. Errors: ErrorCode::CannotWrite with the
// library's own words. Any thread.
#pragma once

#include "pictures/picture_writer.h"

#include <QByteArray>
#include <QImage>

#include <new>

namespace zelto {

// The quality from which JPEG, AVIF and HEIC keep chroma at full size; below, it is halved on both axes.
constexpr int WholeChromaQuality = 90;

Result<QByteArray> encodeJpeg(const QImage& picture, const EncodeOptions& options);
// The colours alone, as if the picture were opaque, for a format that keeps its transparency elsewhere.
Result<QByteArray> encodeJpegColours(const QImage& picture, int quality);
Result<QByteArray> encodePng(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeTiff(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeBmp(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeGif(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodePdf(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeWebp(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeAvif(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeHeic(const QImage& picture, const EncodeOptions& options);
Result<QByteArray> encodeJxl(const QImage& picture, const EncodeOptions& options);

// Whether libheif has an encoder for the format on this machine.
bool canEncodeAvif();
bool canEncodeHeic();

// For the callbacks that libraries hand their bytes to: false where memory does not suffice, since no exception may
// pass through a library written in C.
inline bool appendBytes(QByteArray& bytes, const void* data, qsizetype size) noexcept {
    try {
        bytes.append(static_cast<const char*>(data), size);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

}  // namespace zelto
