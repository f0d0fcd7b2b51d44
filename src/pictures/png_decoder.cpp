// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/png_decoder.h"

#include "pictures/color_profile.h"
#include "pictures/device_bytes.h"
#include "pictures/exif_facts.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_memory.h"
#include "pictures/resolution.h"

#include <QColorSpace>

#include <png.h>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdlib>

namespace zelto {
namespace {

[[noreturn]] void leave(png_structp png, png_const_charp) {
    std::longjmp(*static_cast<std::jmp_buf*>(png_get_error_ptr(png)), 1);
}

void stayQuiet(png_structp, png_const_charp) {}

// Of any chunk but those of the pixels: what it holds, and what it unpacks to.
constexpr png_alloc_size_t LargestChunk = 64 << 20;

// What libpng may have at a time. It would ask for any length that a chunk states.
struct Memory {
    png_alloc_size_t largest = LargestChunk;
    bool ranOut = false;  // what cannot be had is noted here, since libpng's message is one of many
};

png_voidp allocate(png_structp png, png_alloc_size_t bytes) {
    auto& memory = *static_cast<Memory*>(png_get_mem_ptr(png));
    if (bytes > memory.largest) return nullptr;
    void* const block = std::malloc(bytes);
    memory.ranOut |= block == nullptr;
    return block;
}

void release(png_structp, png_voidp memory) {
    std::free(memory);
}

void readFrom(png_structp png, png_bytep target, std::size_t count) {
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    if (readBytes(*device, target, static_cast<qint64>(count)) != static_cast<qint64>(count))
        png_error(png, "ends early");
}

// Chunks that change no pixel. Compressed texts could take gigabytes and half a minute.
constexpr std::array<png_byte, 50> SkippedChunks = {
    "tEXt\0zTXt\0iTXt\0sPLT\0hIST\0pCAL\0sCAL\0oFFs\0tIME\0bKGD"};

// Owns libpng's reading state. What can fail goes through guarded(), so that libpng's way out of an error, a long jump,
// never passes over an object with a destructor.
class PngFile {
  public:
    explicit PngFile(QIODevice& device)
        : png_(png_create_read_struct_2(PNG_LIBPNG_VER_STRING, &escape_, leave, stayQuiet, &memory_, allocate,
                                        release)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
        if (info_ == nullptr) throw std::bad_alloc();
        png_set_read_fn(png_, &device, readFrom);
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_set_chunk_malloc_max(png_, LargestChunk);
        png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, SkippedChunks.data(),
                                    SkippedChunks.size() / 5);
    }
    ~PngFile() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Q_DISABLE_COPY_MOVE(PngFile)

    bool readHeader() {
        return guarded([&] { png_read_info(png_, info_); });
    }

    QSize storedSize() const {
        return {static_cast<int>(png_get_image_width(png_, info_)),
                static_cast<int>(png_get_image_height(png_, info_))};
    }

    qint64 memory() const {
        constexpr qint64 RowBuffers = 64;  // bytes per pixel, generously, for libpng's own rows
        // Wide pictures are converted to 64-bit pixels and from there to 32.
        return pixelCount(storedSize()) * (isWide() ? 12 : 4) + RowBuffers * storedSize().width();
    }

    PictureFacts facts() const {
        PictureFacts facts;
        readExif(facts);
        png_uint_32 dotsX = 0;
        png_uint_32 dotsY = 0;
        int unit = PNG_RESOLUTION_UNKNOWN;
        if (png_get_pHYs(png_, info_, &dotsX, &dotsY, &unit) != 0 && unit == PNG_RESOLUTION_METER) {
            facts.dpiX = dotsX / InchesPerMeter;
            facts.dpiY = dotsY / InchesPerMeter;
        }
        facts.profile = profile();
        return facts;
    }

    // As stored; null for a damaged file.
    QImage decode() {
        const bool alpha = hasAlpha();
        const bool greyOnly = isWide() && !alpha && png_get_color_type(png_, info_) == PNG_COLOR_TYPE_GRAY;
        const QImage::Format format = greyOnly   ? QImage::Format_Grayscale16
                                      : isWide() ? (alpha ? QImage::Format_RGBA64 : QImage::Format_RGBX64)
                                                 : (alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        QImage picture = newPicture(storedSize(), format);
        uchar* bits = picture.bits();
        const qsizetype stride = picture.bytesPerLine();
        const int rows = picture.height();
        const bool done = guarded([&] {
            chooseForm(greyOnly);
            const int passes = png_set_interlace_handling(png_);
            memory_.largest = PNG_SIZE_MAX;  // for rows
            png_read_update_info(png_, info_);
            memory_.largest = LargestChunk;
            for (int pass = 0; pass < passes; ++pass) {
                for (int y = 0; y < rows; ++y) png_read_row(png_, bits + stride * y, nullptr);
            }
            png_read_end(png_, nullptr);
        });
        return done ? picture : QImage();
    }

  private:
    template <class Step>
    bool guarded(Step step) {
        // NOLINTNEXTLINE(cert-err52-cpp): libpng's only way out of an error
        if (setjmp(escape_) != 0) {
            if (memory_.ranOut) throw std::bad_alloc();
            return false;
        }
        step();
        return true;
    }

    bool isWide() const { return png_get_bit_depth(png_, info_) == 16; }

    // Whether any pixel may be seen through: not where a palette calls all its colours opaque, or the colour that is
    // to be clear lies outside what the bits can say.
    bool hasAlpha() const {
        if ((png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0) return true;
        png_bytep alphas = nullptr;
        int count = 0;
        png_color_16p clear = nullptr;
        if (png_get_tRNS(png_, info_, &alphas, &count, &clear) == 0) return false;
        if (alphas != nullptr)
            return std::any_of(alphas, alphas + count, [](png_byte a) { return a != 255; });
        const int bits = png_get_bit_depth(png_, info_);
        return png_get_color_type(png_, info_) != PNG_COLOR_TYPE_GRAY || clear->gray < (1 << bits);
    }

    // Has libpng hand out every kind of pixel as the picture's format has it in memory.
    void chooseForm(bool greyOnly) {
        if (greyOnly) {
            if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) png_set_swap(png_);
            return;
        }
        png_set_expand(png_);
        png_set_gray_to_rgb(png_);
        if (!hasAlpha()) png_set_strip_alpha(png_);
        if (isWide()) {
            if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) png_set_swap(png_);
            png_set_add_alpha(png_, 0xFFFF, PNG_FILLER_AFTER);
        } else if constexpr (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
            png_set_bgr(png_);
            png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
        } else {
            png_set_swap_alpha(png_);
            png_set_add_alpha(png_, 0xFF, PNG_FILLER_BEFORE);
        }
    }

    void readExif(PictureFacts& facts) const {
        png_bytep data = nullptr;
        png_uint_32 length = 0;
        if (png_get_eXIf_1(png_, info_, &length, &data) == 0) return;
        const ExifFacts exif = readExifFacts(QByteArrayView(data, static_cast<qsizetype>(length)));
        facts.orientation = exif.orientation;
        facts.dpiX = exif.dpiX;
        facts.dpiY = exif.dpiY;
    }

    QByteArray profile() const {
        png_charp name = nullptr;
        png_bytep profile = nullptr;
        png_uint_32 length = 0;
        int compression = 0;
        if (png_get_iCCP(png_, info_, &name, &compression, &profile, &length) != 0)
            return QByteArray(reinterpret_cast<const char*>(profile), static_cast<qsizetype>(length));
        return meansSrgb() ? QByteArray() : statedColors().iccProfile();
    }

    // Writers that know of sRGB only roughly say gamma 1/2.2 and, if anything, its primaries. Taken at its
    // word that gamma would darken the shadows of a picture that is sRGB in truth.
    bool meansSrgb() const {
        constexpr png_fixed_point Tolerance = 1000;
        constexpr png_fixed_point SrgbGamma = 45455;
        constexpr std::array<png_fixed_point, 8> SrgbPrimaries{31270, 32900, 64000, 33000,
                                                               30000, 60000, 15000, 6000};
        if (png_get_valid(png_, info_, PNG_INFO_sRGB) != 0) return true;
        png_fixed_point gamma = SrgbGamma;
        png_get_gAMA_fixed(png_, info_, &gamma);
        std::array<png_fixed_point, 8> xy = SrgbPrimaries;
        png_get_cHRM_fixed(png_, info_, &xy[0], &xy[1], &xy[2], &xy[3], &xy[4], &xy[5], &xy[6], &xy[7]);
        if (std::abs(gamma - SrgbGamma) > Tolerance) return false;
        for (std::size_t i = 0; i < xy.size(); ++i) {
            if (std::abs(xy[i] - SrgbPrimaries[i]) > Tolerance) return false;
        }
        return true;
    }

    // What gamma and primaries say, sRGB's where the file names none. Without a gamma primaries mean nothing.
    QColorSpace statedColors() const {
        double gamma = 0.0;
        png_get_gAMA(png_, info_, &gamma);
        // libpng still hands out the gamma of colours that it found to be contradictory as a whole.
        if (png_get_valid(png_, info_, PNG_INFO_gAMA) == 0 || !(gamma > 0.0)) return {};
        const float exponent = 1.0F / static_cast<float>(gamma);
        std::array<double, 8> xy{};
        if (png_get_cHRM(png_, info_, &xy[0], &xy[1], &xy[2], &xy[3], &xy[4], &xy[5], &xy[6], &xy[7]) != 0 &&
            std::ranges::all_of(xy, [](double c) { return c >= 0.0 && c <= 1.0; })) {
            const QColorSpace stated({xy[0], xy[1]}, {xy[2], xy[3]}, {xy[4], xy[5]}, {xy[6], xy[7]},
                                     QColorSpace::TransferFunction::Gamma, exponent);
            if (stated.isValid()) return stated;
        }
        return {QColorSpace::Primaries::SRgb, QColorSpace::TransferFunction::Gamma, exponent};
    }

    std::jmp_buf escape_{};
    Memory memory_;
    png_structp png_;
    png_infop info_;
};

}  // namespace

std::optional<PictureNeeds> pngNeeds(QIODevice& device) {
    PngFile file(device);
    if (!file.readHeader()) return std::nullopt;
    return needsOf(file.storedSize(), file.facts(), file.memory());
}

std::optional<Picture> decodePng(QIODevice& device) {
    PngFile file(device);
    if (!file.readHeader()) return std::nullopt;
    const PictureFacts facts = file.facts();
    return finishedPicture(file.decode(), facts);
}

}  // namespace zelto
