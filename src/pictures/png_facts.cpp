// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/exif_facts.h"
#include "pictures/picture_facts.h"
#include "pictures/resolution.h"

#include <png.h>

#include <array>
#include <csetjmp>
#include <cstdlib>

namespace zelto {
namespace {

[[noreturn]] void leave(png_structp png, png_const_charp) {
    std::longjmp(*static_cast<std::jmp_buf*>(png_get_error_ptr(png)), 1);
}

void stayQuiet(png_structp, png_const_charp) {}

void readFrom(png_structp png, png_bytep target, std::size_t count) {
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    if (device->read(reinterpret_cast<char*>(target), static_cast<qint64>(count)) !=
        static_cast<qint64>(count)) {
        png_error(png, "ends early");
    }
}

// Owns libpng's reading state. Only readInfo() can fail, by a jump that passes over libpng's own frames
// alone.
class PngHeader {
  public:
    explicit PngHeader(QIODevice& device)
        : png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, &escape_, leave, stayQuiet)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
        if (info_ != nullptr) png_set_read_fn(png_, &device, readFrom);
    }
    ~PngHeader() { png_destroy_read_struct(&png_, &info_, nullptr); }
    Q_DISABLE_COPY_MOVE(PngHeader)

    bool readInfo() {
        if (info_ == nullptr) return false;
        // NOLINTNEXTLINE(cert-err52-cpp): libpng's only way out of an error
        if (setjmp(escape_) != 0) return false;
        png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
        png_read_info(png_, info_);
        return true;
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
        png_charp name = nullptr;
        png_bytep profile = nullptr;
        png_uint_32 length = 0;
        int compression = 0;
        if (png_get_iCCP(png_, info_, &name, &compression, &profile, &length) != 0) {
            facts.profile =
                QByteArray(reinterpret_cast<const char*>(profile), static_cast<qsizetype>(length));
        } else if (meansSrgb()) {
            facts.profile = QByteArray();
        }
        return facts;
    }

  private:
    void readExif(PictureFacts& facts) const {
        png_bytep data = nullptr;
        png_uint_32 length = 0;
        if (png_get_eXIf_1(png_, info_, &length, &data) == 0) return;
        const ExifFacts exif = readExifFacts(QByteArrayView(data, static_cast<qsizetype>(length)));
        facts.orientation = exif.orientation;
        facts.dpiX = exif.dpiX;
        facts.dpiY = exif.dpiY;
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

    std::jmp_buf escape_{};
    png_structp png_;
    png_infop info_;
};

}  // namespace

std::optional<PictureFacts> readPngFacts(QIODevice& device) {
    PngHeader header(device);
    if (!header.readInfo()) return std::nullopt;
    return header.facts();
}

}  // namespace zelto
