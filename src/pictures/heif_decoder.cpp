// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/heif_decoder.h"

#include "pictures/coded_colors.h"
#include "pictures/device_bytes.h"
#include "pictures/exif_facts.h"
#include "pictures/heif_library.h"
#include "pictures/heif_measure.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"

#include <QtEndian>

#include <vector>

namespace zelto {
namespace {

class HeifFile {
  public:
    explicit HeifFile(QIODevice& device) : bytes_(allBytes(device)), measure_(measureHeif(bytes_)) {
        if (!measure_) return;
        startHeif();
        context_ = heifOwner<HeifContext>(heif_context_alloc());
        // Photos are worked on side by side.
        heif_context_set_max_decoding_threads(context_.get(), 0);
        heif_image_handle* handle = nullptr;
        if (succeeded(heif_context_read_from_memory_without_copy(
                context_.get(), bytes_.constData(), static_cast<std::size_t>(bytes_.size()), nullptr)) &&
            succeeded(heif_context_get_primary_image_handle(context_.get(), &handle)))
            handle_.reset(handle);
    }

    bool isOpen() const { return handle_ != nullptr; }

    QSize size() const {
        return {heif_image_handle_get_width(handle_.get()), heif_image_handle_get_height(handle_.get())};
    }

    // Nothing for a picture that is too large.
    std::optional<qint64> memory() const {
        const qint64 pixels = std::max(pixelCount(size()), measure_->largest);
        // The library counts the bytes of a picture in an int, and writes to the wrong place beyond it. Less what the
        // ends of the rows are filled up with.
        constexpr qint64 MostBytes = (qint64{1} << 31) - (qint64{1} << 24);
        if (pixels > MostBytes / (isWide() ? 8 : 4)) return std::nullopt;
        // Bytes a pixel: the codec's planes, the library's, what it makes of them, and the picture; of others the
        // library's planes.
        constexpr qint64 Narrow = 16;
        constexpr qint64 NarrowBesides = 4;
        const qint64 bytes = pixels * Narrow + measure_->besides * NarrowBesides;
        return bytes_.size() + (isWide() ? 2 * bytes : bytes);
    }

    PictureFacts facts() const {
        const ExifFacts exif = readExifFacts(exifBlock());
        return {1, exif.dpiX, exif.dpiY, std::nullopt};
    }

    // Upright, with the profile to convert it from; a null picture for a damaged file.
    QImage decode(QByteArray& profile) {
        const auto options = heifOwner<HeifDecodingOptions>(heif_decoding_options_alloc());
        options->strict_decoding = 1;
        heif_image* decoded = nullptr;
        const heif_chroma form = !isWide()                         ? heif_chroma_interleaved_RGBA
                                 : Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? heif_chroma_interleaved_RRGGBBAA_LE
                                                                   : heif_chroma_interleaved_RRGGBBAA_BE;
        if (!succeeded(heif_decode_image(handle_.get(), &decoded, heif_colorspace_RGB, form, options.get())))
            return {};
        HeifImage image(decoded);
        if (heif_image_get_decoding_warnings(image.get(), 0, nullptr, 0) > 0) return {};
        profile = profileOf(image.get());
        return isWide() ? wideCopy(image.get()) : wrapped(std::move(image));
    }

  private:
    bool isWide() const { return heif_image_handle_get_luma_bits_per_pixel(handle_.get()) > 8; }
    bool hasAlpha() const { return heif_image_handle_has_alpha_channel(handle_.get()) != 0; }
    bool isPremultiplied() const { return heif_image_handle_is_premultiplied_alpha(handle_.get()) != 0; }

    static bool succeeded(const heif_error& error) {
        const bool ranOut = error.code == heif_error_Memory_allocation_error &&
                            error.subcode != heif_suberror_Security_limit_exceeded;
        if (ranOut) throw std::bad_alloc();
        return error.code == heif_error_Ok;
    }

    // The Exif block's TIFF structure; empty where there is none.
    QByteArray exifBlock() const {
        constexpr std::size_t Largest = 1 << 20;
        heif_item_id id = 0;
        if (heif_image_handle_get_list_of_metadata_block_IDs(handle_.get(), "Exif", &id, 1) != 1) return {};
        const std::size_t size = heif_image_handle_get_metadata_size(handle_.get(), id);
        constexpr qsizetype OffsetBytes = 4;
        if (size <= OffsetBytes || size > Largest) return {};
        QByteArray block(static_cast<qsizetype>(size), Qt::Uninitialized);
        if (!succeeded(heif_image_handle_get_metadata(handle_.get(), id, block.data()))) return {};
        const qsizetype start = OffsetBytes + qFromBigEndian<quint32>(block.constData());
        return start < block.size() ? block.sliced(start) : QByteArray();
    }

    QByteArray profileOf(const heif_image* image) const {
        if (const std::size_t size = heif_image_handle_get_raw_color_profile_size(handle_.get()); size > 0) {
            QByteArray profile(static_cast<qsizetype>(size), Qt::Uninitialized);
            if (succeeded(heif_image_handle_get_raw_color_profile(handle_.get(), profile.data())))
                return profile;
        }
        heif_color_profile_nclx* stated = nullptr;
        if (!succeeded(heif_image_handle_get_nclx_color_profile(handle_.get(), &stated)) &&
            !succeeded(heif_image_get_nclx_color_profile(image, &stated)))
            return {};
        const HeifNclx nclx(stated);
        if (nclx->color_primaries == heif_color_primaries_unspecified) return {};
        return codedColorsProfile(
            {.red = QPointF(nclx->color_primary_red_x, nclx->color_primary_red_y),
             .green = QPointF(nclx->color_primary_green_x, nclx->color_primary_green_y),
             .blue = QPointF(nclx->color_primary_blue_x, nclx->color_primary_blue_y),
             .white = QPointF(nclx->color_primary_white_x, nclx->color_primary_white_y)},
            nclx->transfer_characteristics);
    }

    // The library's own pixels, which live as long as the picture.
    QImage wrapped(HeifImage image) const {
        const QImage::Format format = !hasAlpha()         ? QImage::Format_RGBX8888
                                      : isPremultiplied() ? QImage::Format_RGBA8888_Premultiplied
                                                          : QImage::Format_RGBA8888;
        int stride = 0;
        uchar* pixels = heif_image_get_plane(image.get(), heif_channel_interleaved, &stride);
        if (pixels == nullptr || !hasTheSizeOf(image.get())) return {};
        return converted(QImage(
            pixels, size().width(), size().height(), stride, format,
            [](void* owned) { heif_image_release(static_cast<heif_image*>(owned)); }, image.release()));
    }

    // 10 or 12 bits a component, spread over 16.
    QImage wideCopy(const heif_image* image) const {
        int stride = 0;
        const uchar* pixels = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
        const int bits = heif_image_get_bits_per_pixel_range(image, heif_channel_interleaved);
        if (pixels == nullptr || !hasTheSizeOf(image) || bits < 9 || bits > 16) return {};
        QImage picture = newPicture(size(), hasAlpha() ? QImage::Format_RGBA64 : QImage::Format_RGBX64);
        for (int y = 0; y < picture.height(); ++y) {
            const auto* from = reinterpret_cast<const quint16*>(pixels + qsizetype{stride} * y);
            auto* to = reinterpret_cast<quint16*>(picture.scanLine(y));
            for (int i = 0; i < 4 * picture.width(); ++i)
                to[i] = static_cast<quint16>((from[i] << (16 - bits)) | (from[i] >> (2 * bits - 16)));
        }
        if (hasAlpha() && isPremultiplied()) picture.reinterpretAsFormat(QImage::Format_RGBA64_Premultiplied);
        return picture;
    }

    bool hasTheSizeOf(const heif_image* image) const {
        return QSize(heif_image_get_width(image, heif_channel_interleaved),
                     heif_image_get_height(image, heif_channel_interleaved)) == size();
    }

    QByteArray bytes_;
    std::optional<HeifMeasure> measure_;
    HeifContext context_;
    HeifHandle handle_;
};

}  // namespace

std::optional<PictureNeeds> heifNeeds(QIODevice& device) {
    const HeifFile file(device);
    if (!file.isOpen()) return std::nullopt;
    const std::optional<qint64> memory = file.memory();
    if (!memory) return std::nullopt;
    return needsOf(file.size(), file.facts(), *memory);
}

std::optional<Picture> decodeHeif(QIODevice& device) {
    HeifFile file(device);
    if (!file.isOpen()) return std::nullopt;
    PictureFacts facts = file.facts();
    QByteArray profile;
    QImage picture = file.decode(profile);
    facts.profile = std::move(profile);
    return finishedPicture(std::move(picture), facts);
}

}  // namespace zelto
