// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"
#include "platform/words.h"

#include <tiffio.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

namespace zelto {
namespace {

constexpr qsizetype StripBytes = 1 << 20;

// Over horizontal differences the quickest level is as small as LZW, in half its time; level 6 would save a tenth for
// five times the time.
constexpr int DeflateLevel = 1;

// The file libtiff writes, in memory: it goes back to fill in directory offsets.
struct MemoryFile {
    QByteArray bytes;
    qsizetype position = 0;
    QString message;

    static MemoryFile& of(thandle_t handle) { return *static_cast<MemoryFile*>(handle); }
};

tmsize_t readNothing(thandle_t, void*, tmsize_t) {
    return 0;
}

tmsize_t write(thandle_t handle, void* data, tmsize_t size) {
    MemoryFile& file = MemoryFile::of(handle);
    try {
        if (file.position + size > file.bytes.size()) file.bytes.resize(file.position + size);
        std::memcpy(file.bytes.data() + file.position, data, static_cast<std::size_t>(size));
        file.position += size;
        return size;
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

toff_t seek(thandle_t handle, toff_t offset, int whence) {
    MemoryFile& file = MemoryFile::of(handle);
    const qsizetype origin = whence == SEEK_CUR ? file.position : whence == SEEK_END ? file.bytes.size() : 0;
    file.position = origin + static_cast<qsizetype>(offset);
    return static_cast<toff_t>(file.position);
}

int close(thandle_t) {
    return 0;
}

toff_t size(thandle_t handle) {
    return static_cast<toff_t>(MemoryFile::of(handle).bytes.size());
}

int keepMessage(TIFF*, void* user, const char*, const char* format, va_list arguments) {
    static_cast<MemoryFile*>(user)->message = QString::vasprintf(format, arguments);
    return 1;
}

int ignoreWarning(TIFF*, void*, const char*, const char*, va_list) {
    return 1;
}

using Tiff = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

Tiff openIn(MemoryFile& file) {
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                                   TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), keepMessage, &file);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), ignoreWarning, nullptr);
    return {TIFFClientOpenExt("picture", "w", &file, readNothing, write, seek, close, size, nullptr, nullptr,
                              options.get()),
            TIFFClose};
}

// False where not all of it could be noted.
bool describe(TIFF* tiff, const QImage& picture, const EncodeOptions& options, int channels,
              int rowsPerStrip) {
    const uint16_t kind = EXTRASAMPLE_UNASSALPHA;
    return TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, static_cast<uint32_t>(picture.width())) == 1 &&
           TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, static_cast<uint32_t>(picture.height())) == 1 &&
           TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8) == 1 &&
           TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, channels) == 1 &&
           TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB) == 1 &&
           TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == 1 &&
           TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT) == 1 &&
           TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_ADOBE_DEFLATE) == 1 &&
           TIFFSetField(tiff, TIFFTAG_ZIPQUALITY, DeflateLevel) == 1 &&
           TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL) == 1 &&
           TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, static_cast<uint32_t>(rowsPerStrip)) == 1 &&
           TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH) == 1 &&
           TIFFSetField(tiff, TIFFTAG_XRESOLUTION, options.dpiX) == 1 &&
           TIFFSetField(tiff, TIFFTAG_YRESOLUTION, options.dpiY) == 1 &&
           (channels == 3 || TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &kind) == 1);
}

bool writeStrips(TIFF* tiff, const QImage& picture, int channels, int rowsPerStrip) {
    const qsizetype stride = qsizetype{picture.width()} * channels;
    std::vector<uchar> strip(static_cast<std::size_t>(stride * rowsPerStrip));
    const auto convert = channels == 4 ? rowAsStraightRgba : rowAsRgb;
    for (int top = 0; top < picture.height(); top += rowsPerStrip) {
        const int rows = std::min(rowsPerStrip, picture.height() - top);
        for (int i = 0; i < rows; ++i) {
            convert(pixelRow(picture, top + i), picture.width(), strip.data() + stride * i);
        }
        if (TIFFWriteEncodedStrip(tiff, static_cast<uint32_t>(top / rowsPerStrip), strip.data(),
                                  stride * rows) < 0) {
            return false;
        }
    }
    return true;
}

}  // namespace

Result<QByteArray> encodeTiff(const QImage& picture, const EncodeOptions& options) {
    const int channels = picture.hasAlphaChannel() ? 4 : 3;
    const qsizetype stride = qsizetype{picture.width()} * channels;
    const int rowsPerStrip =
        static_cast<int>(std::clamp<qsizetype>(StripBytes / stride, 1, picture.height()));
    MemoryFile file;
    Tiff tiff = openIn(file);
    bool done = false;
    if (tiff != nullptr) {
        done = describe(tiff.get(), picture, options, channels, rowsPerStrip) &&
               writeStrips(tiff.get(), picture, channels, rowsPerStrip) && TIFFFlush(tiff.get()) != 0;
    }
    tiff.reset();
    if (!done)
        return fail(ErrorCode::CannotWrite, Words::tr("The TIFF encoder failed: %1").arg(file.message));
    return file.bytes;
}

}  // namespace zelto
