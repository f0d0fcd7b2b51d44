// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jxl_threads.h"
#include "pictures/picture_encoders.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_memory.h"
#include "platform/words.h"

#include <jxl/encode.h>

#include <cmath>
#include <memory>

namespace zelto {
namespace {

constexpr int LossyEffort = 4;
constexpr int LosslessEffort = 3;

// The distance, in just noticeable differences, that the format's users expect of a quality: 1 for 90, 0.1 for 99.
float distanceOf(int quality) {
    const auto q = static_cast<float>(quality);
    return quality >= 30 ? 0.1F + (100.0F - q) * 0.09F : 6.4F + std::pow(2.5F, (30.0F - q) / 5.0F) / 6.25F;
}

struct DestroyEncoder {
    void operator()(JxlEncoder* encoder) const { JxlEncoderDestroy(encoder); }
};
using Encoder = std::unique_ptr<JxlEncoder, DestroyEncoder>;

bool setUp(JxlEncoder* encoder, const QImage& picture, bool lossless) {
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = static_cast<std::uint32_t>(picture.width());
    info.ysize = static_cast<std::uint32_t>(picture.height());
    info.bits_per_sample = 8;
    info.num_color_channels = 3;
    info.uses_original_profile = lossless ? JXL_TRUE : JXL_FALSE;
    if (picture.hasAlphaChannel()) {
        info.alpha_bits = 8;
        info.num_extra_channels = 1;
    }
    JxlColorEncoding colors;
    JxlColorEncodingSetToSRGB(&colors, JXL_FALSE);
    return JxlEncoderSetParallelRunner(encoder, runJxlInParallel, nullptr) == JXL_ENC_SUCCESS &&
           JxlEncoderSetBasicInfo(encoder, &info) == JXL_ENC_SUCCESS &&
           JxlEncoderSetColorEncoding(encoder, &colors) == JXL_ENC_SUCCESS;
}

bool addBox(JxlEncoder* encoder, const char* type, const QByteArray& content) {
    constexpr JXL_BOOL Plain = JXL_FALSE;  // many readers know no compressed boxes
    return content.isEmpty() ||
           JxlEncoderAddBox(encoder, type, reinterpret_cast<const std::uint8_t*>(content.constData()),
                            static_cast<std::size_t>(content.size()), Plain) == JXL_ENC_SUCCESS;
}

bool addMetadata(JxlEncoder* encoder, const MetadataBlocks& blocks) {
    if (blocks.exif.isEmpty() && blocks.xmp.isEmpty()) return true;
    const QByteArray offset(4, '\0');
    return JxlEncoderUseContainer(encoder, JXL_TRUE) == JXL_ENC_SUCCESS &&
           JxlEncoderUseBoxes(encoder) == JXL_ENC_SUCCESS &&
           addBox(encoder, "Exif", blocks.exif.isEmpty() ? QByteArray() : offset + blocks.exif) &&
           addBox(encoder, "xml ", blocks.xmp);
}

bool addPicture(JxlEncoder* encoder, const QImage& picture, int quality) {
    const bool lossless = quality == 100;
    JxlEncoderFrameSettings* settings = JxlEncoderFrameSettingsCreate(encoder, nullptr);
    const int effort = lossless ? LosslessEffort : LossyEffort;
    const bool alpha = picture.hasAlphaChannel();
    const QImage pixels =
        converted(picture.convertToFormat(alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888));
    constexpr std::size_t RowAlignment = 4;  // as QImage has it
    const JxlPixelFormat format{alpha ? 4U : 3U, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, RowAlignment};
    return JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT, effort) ==
               JXL_ENC_SUCCESS &&
           (lossless ? JxlEncoderSetFrameLossless(settings, JXL_TRUE)
                     : JxlEncoderSetFrameDistance(settings, distanceOf(quality))) == JXL_ENC_SUCCESS &&
           JxlEncoderAddImageFrame(settings, &format, pixels.constBits(),
                                   static_cast<std::size_t>(pixels.sizeInBytes())) == JXL_ENC_SUCCESS;
}

// All that the encoder puts out; nothing where it fails.
QByteArray outputOf(JxlEncoder* encoder) {
    JxlEncoderCloseInput(encoder);
    QByteArray bytes(1 << 20, Qt::Uninitialized);
    qsizetype used = 0;
    for (;;) {
        auto* next = reinterpret_cast<std::uint8_t*>(bytes.data() + used);
        auto room = static_cast<std::size_t>(bytes.size() - used);
        const JxlEncoderStatus status = JxlEncoderProcessOutput(encoder, &next, &room);
        used = bytes.size() - static_cast<qsizetype>(room);
        if (status == JXL_ENC_SUCCESS) return bytes.first(used);
        if (status != JXL_ENC_NEED_MORE_OUTPUT) return {};
        bytes.resize(bytes.size() * 2);
    }
}

}  // namespace

Result<QByteArray> encodeJxl(const QImage& picture, const EncodeOptions& options) {
    const Encoder encoder(JxlEncoderCreate(nullptr));
    if (!encoder) throw std::bad_alloc();
    const bool ready = setUp(encoder.get(), picture, options.quality == 100) &&
                       addMetadata(encoder.get(), options.metadata) &&
                       addPicture(encoder.get(), picture, options.quality);
    QByteArray bytes = ready ? outputOf(encoder.get()) : QByteArray();
    if (!bytes.isEmpty()) return bytes;
    const JxlEncoderError error = JxlEncoderGetError(encoder.get());
    if (error == JXL_ENC_ERR_OOM) throw std::bad_alloc();
    return fail(ErrorCode::CannotWrite,
                Words::tr("The JPEG XL encoder failed with error %1.").arg(static_cast<int>(error)));
}

const char* jxlLibrary() {
    static const QByteArray name = [] {
        const auto version = JxlEncoderVersion();
        return QStringLiteral("libjxl %1.%2.%3")
            .arg(version / 1000000)
            .arg(version / 1000 % 1000)
            .arg(version % 1000)
            .toLatin1();
    }();
    return name.constData();
}

}  // namespace zelto
