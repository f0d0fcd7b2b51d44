// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_memory.h"
#include "platform/words.h"

#include <webp/encode.h>
#include <webp/mux.h>

#include <memory>

namespace zelto {
namespace {

constexpr int LossyMethod = 4;    // of 6; the ones above cost twice the time for a few percent
constexpr int LosslessLevel = 1;  // of 9

Result<QByteArray> failed(int code) {
    return fail(ErrorCode::CannotWrite, Words::tr("The WebP encoder failed with error %1.").arg(code));
}

int append(const std::uint8_t* data, std::size_t size, const WebPPicture* picture) {
    auto& bytes = *static_cast<QByteArray*>(picture->custom_ptr);
    return appendBytes(bytes, data, static_cast<qsizetype>(size)) ? 1 : 0;
}

struct DeleteMux {
    void operator()(WebPMux* mux) const { WebPMuxDelete(mux); }
};

WebPData dataOf(const QByteArray& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

Result<QByteArray> withMetadata(const QByteArray& file, const MetadataBlocks& blocks) {
    if (blocks.exif.isEmpty() && blocks.xmp.isEmpty()) return file;
    constexpr int Borrowed = 0;
    const WebPData plain = dataOf(file);
    const std::unique_ptr<WebPMux, DeleteMux> mux(WebPMuxCreate(&plain, Borrowed));
    if (!mux) throw std::bad_alloc();
    for (const auto& [name, block] : {std::pair("EXIF", &blocks.exif), std::pair("XMP ", &blocks.xmp)}) {
        const WebPData data = dataOf(*block);
        const WebPMuxError error =
            block->isEmpty() ? WEBP_MUX_OK : WebPMuxSetChunk(mux.get(), name, &data, Borrowed);
        if (error != WEBP_MUX_OK) return failed(error);
    }
    WebPData whole{};
    const WebPMuxError error = WebPMuxAssemble(mux.get(), &whole);
    if (error != WEBP_MUX_OK) return failed(error);
    const std::unique_ptr<WebPData, void (*)(WebPData*)> owned(&whole, WebPDataClear);
    return QByteArray(reinterpret_cast<const char*>(whole.bytes), static_cast<qsizetype>(whole.size));
}

}  // namespace

Result<QByteArray> encodeWebp(const QImage& picture, const EncodeOptions& options) {
    WebPConfig config;
    WebPPicture input;
    if (WebPConfigInit(&config) == 0 || WebPPictureInit(&input) == 0) return failed(0);
    if (options.quality == 100) {
        WebPConfigLosslessPreset(&config, LosslessLevel);
        config.exact = 1;
    } else {
        config.quality = static_cast<float>(options.quality);
        config.method = LossyMethod;
    }
    // The library takes colours that are not premultiplied, in the order that QRgb has; it only reads them.
    const QImage straight =
        picture.hasAlphaChannel() ? converted(picture.convertToFormat(QImage::Format_ARGB32)) : picture;
    QByteArray bytes;
    input.use_argb = 1;
    input.width = straight.width();
    input.height = straight.height();
    input.argb = const_cast<std::uint32_t*>(  // NOLINT(cppcoreguidelines-pro-type-const-cast)
        reinterpret_cast<const std::uint32_t*>(straight.constBits()));
    input.argb_stride = static_cast<int>(straight.bytesPerLine() / 4);
    input.writer = append;
    input.custom_ptr = &bytes;
    const bool done = WebPEncode(&config, &input) != 0;
    WebPPictureFree(&input);
    if (input.error_code == VP8_ENC_ERROR_OUT_OF_MEMORY ||
        input.error_code == VP8_ENC_ERROR_BITSTREAM_OUT_OF_MEMORY)
        throw std::bad_alloc();
    if (!done) return failed(input.error_code);
    return withMetadata(bytes, options.metadata);
}

const char* webpLibrary() {
    static const QByteArray name = [] {
        const int version = WebPGetEncoderVersion();
        return QStringLiteral("libwebp %1.%2.%3")
            .arg(version >> 16)
            .arg(version >> 8 & 0xFF)
            .arg(version & 0xFF)
            .toLatin1();
    }();
    return name.constData();
}

}  // namespace zelto
