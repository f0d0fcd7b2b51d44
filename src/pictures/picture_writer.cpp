// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_writer.h"

#include "pictures/picture_encoders.h"
#include "pictures/picture_memory.h"

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
};

constexpr qint64 NoLimit = std::numeric_limits<qint64>::max();
constexpr qint64 FourGigabytes = qint64{1} << 32;
constexpr int AnySide = std::numeric_limits<int>::max();

// In the order of the enumeration. PNG itself could hold larger sides, but its library, and so nearly every reader,
// refuses them.
constexpr std::array Formats = {
    FormatEntry{PictureFormat::Jpeg, "JPEG", 65500, NoLimit, 3, encodeJpeg},
    FormatEntry{PictureFormat::Png, "PNG", 1000000, NoLimit, 4, encodePng},
    FormatEntry{PictureFormat::Tiff, "TIFF", AnySide, FourGigabytes, 4, encodeTiff},
    FormatEntry{PictureFormat::Bmp, "BMP", AnySide, FourGigabytes, 3, encodeBmp},
    FormatEntry{PictureFormat::Gif, "GIF", 65535, NoLimit, 1, encodeGif},
    FormatEntry{PictureFormat::Pdf, "PDF", 65500, NoLimit, 3, encodePdf},
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
};

}  // namespace

std::optional<PictureFormat> pictureFormatForExtension(QStringView extension) {
    const auto* const entry =
        std::find_if(Extensions.begin(), Extensions.end(), [extension](const auto& candidate) {
            return extension.compare(candidate.extension, Qt::CaseInsensitive) == 0;
        });
    if (entry == Extensions.end()) return std::nullopt;
    return entry->format;
}

Result<QByteArray> encodePicture(const QImage& picture, PictureFormat format, const EncodeOptions& options) {
    const FormatEntry& entry = Formats[static_cast<std::size_t>(format)];
    const QSize size = picture.size();
    if (size.isEmpty())
        return fail(ErrorCode::InvalidValue, QStringLiteral("A picture without pixels cannot be written."));
    if (std::max(size.width(), size.height()) > entry.maximumSide ||
        qint64{size.width()} * size.height() > entry.maximumBytes / entry.bytesPerPixel) {
        return fail(ErrorCode::InvalidValue,
                    QStringLiteral("A picture of %1 × %2 pixels is too large for the %3 format.")
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
