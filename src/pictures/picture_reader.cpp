// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_reader.h"

#include "pictures/gif_decoder.h"
#include "pictures/heif_decoder.h"
#include "pictures/jpeg_decoder.h"
#include "pictures/jxl_decoder.h"
#include "pictures/picture_file.h"
#include "pictures/picture_kind.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_memory.h"
#include "pictures/picture_needs.h"
#include "pictures/plugin_decoder.h"
#include "pictures/png_decoder.h"
#include "pictures/raw_decoder.h"
#include "pictures/tiff_decoder.h"
#include "pictures/webp_decoder.h"
#include "platform/words.h"

#include <QBuffer>
#include <QFile>

#include <algorithm>
#include <new>

namespace zelto {
namespace {

struct Decoder {
    PictureKind kind;
    std::optional<PictureNeeds> (*needs)(QIODevice&);
    std::optional<Picture> (*decode)(QIODevice&);
};

template <PictureKind Kind>
constexpr Decoder PluginDecoder = {Kind, [](QIODevice& device) { return needsByPlugin(device, Kind); },
                                   [](QIODevice& device) { return decodeByPlugin(device, Kind); }};

constexpr Decoder Decoders[] = {
    {PictureKind::Jpeg, jpegNeeds, [](QIODevice& device) { return decodeJpeg(device); }},
    {PictureKind::Png, pngNeeds, decodePng},
    {PictureKind::Gif, gifNeeds, decodeGif},
    PluginDecoder<PictureKind::Tiff>,
    PluginDecoder<PictureKind::Bmp>,
    {PictureKind::Webp, webpNeeds, decodeWebp},
    {PictureKind::Heif, heifNeeds, decodeHeif},
    {PictureKind::Jxl, jxlNeeds, decodeJxl},
    {PictureKind::Raw, rawPreviewNeeds, decodeRawPreview},
};

tl::unexpected<Error> damaged() {
    return fail(ErrorCode::Damaged, QString(DamagedPictureMessage));
}

// The kinds that a build may do without.
struct OptionalKind {
    PictureKind kind;
    const char* name;
    const char* (*library)();
};
constexpr OptionalKind OptionalKinds[] = {{PictureKind::Webp, "WebP", webpLibrary},
                                          {PictureKind::Heif, "HEIC and AVIF", heifLibrary},
                                          {PictureKind::Jxl, "JPEG XL", jxlLibrary},
                                          {PictureKind::Raw, "camera raw", rawLibrary}};

PictureKind kindOf(QIODevice& device) {
    const PictureKind kind = pictureKindOf(device.peek(PictureKindBytes));
    if (kind != PictureKind::Tiff || !isCameraRaw(device)) return kind;
    return PictureKind::Raw;
}

Result<const Decoder*> decoderOf(QIODevice& device) {
    const PictureKind kind = kindOf(device);
    device.seek(0);
    if (kind == PictureKind::Drawing) {
        return fail(ErrorCode::Damaged,
                    Words::tr("This is a drawing (SVG, PDF or PostScript). Zelto reads photos and other "
                              "pictures made of pixels: save it as PNG."));
    }
    const auto* optional = std::ranges::find(OptionalKinds, kind, &OptionalKind::kind);
    if (optional != std::end(OptionalKinds) && optional->library() == nullptr) {
        return fail(ErrorCode::Damaged, Words::tr("This Zelto was built without a reader of %1 files.")
                                            .arg(QLatin1String(optional->name)));
    }
    const auto* found = std::ranges::find(Decoders, kind, &Decoder::kind);
    if (found == std::end(Decoders)) return damaged();
    return found;
}

Result<PictureNeeds> checkedNeeds(QIODevice& device, const Decoder& decoder) {
    const std::optional<PictureNeeds> needs = decoder.needs(device);
    if (!needs) return damaged();
    return checkNeeds(*needs, device.size()).map([&] { return *needs; });
}

Result<Picture> decode(QIODevice& device, QSize bound = {}) {
    const Result<const Decoder*> decoder = decoderOf(device);
    if (!decoder) return tl::unexpected(decoder.error());
    const Result<PictureNeeds> needs = checkedNeeds(device, **decoder);
    if (!needs) return tl::unexpected(needs.error());
    device.seek(0);
    const bool shrinks = (*decoder)->kind == PictureKind::Jpeg && !bound.isEmpty();
    std::optional<Picture> picture = shrinks
                                         ? decodeJpeg(device, needs->size.scaled(bound, Qt::KeepAspectRatio))
                                         : (*decoder)->decode(device);
    if (!picture) return damaged();
    picture->isRawPreview = (*decoder)->kind == PictureKind::Raw;
    return std::move(*picture);
}

// Calls `read` with the file at `path` opened, and sees to what all errors share.
template <class Read>
auto withFile(const QString& path, Read read) -> decltype(read(std::declval<QFile&>())) {
    try {
        QFile file(path);
        return openPictureFile(file).and_then([&] { return read(file); }).map_error([&](Error error) {
            error.path = path;
            return error;
        });
    } catch (const std::bad_alloc&) {
        return outOfMemory(path);
    }
}

}  // namespace

Result<Picture> readPicture(const QString& path) {
    return withFile(path, [](QFile& file) { return decode(file); });
}

Result<Picture> decodePicture(const QByteArray& bytes) {
    return decodeReduced(bytes, {});
}

Result<Picture> decodeReduced(const QByteArray& jpeg, QSize bound) {
    try {
        QBuffer buffer;
        buffer.setData(jpeg);
        buffer.open(QIODevice::ReadOnly);
        return decode(buffer, bound);
    } catch (const std::bad_alloc&) {
        return outOfMemory();
    }
}

Result<Picture> readThumbnail(const QString& path, QSize bound) {
    return withFile(path, [&](QFile& file) -> Result<Picture> {
        Result<Picture> picture = decode(file, bound);
        if (!picture) return picture;
        QImage& image = picture->image;
        if (image.width() > bound.width() || image.height() > bound.height()) {
            const QSize size = image.size().scaled(bound, Qt::KeepAspectRatio).expandedTo({1, 1});
            image = converted(image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        }
        return picture;
    });
}

Result<PictureNeeds> readPictureNeeds(const QString& path) {
    return withFile(path, [](QFile& file) {
        return decoderOf(file).and_then([&](const Decoder* decoder) { return checkedNeeds(file, *decoder); });
    });
}

Result<QSize> readPictureSize(const QString& path) {
    return readPictureNeeds(path).map([](const PictureNeeds& needs) { return needs.size; });
}

}  // namespace zelto
