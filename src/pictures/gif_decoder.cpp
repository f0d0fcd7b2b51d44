// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/gif_decoder.h"

#include "pictures/device_bytes.h"
#include "pictures/picture_memory.h"

#include <gif_lib.h>

#include <array>
#include <memory>
#include <new>
#include <span>
#include <vector>

namespace zelto {
namespace {

int readFrom(GifFileType* gif, GifByteType* target, int count) {
    return static_cast<int>(readBytes(*static_cast<QIODevice*>(gif->UserData), target, count));
}

struct CloseGif {
    void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};
using GifHandle = std::unique_ptr<GifFileType, CloseGif>;

// Reads as far as the canvas's size and colours.
GifHandle openGif(QIODevice& device) {
    int error = 0;
    GifHandle gif(DGifOpen(&device, readFrom, &error));
    if (error == D_GIF_ERR_NOT_ENOUGH_MEM) throw std::bad_alloc();
    return gif;
}

// The rest of an image or extension: blocks up to the empty one.
template <class Next>
bool skipBlocks(GifFileType* gif, Next next, GifByteType* block) {
    while (block != nullptr) {
        if (next(gif, &block) == GIF_ERROR) return false;
    }
    return true;
}

// An extension's blocks, noting the colour that is to be clear in the next picture.
bool readExtension(GifFileType* gif, int& clearColour) {
    int code = 0;
    GifByteType* block = nullptr;
    if (DGifGetExtension(gif, &code, &block) == GIF_ERROR) return false;
    if (code == GRAPHICS_EXT_FUNC_CODE && block != nullptr) {
        GraphicsControlBlock control{};
        if (DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK)
            clearColour = control.TransparentColor;
    }
    return skipBlocks(gif, DGifGetExtensionNext, block);
}

// Rows of an interlaced picture come in four passes.
struct Pass {
    int first, step;
};
constexpr Pass Interlaced[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
constexpr Pass OneByOne[] = {{0, 1}};

class FirstFrame {
  public:
    FirstFrame(GifFileType* gif, int clearColour) : gif_(gif) {
        const ColorMapObject* map = gif->Image.ColorMap != nullptr ? gif->Image.ColorMap : gif->SColorMap;
        // Without a map grey is as good as any, and indexes beyond a map are black.
        for (int i = 0; i < 256; ++i) {
            QRgb& colour = colours_[static_cast<std::size_t>(i)];
            colour = map == nullptr ? qRgb(i, i, i) : qRgb(0, 0, 0);
            if (map != nullptr && i < map->ColorCount)
                colour = qRgb(map->Colors[i].Red, map->Colors[i].Green, map->Colors[i].Blue);
        }
        hasAlpha_ = clearColour >= 0;
        if (hasAlpha_) {
            colours_[static_cast<std::size_t>(clearColour & 0xFF)] = 0;
        } else if (gif->SColorMap != nullptr && gif->SBackGroundColor < gif->SColorMap->ColorCount) {
            const GifColorType& colour = gif->SColorMap->Colors[gif->SBackGroundColor];
            background_ = qRgb(colour.Red, colour.Green, colour.Blue);
        }
    }

    // Null where the data is damaged or ends early.
    QImage decode() {
        QImage canvas = newPicture(QSize(gif_->SWidth, gif_->SHeight),
                                   hasAlpha_ ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        canvas.fill(hasAlpha_ ? QRgb{0} : background_);
        const GifImageDesc& frame = gif_->Image;
        if (isOverlarge(frame)) return {};
        std::vector<GifPixelType> row(static_cast<std::size_t>(frame.Width));
        for (const Pass& pass : frame.Interlace ? std::span<const Pass>(Interlaced) : OneByOne) {
            for (int y = pass.first; y < frame.Height; y += pass.step) {
                if (DGifGetLine(gif_, row.data(), frame.Width) == GIF_ERROR) return {};
                place(row, frame.Top + y, canvas);
            }
        }
        return canvas;
    }

  private:
    // Whether it is much larger than the canvas it stands on: work for nothing.
    bool isOverlarge(const GifImageDesc& frame) const {
        constexpr qint64 Tolerable = qint64{1} << 26;
        return pixelCount({frame.Width, frame.Height}) >
               std::max(pixelCount({gif_->SWidth, gif_->SHeight}), Tolerable);
    }

    void place(const std::vector<GifPixelType>& row, int y, QImage& canvas) const {
        if (y >= canvas.height()) return;
        const int left = gif_->Image.Left;
        const int count = std::min(gif_->Image.Width, canvas.width() - left);
        if (count <= 0) return;
        auto* pixels = reinterpret_cast<QRgb*>(canvas.scanLine(y)) + left;
        for (int x = 0; x < count; ++x) pixels[x] = colours_[row[static_cast<std::size_t>(x)]];
    }

    GifFileType* gif_;
    std::array<QRgb, 256> colours_{};
    QRgb background_ = qRgb(0, 0, 0);  // of an opaque canvas, where the frame leaves it
    bool hasAlpha_ = false;
};

// The first picture; null where it is damaged, or where the file ends before its trailer. Later pictures are never
// shown and only looked through.
QImage decodeFirst(GifFileType* gif) {
    QImage picture;
    int clearColour = NO_TRANSPARENT_COLOR;
    for (;;) {
        GifRecordType record = UNDEFINED_RECORD_TYPE;
        if (DGifGetRecordType(gif, &record) == GIF_ERROR) return {};
        if (record == TERMINATE_RECORD_TYPE) return picture;
        if (record == EXTENSION_RECORD_TYPE) {
            if (!readExtension(gif, clearColour)) return {};
        } else if (record != IMAGE_DESC_RECORD_TYPE || DGifGetImageDesc(gif) == GIF_ERROR) {
            return {};
        } else if (picture.isNull()) {
            picture = FirstFrame(gif, clearColour).decode();
            if (picture.isNull()) return {};
        } else {
            int codeSize = 0;
            GifByteType* block = nullptr;
            if (DGifGetCode(gif, &codeSize, &block) == GIF_ERROR || !skipBlocks(gif, DGifGetCodeNext, block))
                return {};
        }
    }
}

}  // namespace

std::optional<PictureNeeds> gifNeeds(QIODevice& device) {
    const GifHandle gif = openGif(device);
    if (!gif) return std::nullopt;
    const QSize canvas(gif->SWidth, gif->SHeight);
    return PictureNeeds{canvas, pixelCount(canvas) * 4, 0};
}

std::optional<Picture> decodeGif(QIODevice& device) {
    const GifHandle gif = openGif(device);
    if (!gif) return std::nullopt;
    Picture picture{decodeFirst(gif.get())};
    if (gif->Error == D_GIF_ERR_NOT_ENOUGH_MEM) throw std::bad_alloc();
    if (picture.image.isNull()) return std::nullopt;
    return picture;
}

}  // namespace zelto
