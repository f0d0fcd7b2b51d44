// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_writer.h"

#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_memory.h"
#include "platform/words.h"

#include <algorithm>
#include <array>

namespace zelto {
namespace {

struct FormatEntry {
    PictureFormat format;
    const char* name;
    int maximumSide;      // pixels
    qint64 maximumBytes;  // of the pixels as the format stores them uncompressed
    int bytesPerPixel;
    Result<QByteArray> (*encode)(const QImage&, const EncodeOptions&);
    bool (*isAvailable)();
    bool hasQuality = false;
    int memoryPerPixel = 0;  // bytes that the library needs, measured; 0 where it goes row by row
};

bool always() {
    return true;
}

bool hasWebp() {
    return webpLibrary() != nullptr;
}

bool hasJxl() {
    return jxlLibrary() != nullptr;
}

constexpr qint64 NoLimit = std::numeric_limits<qint64>::max();
constexpr qint64 FourGigabytes = qint64{1} << 32;
constexpr int AnySide = std::numeric_limits<int>::max();

// In the order of the enumeration. PNG itself could hold larger sides, but its library, and so nearly every reader,
// refuses them.
constexpr std::array Formats = {
    FormatEntry{PictureFormat::Jpeg, "JPEG", 65500, NoLimit, 3, encodeJpeg, always, true},
    FormatEntry{PictureFormat::Png, "PNG", 1000000, NoLimit, 4, encodePng, always},
    FormatEntry{PictureFormat::Tiff, "TIFF", AnySide, FourGigabytes, 4, encodeTiff, always},
    FormatEntry{PictureFormat::Bmp, "BMP", AnySide, FourGigabytes, 3, encodeBmp, always},
    FormatEntry{PictureFormat::Gif, "GIF", 65535, NoLimit, 1, encodeGif, always},
    FormatEntry{PictureFormat::Pdf, "PDF", 65500, NoLimit, 3, encodePdf, always},
    FormatEntry{PictureFormat::Webp, "WebP", 16383, NoLimit, 4, encodeWebp, hasWebp, true, 26},
    FormatEntry{PictureFormat::Avif, "AVIF", 65536, NoLimit, 4, encodeAvif, canEncodeAvif, true, 22},
    FormatEntry{PictureFormat::Heic, "HEIC", 16384, NoLimit, 4, encodeHeic, canEncodeHeic, true, 22},
    FormatEntry{PictureFormat::Jxl, "JPEG XL", AnySide, NoLimit, 4, encodeJxl, hasJxl, true, 66},
};

struct ExtensionEntry {
    QLatin1String extension;
    PictureFormat format;
};

constexpr std::array Extensions = {
    ExtensionEntry{QLatin1String("jpg"), PictureFormat::Jpeg},
    ExtensionEntry{QLatin1String("jpeg"), PictureFormat::Jpeg},
    ExtensionEntry{QLatin1String("png"), PictureFormat::Png},
    ExtensionEntry{QLatin1String("tif"), PictureFormat::Tiff},
    ExtensionEntry{QLatin1String("tiff"), PictureFormat::Tiff},
    ExtensionEntry{QLatin1String("bmp"), PictureFormat::Bmp},
    ExtensionEntry{QLatin1String("gif"), PictureFormat::Gif},
    ExtensionEntry{QLatin1String("pdf"), PictureFormat::Pdf},
    ExtensionEntry{QLatin1String("webp"), PictureFormat::Webp},
    ExtensionEntry{QLatin1String("avif"), PictureFormat::Avif},
    ExtensionEntry{QLatin1String("heic"), PictureFormat::Heic},
    ExtensionEntry{QLatin1String("heif"), PictureFormat::Heic},
    ExtensionEntry{QLatin1String("jxl"), PictureFormat::Jxl},
};

}  // namespace

std::optional<PictureFormat> pictureFormatForExtension(QStringView extension) {
    const auto* const entry =
        std::find_if(Extensions.begin(), Extensions.end(), [extension](const auto& candidate) {
            return extension.compare(candidate.extension, Qt::CaseInsensitive) == 0;
        });
    if (entry == Extensions.end() || !Formats[static_cast<std::size_t>(entry->format)].isAvailable())
        return std::nullopt;
    return entry->format;
}

bool hasQuality(PictureFormat format) {
    return Formats[static_cast<std::size_t>(format)].hasQuality;
}

qint64 memoryToEncode(PictureFormat format, QSize size) {
    return qint64{size.width()} * size.height() * Formats[static_cast<std::size_t>(format)].memoryPerPixel;
}

Result<QByteArray> encodePicture(const QImage& picture, PictureFormat format, const EncodeOptions& options) {
    const FormatEntry& entry = Formats[static_cast<std::size_t>(format)];
    const QSize size = picture.size();
    if (size.isEmpty())
        return fail(ErrorCode::InvalidValue, Words::tr("A picture without pixels cannot be written."));
    if (std::max(size.width(), size.height()) > entry.maximumSide ||
        qint64{size.width()} * size.height() > entry.maximumBytes / entry.bytesPerPixel) {
        return fail(ErrorCode::InvalidValue,
                    Words::tr("A picture of %1 × %2 pixels is too large for the %3 format.")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(QLatin1String(entry.name)));
    }
    const bool readable =
        picture.format() == QImage::Format_RGB32 || picture.format() == QImage::Format_ARGB32_Premultiplied;
    const QImage::Format pixels =
        picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    try {
        return entry.encode(readable ? picture : converted(picture.convertToFormat(pixels)), options);
    } catch (const std::bad_alloc&) {
        return outOfMemory();
    }
}

}  // namespace zelto
