// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_encoders.h"
#include "pictures/picture_rows.h"
#include "platform/words.h"

#include <gif_lib.h>
#include <libimagequant.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace zelto {
namespace {

// libimagequant's scale of 1 to 10. Slower ones take twice the time for 2 % less error; quicker ones round colours
// even where there are few enough to keep them all.
constexpr int PaletteSpeed = 7;
constexpr int SeeThroughBelow = 128;  // alpha; a GIF pixel is either opaque or not there

bool isThere(QRgb pixel) {
    return qAlpha(pixel) >= SeeThroughBelow;
}

// libimagequant asks for rows as it needs them: opaque colours and nothing.
void giveRow(liq_color* out, int y, int width, void* user) {
    const QRgb* const row = pixelRow(*static_cast<const QImage*>(user), y);
    for (int x = 0; x < width; ++x) {
        const QRgb pixel = isThere(row[x]) ? qUnpremultiply(row[x]) | 0xff000000U : 0U;
        out[x] = {static_cast<uchar>(qRed(pixel)), static_cast<uchar>(qGreen(pixel)),
                  static_cast<uchar>(qBlue(pixel)), static_cast<uchar>(qAlpha(pixel))};
    }
}

struct PaletteImage {
    std::vector<GifColorType> colours;
    int seeThrough = NO_TRANSPARENT_COLOR;  // its index, where there is one
    std::vector<uchar> indices;
};

template <auto Destroy>
struct Destroyer {
    template <class T>
    void operator()(T* object) const {
        Destroy(object);
    }
};

std::optional<PaletteImage> withPalette(const QImage& picture) {
    const std::unique_ptr<liq_attr, Destroyer<liq_attr_destroy>> attributes(liq_attr_create());
    if (!attributes) return std::nullopt;
    liq_set_speed(attributes.get(), PaletteSpeed);
    const std::unique_ptr<liq_image, Destroyer<liq_image_destroy>> image(liq_image_create_custom(
        attributes.get(), giveRow, const_cast<QImage*>(&picture),  // NOLINT: only read
        picture.width(), picture.height(), 0.0));
    liq_result* raw = nullptr;
    if (!image || liq_image_quantize(image.get(), attributes.get(), &raw) != LIQ_OK) return std::nullopt;
    const std::unique_ptr<liq_result, Destroyer<liq_result_destroy>> result(raw);
    liq_set_dithering_level(result.get(), 1.0F);

    PaletteImage out;
    out.indices.resize(static_cast<std::size_t>(picture.width()) *
                       static_cast<std::size_t>(picture.height()));
    if (liq_write_remapped_image(result.get(), image.get(), out.indices.data(), out.indices.size()) !=
        LIQ_OK) {
        return std::nullopt;
    }
    const liq_palette* const palette = liq_get_palette(result.get());
    for (int i = 0; i < static_cast<int>(palette->count); ++i) {
        const liq_color colour = palette->entries[i];
        out.colours.push_back({colour.r, colour.g, colour.b});
        if (colour.a >= SeeThroughBelow) continue;
        // A palette may come with more than one transparent entry; a file can name one.
        if (out.seeThrough == NO_TRANSPARENT_COLOR) out.seeThrough = i;
        std::replace(out.indices.begin(), out.indices.end(), static_cast<uchar>(i),
                     static_cast<uchar>(out.seeThrough));
    }
    return out;
}

int write(GifFileType* gif, const GifByteType* data, int size) {
    return appendBytes(*static_cast<QByteArray*>(gif->UserData), data, size) ? size : 0;
}

bool writeGif(GifFileType* gif, PaletteImage& image, int width, int height) {
    // The format knows only maps of a power of two.
    std::vector<GifColorType>& colours = image.colours;
    colours.resize(std::size_t{1} << static_cast<unsigned>(GifBitSize(static_cast<int>(colours.size()))));
    const std::unique_ptr<ColorMapObject, Destroyer<GifFreeMapObject>> map(
        GifMakeMapObject(static_cast<int>(colours.size()), colours.data()));
    if (!map || EGifPutScreenDesc(gif, width, height, 8, 0, map.get()) == GIF_ERROR) return false;
    if (image.seeThrough != NO_TRANSPARENT_COLOR) {
        const GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0, image.seeThrough};
        std::array<GifByteType, 4> block{};
        EGifGCBToExtension(&control, block.data());
        if (EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, block.data()) == GIF_ERROR) return false;
    }
    if (EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) == GIF_ERROR) return false;
    for (int y = 0; y < height; ++y) {
        if (EGifPutLine(gif, image.indices.data() + qsizetype{y} * width, width) == GIF_ERROR) return false;
    }
    return true;
}

}  // namespace

Result<QByteArray> encodeGif(const QImage& picture, const EncodeOptions&) {
    const auto failed = [](const QString& reason) {
        return fail(ErrorCode::CannotWrite, Words::tr("The GIF encoder failed: %1").arg(reason));
    };
    std::optional<PaletteImage> image = withPalette(picture);
    if (!image) return failed(Words::tr("no palette could be made"));
    QByteArray bytes;
    int error = 0;
    GifFileType* const gif = EGifOpen(&bytes, write, &error);
    if (gif == nullptr) return failed(QString::fromLatin1(GifErrorString(error)));
    EGifSetGifVersion(gif, image->seeThrough != NO_TRANSPARENT_COLOR);  // 89a is what knows transparency
    const bool written = writeGif(gif, *image, picture.width(), picture.height());
    error = gif->Error;
    const bool closed = EGifCloseFile(gif, written ? &error : nullptr) == GIF_OK;
    if (!written || !closed) return failed(QString::fromLatin1(GifErrorString(error)));
    return bytes;
}

}  // namespace zelto
