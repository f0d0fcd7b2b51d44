// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jxl_decoder.h"

#include "pictures/decoding_time.h"
#include "pictures/device_bytes.h"
#include "pictures/exif_facts.h"
#include "pictures/jxl_frames.h"
#include "pictures/jxl_threads.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"

#include <QtEndian>

#include <jxl/decode.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace zelto {
namespace {

struct DestroyDecoder {
    void operator()(JxlDecoder* decoder) const { JxlDecoderDestroy(decoder); }
};

class JxlFile {
  public:
    JxlFile(QIODevice& device, int events)
        : bytes_(allBytes(device)), time_(bytes_.size()), decoder_(JxlDecoderCreate(nullptr)) {
        if (!decoder_) throw std::bad_alloc();
        JxlDecoder* const decoder = decoder_.get();
        // The end of the input is not told, since libjxl would print where it came too early.
        opened_ = JxlDecoderSetParallelRunner(decoder, runJxlInParallel, &time_) == JXL_DEC_SUCCESS &&
                  JxlDecoderSetUnpremultiplyAlpha(decoder, JXL_TRUE) == JXL_DEC_SUCCESS &&
                  JxlDecoderSetDecompressBoxes(decoder, JXL_TRUE) == JXL_DEC_SUCCESS &&
                  JxlDecoderSubscribeEvents(decoder, events) == JXL_DEC_SUCCESS &&
                  JxlDecoderSetInput(decoder, reinterpret_cast<const std::uint8_t*>(bytes_.constData()),
                                     static_cast<std::size_t>(bytes_.size())) == JXL_DEC_SUCCESS;
    }

    // Goes on to the Exif block, over what is coded. False for a damaged file, or one that takes too long.
    bool readHeader(PictureFacts& facts) {
        bool hasInfo = false;
        while (time_.isLeft()) {
            const JxlDecoderStatus status = opened_ ? JxlDecoderProcessInput(decoder_.get()) : JXL_DEC_ERROR;
            endExif(facts);
            if (status == JXL_DEC_BASIC_INFO) {
                hasInfo = JxlDecoderGetBasicInfo(decoder_.get(), &info_) == JXL_DEC_SUCCESS &&
                          info_.xsize <= LargestSide && info_.ysize <= LargestSide;
            } else if (status == JXL_DEC_BOX) {
                beginExif();
            } else if (status != JXL_DEC_BOX_NEED_MORE_OUTPUT) {
                return hasInfo;
            }
        }
        return false;
    }

    QSize size() const { return {static_cast<int>(info_.xsize), static_cast<int>(info_.ysize)}; }

    // Nothing where the sizes of its frames cannot be told, which may be far larger than the picture.
    std::optional<qint64> memory() const {
        const std::optional<qint64> largestFrame = largestJxlFrame(bytes_);
        if (!largestFrame) return std::nullopt;
        // Coefficients or samples of every plane; the library keeps no whole picture in floating point.
        const qint64 planes = 3 + qint64{info_.num_extra_channels};
        constexpr qint64 PlaneBytes = 6;  // of a pixel; measured: 4 at the most, with progressive files
        return bytes_.size() +
               std::max(pixelCount(size()), *largestFrame) * (planes * PlaneBytes + (isWide() ? 12 : 8));
    }

    // The picture with what the file says about it; null for a damaged file. Goes on behind the picture where the Exif
    // block has not come yet.
    QImage decode(PictureFacts& facts) {
        QImage picture;
        bool complete = false;
        for (;;) {
            const JxlDecoderStatus status = JxlDecoderProcessInput(decoder_.get());
            endExif(facts);
            if (status == JXL_DEC_COLOR_ENCODING) {
                facts.profile = chooseColors();
            } else if (status == JXL_DEC_BOX) {
                beginExif();
            } else if (status == JXL_DEC_NEED_IMAGE_OUT_BUFFER && !complete) {
                picture = newPicture(size(), pictureFormat());
                if (!giveMemory(picture)) return {};
            } else if (status == JXL_DEC_FULL_IMAGE) {
                complete = true;
            } else if (status == JXL_DEC_BASIC_INFO) {
                if (JxlDecoderGetBasicInfo(decoder_.get(), &info_) != JXL_DEC_SUCCESS) return {};
            } else if (status != JXL_DEC_BOX_NEED_MORE_OUTPUT) {
                return complete ? picture : QImage();
            }
            if (!time_.isLeft()) return {};
        }
    }

  private:
    static constexpr std::uint32_t LargestSide = 1U << 30;

    bool hasAlpha() const { return info_.alpha_bits > 0; }
    bool isWide() const { return info_.bits_per_sample > 8; }

    QImage::Format pictureFormat() const {
        if (isWide()) return hasAlpha() ? QImage::Format_RGBA64 : QImage::Format_RGBX64;
        return hasAlpha() ? QImage::Format_RGBA8888 : QImage::Format_RGBX8888;
    }

    bool giveMemory(QImage& picture) {
        const JxlPixelFormat format{4, isWide() ? JXL_TYPE_UINT16 : JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 4};
        std::size_t needed = 0;
        return JxlDecoderImageOutBufferSize(decoder_.get(), &format, &needed) == JXL_DEC_SUCCESS &&
               needed <= static_cast<std::size_t>(picture.sizeInBytes()) &&
               JxlDecoderSetImageOutBuffer(decoder_.get(), &format, picture.bits(),
                                           static_cast<std::size_t>(picture.sizeInBytes())) ==
                   JXL_DEC_SUCCESS;
    }

    // Asks for sRGB, which pictures in the format's own colours can be had in; the profile of what comes instead.
    QByteArray chooseColors() {
        JxlColorEncoding srgb{};
        srgb.color_space = info_.num_color_channels == 1 ? JXL_COLOR_SPACE_GRAY : JXL_COLOR_SPACE_RGB;
        srgb.white_point = JXL_WHITE_POINT_D65;
        srgb.primaries = JXL_PRIMARIES_SRGB;
        srgb.transfer_function = JXL_TRANSFER_FUNCTION_SRGB;
        JxlDecoderSetPreferredColorProfile(decoder_.get(), &srgb);
        std::size_t size = 0;
        const auto target = JXL_COLOR_PROFILE_TARGET_DATA;
        constexpr std::size_t Largest = 16U << 20;
        if (JxlDecoderGetICCProfileSize(decoder_.get(), nullptr, target, &size) != JXL_DEC_SUCCESS ||
            size > Largest)
            return {};
        QByteArray profile(static_cast<qsizetype>(size), Qt::Uninitialized);
        const bool done = JxlDecoderGetColorAsICCProfile(decoder_.get(), nullptr, target,
                                                         reinterpret_cast<std::uint8_t*>(profile.data()),
                                                         size) == JXL_DEC_SUCCESS;
        return done ? profile : QByteArray();
    }

    // Room for the Exif box that comes next, if it is one. Boxes may be compressed to nearly nothing: of one that does
    // not fit, the beginning is enough.
    void beginExif() {
        constexpr qsizetype Room = 1 << 16;
        JxlBoxType type{};
        if (JxlDecoderGetBoxType(decoder_.get(), type, JXL_TRUE) != JXL_DEC_SUCCESS ||
            std::memcmp(type, "Exif", sizeof type) != 0)
            return;
        exif_.resize(Room);
        JxlDecoderSetBoxBuffer(decoder_.get(), reinterpret_cast<std::uint8_t*>(exif_.data()), Room);
    }

    void endExif(PictureFacts& facts) {
        if (exif_.isEmpty()) return;
        exif_.chop(static_cast<qsizetype>(JxlDecoderReleaseBoxBuffer(decoder_.get())));
        constexpr qsizetype OffsetBytes = 4;
        if (exif_.size() > OffsetBytes) {
            const qsizetype start = OffsetBytes + qFromBigEndian<quint32>(exif_.constData());
            const ExifFacts exif = readExifFacts(QByteArrayView(exif_).sliced(qMin(start, exif_.size())));
            facts.dpiX = exif.dpiX;
            facts.dpiY = exif.dpiY;
        }
        exif_.clear();
    }

    QByteArray bytes_;
    DecodingTime time_;
    std::unique_ptr<JxlDecoder, DestroyDecoder> decoder_;
    JxlBasicInfo info_{};
    QByteArray exif_;
    bool opened_ = false;
};

}  // namespace

std::optional<PictureNeeds> jxlNeeds(QIODevice& device) {
    JxlFile file(device, JXL_DEC_BASIC_INFO | JXL_DEC_BOX);
    PictureFacts facts;
    if (!file.readHeader(facts)) return std::nullopt;
    const std::optional<qint64> memory = file.memory();
    if (!memory) return std::nullopt;
    return needsOf(file.size(), facts, *memory);
}

std::optional<Picture> decodeJxl(QIODevice& device) {
    JxlFile file(device, JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE | JXL_DEC_BOX);
    PictureFacts facts;
    QImage picture = file.decode(facts);
    return finishedPicture(std::move(picture), facts);
}

}  // namespace zelto
