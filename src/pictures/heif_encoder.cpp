// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/heif_library.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_rows.h"
#include "platform/words.h"

#include <QThread>

#include <algorithm>
#include <string>

namespace zelto {
namespace {

// What each codec is told beside the quality: of the speeds that it has, one that a batch can bear.
struct Codec {
    heif_compression_format format;
    const char* name;
    const char* speedParameter;
    const char* speed;
    bool writesLossless;
};
constexpr Codec Av1{heif_compression_AV1, "AVIF", "speed", "8", true};
constexpr Codec Hevc{heif_compression_HEVC, "HEIC", "preset", "faster", false};

struct HeifFailure : std::exception {
    explicit HeifFailure(const heif_error& error) : message(error.message) {}
    std::string message;
};

void check(const heif_error& error) {
    if (error.code == heif_error_Memory_allocation_error) throw std::bad_alloc();
    if (error.code != heif_error_Ok) throw HeifFailure(error);
}

HeifImage imageOf(const QImage& picture) {
    const bool alpha = picture.hasAlphaChannel();
    heif_image* made = nullptr;
    check(heif_image_create(picture.width(), picture.height(), heif_colorspace_RGB,
                            alpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, &made));
    HeifImage image(made);
    constexpr int Bits = 8;
    check(heif_image_add_plane(made, heif_channel_interleaved, picture.width(), picture.height(), Bits));
    int stride = 0;
    uchar* pixels = heif_image_get_plane(made, heif_channel_interleaved, &stride);
    for (int y = 0; y < picture.height(); ++y) {
        (alpha ? rowAsStraightRgba : rowAsRgb)(pixelRow(picture, y), picture.width(),
                                               pixels + qsizetype{stride} * y);
    }
    return image;
}

HeifNclx srgbColors(bool lossless) {
    auto nclx = heifOwner<HeifNclx>(heif_nclx_color_profile_alloc());
    nclx->color_primaries = heif_color_primaries_ITU_R_BT_709_5;
    nclx->transfer_characteristics = heif_transfer_characteristic_IEC_61966_2_1;
    nclx->matrix_coefficients =
        lossless ? heif_matrix_coefficients_RGB_GBR : heif_matrix_coefficients_ITU_R_BT_601_6;
    nclx->full_range_flag = 1;
    return nclx;
}

void add(heif_context* context, heif_image_handle* handle, const MetadataBlocks& blocks) {
    if (!blocks.exif.isEmpty())
        check(heif_context_add_exif_metadata(context, handle, blocks.exif.constData(),
                                             static_cast<int>(blocks.exif.size())));
    if (!blocks.xmp.isEmpty())
        check(heif_context_add_XMP_metadata(context, handle, blocks.xmp.constData(),
                                            static_cast<int>(blocks.xmp.size())));
}

QByteArray bytesOf(heif_context* context) {
    QByteArray bytes;
    heif_writer writer{
        1, [](heif_context*, const void* data, std::size_t size, void* target) -> heif_error {
            const bool done =
                appendBytes(*static_cast<QByteArray*>(target), data, static_cast<qsizetype>(size));
            return {done ? heif_error_Ok : heif_error_Memory_allocation_error, heif_suberror_Unspecified, ""};
        }};
    check(heif_context_write(context, &writer, &bytes));
    return bytes;
}

QByteArray encoded(const QImage& picture, const EncodeOptions& options, const Codec& codec) {
    startHeif();
    const auto context = heifOwner<HeifContext>(heif_context_alloc());
    heif_encoder* made = nullptr;
    check(heif_context_get_encoder_for_format(context.get(), codec.format, &made));
    const HeifEncoder encoder(made);
    const bool lossless = codec.writesLossless && options.quality == 100;
    check(heif_encoder_set_lossy_quality(made, options.quality));
    check(heif_encoder_set_lossless(made, lossless ? 1 : 0));
    // Not every encoder of a format has each of these.
    heif_encoder_set_parameter(made, codec.speedParameter, codec.speed);
    // x265 hands every row from thread to thread, which costs minutes on a busy machine; photos are worked on side by
    // side.
    heif_encoder_set_parameter_string(made, "x265:pools", "none");
    heif_encoder_set_parameter_integer(made, "threads", std::min(QThread::idealThreadCount(), 4));
    heif_encoder_set_parameter_string(made, "chroma", options.quality >= WholeChromaQuality ? "444" : "420");
    heif_encoder_set_parameter_integer(made, "alpha-quality", 100);
    heif_encoder_set_parameter_boolean(made, "lossless-alpha", 1);

    const HeifNclx colors = srgbColors(lossless);
    const auto encoding = heifOwner<HeifEncodingOptions>(heif_encoding_options_alloc());
    encoding->output_nclx_profile = colors.get();
    encoding->macOS_compatibility_workaround_no_nclx_profile = 0;
    heif_image_handle* handle = nullptr;
    const HeifImage image = imageOf(picture);
    check(heif_image_set_nclx_color_profile(image.get(), colors.get()));
    check(heif_context_encode_image(context.get(), image.get(), made, encoding.get(), &handle));
    const HeifHandle owned(handle);
    add(context.get(), handle, options.metadata);
    return bytesOf(context.get());
}

Result<QByteArray> encode(const QImage& picture, const EncodeOptions& options, const Codec& codec) {
    try {
        return encoded(picture, options, codec);
    } catch (const HeifFailure& failure) {
        return fail(ErrorCode::CannotWrite,
                    Words::tr("The %1 encoder failed: %2")
                        .arg(QLatin1String(codec.name), QString::fromStdString(failure.message)));
    }
}

bool canEncode(const Codec& codec) {
    startHeif();
    return heif_have_encoder_for_format(codec.format) != 0;
}

}  // namespace

Result<QByteArray> encodeAvif(const QImage& picture, const EncodeOptions& options) {
    return encode(picture, options, Av1);
}

Result<QByteArray> encodeHeic(const QImage& picture, const EncodeOptions& options) {
    return encode(picture, options, Hevc);
}

bool canEncodeAvif() {
    return canEncode(Av1);
}

bool canEncodeHeic() {
    return canEncode(Hevc);
}

const char* heifLibrary() {
    static const std::string name = std::string("libheif ") + heif_get_version();
    return name.c_str();
}

}  // namespace zelto
