// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/webp_decoder.h"

#include "pictures/device_bytes.h"
#include "pictures/exif_facts.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"

#include <webp/decode.h>
#include <webp/demux.h>

#include <memory>

namespace zelto {
namespace {

constexpr WEBP_CSP_MODE QRgbOrder = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? MODE_BGRA : MODE_ARGB;

struct DeleteDemuxer {
    void operator()(WebPDemuxer* demuxer) const { WebPDemuxDelete(demuxer); }
};
struct DeleteAnimation {
    void operator()(WebPAnimDecoder* decoder) const { WebPAnimDecoderDelete(decoder); }
};

class WebpFile {
  public:
    explicit WebpFile(QIODevice& device)
        : bytes_(allBytes(device)),
          data_{reinterpret_cast<const std::uint8_t*>(bytes_.constData()),
                static_cast<std::size_t>(bytes_.size())},
          demuxer_(WebPDemux(&data_)) {}

    // Whether the file is whole.
    bool isOpen() const { return demuxer_ != nullptr; }

    QSize storedSize() const {
        return {static_cast<int>(WebPDemuxGetI(demuxer_.get(), WEBP_FF_CANVAS_WIDTH)),
                static_cast<int>(WebPDemuxGetI(demuxer_.get(), WEBP_FF_CANVAS_HEIGHT))};
    }

    qint64 memory() const {
        constexpr qint64 Picture = 4;  // bytes a pixel
        constexpr qint64 Library = 6;  // a lossless picture and its colours, or planes and alpha
        constexpr qint64 Canvases = 8;
        return bytes_.size() + pixelCount(storedSize()) * (Picture + Library + (isAnimated() ? Canvases : 0));
    }

    PictureFacts facts() const {
        const ExifFacts exif = readExifFacts(chunk("EXIF"));
        return {exif.orientation, exif.dpiX, exif.dpiY, chunk("ICCP").toByteArray()};
    }

    // As stored; null for a damaged file.
    QImage decode() const { return isAnimated() ? decodeFirstOfMany() : decodeOnlyOne(); }

  private:
    bool isAnimated() const {
        return (WebPDemuxGetI(demuxer_.get(), WEBP_FF_FORMAT_FLAGS) & ANIMATION_FLAG) != 0;
    }

    // Lies in the file's bytes; empty where the file has no such chunk.
    QByteArrayView chunk(const char* name) const {
        WebPChunkIterator found{};
        QByteArrayView content;
        if (WebPDemuxGetChunk(demuxer_.get(), name, 1, &found) != 0)
            content = QByteArrayView(found.chunk.bytes, static_cast<qsizetype>(found.chunk.size));
        WebPDemuxReleaseChunkIterator(&found);
        return content;
    }

    QImage decodeOnlyOne() const {
        WebPDecoderConfig config;
        if (WebPInitDecoderConfig(&config) == 0 ||
            WebPGetFeatures(data_.bytes, data_.size, &config.input) != VP8_STATUS_OK)
            return {};
        const QSize size(config.input.width, config.input.height);
        if (size != storedSize()) return {};
        QImage picture =
            newPicture(size, config.input.has_alpha != 0 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        config.output.colorspace = QRgbOrder;
        config.output.is_external_memory = 1;
        config.output.u.RGBA = {picture.bits(), static_cast<int>(picture.bytesPerLine()),
                                static_cast<std::size_t>(picture.sizeInBytes())};
        return judged(WebPDecode(data_.bytes, data_.size, &config)) ? picture : QImage();
    }

    QImage decodeFirstOfMany() const {
        WebPAnimDecoderOptions options;
        WebPAnimDecoderOptionsInit(&options);
        options.color_mode = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? MODE_BGRA : MODE_RGBA;
        const std::unique_ptr<WebPAnimDecoder, DeleteAnimation> decoder(WebPAnimDecoderNew(&data_, &options));
        std::uint8_t* pixels = nullptr;
        int time = 0;
        if (!decoder || WebPAnimDecoderGetNext(decoder.get(), &pixels, &time) == 0) return {};
        const QImage canvas(
            pixels, storedSize().width(), storedSize().height(), storedSize().width() * qsizetype{4},
            Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? QImage::Format_ARGB32 : QImage::Format_RGBA8888);
        return converted(canvas.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }

    static bool judged(VP8StatusCode status) {
        if (status == VP8_STATUS_OUT_OF_MEMORY) throw std::bad_alloc();
        return status == VP8_STATUS_OK;
    }

    QByteArray bytes_;
    WebPData data_;
    std::unique_ptr<WebPDemuxer, DeleteDemuxer> demuxer_;
};

}  // namespace

std::optional<PictureNeeds> webpNeeds(QIODevice& device) {
    const WebpFile file(device);
    if (!file.isOpen()) return std::nullopt;
    return needsOf(file.storedSize(), file.facts(), file.memory());
}

std::optional<Picture> decodeWebp(QIODevice& device) {
    const WebpFile file(device);
    if (!file.isOpen()) return std::nullopt;
    return finishedPicture(file.decode(), file.facts());
}

}  // namespace zelto
