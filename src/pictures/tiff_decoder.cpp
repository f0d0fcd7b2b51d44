// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/tiff_decoder.h"

#include "pictures/device_bytes.h"
#include "pictures/picture_memory.h"

#include <tiffio.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

namespace zelto {
namespace {

constexpr std::uint16_t LinearRaw = 34892;  // a photometric interpretation that libtiff has no name for

// What libtiff reads from. It asks for exactly the bytes that the file says are there, so a read that comes
// up short means that the file has lost its end, even where libtiff makes do with a default.
struct Source {
    QIODevice& device;
    bool ranOut = false;
};

tmsize_t readSource(thandle_t handle, void* target, tmsize_t count) {
    auto* source = static_cast<Source*>(handle);
    const qint64 got = readBytes(source->device, target, count);
    if (got != count) source->ranOut = true;
    return got;
}

tmsize_t refuseWrite(thandle_t, void*, tmsize_t) {
    return 0;
}

toff_t seekSource(thandle_t handle, toff_t offset, int whence) {
    QIODevice& device = static_cast<Source*>(handle)->device;
    const qint64 base = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? device.pos() : device.size();
    const qint64 position = base + static_cast<qint64>(offset);
    const bool done = position >= 0 && position <= device.size() && device.seek(position);
    return done ? static_cast<toff_t>(position) : static_cast<toff_t>(-1);
}

int keepSourceOpen(thandle_t) {
    return 0;
}

toff_t sizeOfSource(thandle_t handle) {
    return static_cast<toff_t>(static_cast<Source*>(handle)->device.size());
}

struct CloseTiff {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffHandle = std::unique_ptr<TIFF, CloseTiff>;

TiffHandle openTiff(Source& source) {
    // libtiff is quiet for the whole program: a damaged photo is reported in the program's own words.
    static const bool quiet = (TIFFSetErrorHandler(nullptr), TIFFSetWarningHandler(nullptr), true);
    Q_UNUSED(quiet)
    return TiffHandle(TIFFClientOpen("photo", "rm", &source, readSource, refuseWrite, seekSource,
                                     keepSourceOpen, sizeOfSource, nullptr, nullptr));
}

template <class Number>
Number field(TIFF* tiff, ttag_t tag, Number otherwise) {
    Number value = otherwise;
    return TIFFGetFieldDefaulted(tiff, tag, &value) == 1 ? value : otherwise;
}

bool holdsAllItsData(TIFF* tiff, quint64 fileBytes) {
    const std::uint32_t count = TIFFIsTiled(tiff) ? TIFFNumberOfTiles(tiff) : TIFFNumberOfStrips(tiff);
    for (std::uint32_t i = 0; i < count; ++i) {
        int error = 0;
        const quint64 offset = TIFFGetStrileOffsetWithErr(tiff, i, &error);
        const quint64 bytes = error != 0 ? 0 : TIFFGetStrileByteCountWithErr(tiff, i, &error);
        if (error != 0 || offset > fileBytes || bytes > fileBytes - offset) return false;
    }
    return true;
}

struct Layout {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t chunkWidth = 0;  // of a strip or tile
    std::uint32_t chunkHeight = 0;
    std::uint16_t bits = 0;
    std::uint16_t samples = 0;
    std::uint16_t kept = 0;  // how many of them, the first ones, are read
    bool tiled = false;
    bool separatePlanes = false;
    bool premultiplied = false;
    bool isCmyk = false;
};

// Whether one of the kept samples is alpha, and of which kind.
std::uint16_t kindOfExtraSample(TIFF* tiff) {
    std::uint16_t count = 0;
    std::uint16_t* kinds = nullptr;
    if (TIFFGetFieldDefaulted(tiff, TIFFTAG_EXTRASAMPLES, &count, &kinds) != 1 || count != 1)
        return EXTRASAMPLE_UNSPECIFIED;
    return kinds[0];
}

Layout layoutOf(TIFF* tiff) {
    Layout layout;
    layout.bits = field<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE, 1);
    layout.samples = field<std::uint16_t>(tiff, TIFFTAG_SAMPLESPERPIXEL, 1);
    layout.separatePlanes =
        field<std::uint16_t>(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG) == PLANARCONFIG_SEPARATE;
    layout.tiled = TIFFIsTiled(tiff) != 0;
    layout.width = field<std::uint32_t>(tiff, TIFFTAG_IMAGEWIDTH, 0);
    layout.height = field<std::uint32_t>(tiff, TIFFTAG_IMAGELENGTH, 0);
    layout.chunkWidth = layout.tiled ? field<std::uint32_t>(tiff, TIFFTAG_TILEWIDTH, 0) : layout.width;
    layout.chunkHeight =
        layout.tiled
            ? field<std::uint32_t>(tiff, TIFFTAG_TILELENGTH, 0)
            : std::min(field<std::uint32_t>(tiff, TIFFTAG_ROWSPERSTRIP, layout.height), layout.height);
    return layout;
}

// The layouts that are read here, with what only they need; nothing for all others.
std::optional<Layout> uncommonLayout(TIFF* tiff) {
    Layout layout = layoutOf(tiff);
    if ((layout.bits != 8 && layout.bits != 16) ||
        field<std::uint16_t>(tiff, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT) != SAMPLEFORMAT_UINT) {
        return std::nullopt;
    }
    const auto photometric = field<std::uint16_t>(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
    const std::uint16_t extra = kindOfExtraSample(tiff);
    layout.isCmyk = photometric == PHOTOMETRIC_SEPARATED && layout.samples >= 4 &&
                    field<std::uint16_t>(tiff, TIFFTAG_INKSET, INKSET_CMYK) == INKSET_CMYK;
    const bool isGreyWithAlpha = photometric == PHOTOMETRIC_MINISBLACK && layout.samples == 2 &&
                                 (extra == EXTRASAMPLE_ASSOCALPHA || extra == EXTRASAMPLE_UNASSALPHA);
    if (!layout.isCmyk && !isGreyWithAlpha) return std::nullopt;
    layout.kept = layout.isCmyk ? 4 : 2;
    layout.premultiplied = extra == EXTRASAMPLE_ASSOCALPHA;
    return layout;
}

// One strip or tile at a time into bytes 0, 1, ... of each 32-bit pixel, one byte a sample.
class SampleReader {
  public:
    SampleReader(TIFF* tiff, const Layout& layout, QImage& image)
        : tiff_(tiff), layout_(layout), image_(image) {}

    bool readAll() {
        const int planes = layout_.separatePlanes ? layout_.kept : 1;
        for (int plane = 0; plane < planes; ++plane) {
            for (std::uint32_t y = 0; y < layout_.height; y += layout_.chunkHeight) {
                for (std::uint32_t x = 0; x < layout_.width; x += layout_.chunkWidth) {
                    if (!readChunk(x, y, static_cast<std::uint16_t>(plane))) return false;
                }
            }
        }
        return true;
    }

  private:
    std::size_t samplesPerPixel() const { return layout_.separatePlanes ? 1 : layout_.samples; }

    bool readChunk(std::uint32_t x, std::uint32_t y, std::uint16_t plane) {
        const std::uint32_t rows = std::min(layout_.chunkHeight, layout_.height - y);
        const std::size_t rowBytes = std::size_t{layout_.chunkWidth} * samplesPerPixel() * (layout_.bits / 8);
        chunk_.resize(rowBytes * (layout_.tiled ? layout_.chunkHeight : rows));
        const auto wanted = static_cast<tmsize_t>(chunk_.size());
        const tmsize_t got =
            layout_.tiled
                ? TIFFReadEncodedTile(tiff_, TIFFComputeTile(tiff_, x, y, 0, plane), chunk_.data(), wanted)
                : TIFFReadEncodedStrip(tiff_, TIFFComputeStrip(tiff_, y, plane), chunk_.data(), wanted);
        if (got < wanted) return false;
        for (std::uint32_t row = 0; row < rows; ++row) {
            uchar* target = image_.scanLine(static_cast<int>(y + row)) + std::size_t{x} * 4 + plane;
            placeRow(chunk_.data() + rowBytes * row, std::min(layout_.chunkWidth, layout_.width - x), target);
        }
        return true;
    }

    void placeRow(const uchar* source, std::uint32_t pixels, uchar* target) const {
        const std::size_t kept = layout_.separatePlanes ? 1 : layout_.kept;
        const std::size_t bytes = layout_.bits / 8;
        for (std::uint32_t i = 0; i < pixels; ++i, target += 4, source += samplesPerPixel() * bytes) {
            for (std::size_t s = 0; s < kept; ++s)
                target[s] = bytes == 1 ? source[s] : narrow(source + 2 * s);
        }
    }

    static uchar narrow(const uchar* wide) {
        quint16 value = 0;
        std::memcpy(&value, wide, sizeof value);
        return static_cast<uchar>((value + 128) / 257);
    }

    TIFF* tiff_;
    const Layout& layout_;
    QImage& image_;
    std::vector<uchar> chunk_;
};

// From the bytes grey, alpha of each pixel to ARGB.
void spreadGrey(QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        uchar* line = image.scanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(line);
        for (int x = 0; x < image.width(); ++x) {
            const int grey = line[4 * x];
            pixels[x] = qRgba(grey, grey, grey, line[4 * x + 1]);
        }
    }
}

}  // namespace

std::optional<PictureFacts> readTiffFacts(QIODevice& device) {
    Source source{device};
    const TiffHandle tiff = openTiff(source);
    if (!tiff || !holdsAllItsData(tiff.get(), static_cast<quint64>(device.size())) || source.ranOut)
        return std::nullopt;

    PictureFacts facts;
    facts.orientation = field<std::uint16_t>(tiff.get(), TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    const auto unit = field<std::uint16_t>(tiff.get(), TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH);
    if (unit == RESUNIT_INCH || unit == RESUNIT_CENTIMETER) {
        const double perInch = unit == RESUNIT_INCH ? 1.0 : 2.54;
        facts.dpiX = double{field<float>(tiff.get(), TIFFTAG_XRESOLUTION, 0.0F)} * perInch;
        facts.dpiY = double{field<float>(tiff.get(), TIFFTAG_YRESOLUTION, 0.0F)} * perInch;
    }
    std::uint32_t length = 0;
    void* profile = nullptr;
    facts.profile = QByteArray();
    if (TIFFGetField(tiff.get(), TIFFTAG_ICCPROFILE, &length, &profile) == 1) {
        facts.profile = QByteArray(static_cast<const char*>(profile), static_cast<qsizetype>(length));
    }
    return facts;
}

void addTiffChunks(QIODevice& device, PictureNeeds& needs) {
    Source source{device};
    device.seek(0);
    const TiffHandle tiff = openTiff(source);
    if (!tiff) return;
    const Layout layout = layoutOf(tiff.get());
    // Floating point, since the product of the four may leave every integer.
    const double bytesPerPixel = (layout.separatePlanes ? 1.0 : layout.samples) * layout.bits / 8.0;
    const double chunkWidth = std::max(1U, layout.chunkWidth);
    const double chunkHeight = std::max(1U, layout.chunkHeight);
    const double chunk = chunkWidth * chunkHeight * bytesPerPixel;
    const double across = std::ceil(layout.width / chunkWidth);
    const double down = std::ceil(layout.height / chunkHeight);
    const double planes = layout.separatePlanes ? layout.samples : 1.0;
    // Whole chunks are kept twice at most, here and in their decompressor. Where a sample is wider than 8 bits, the
    // picture passes through 64 or 128 bits per pixel.
    constexpr qint64 WidePixel = 20;
    if (layout.bits > 8) needs.memory = std::max(needs.memory, pixelCount(needs.size) * WidePixel);
    constexpr double Most = 1e18;
    needs.memory += static_cast<qint64>(std::min(2.0 * chunk, Most));
    needs.decoded = static_cast<qint64>(std::min(chunk * across * down * planes, Most));
}

std::optional<TiffSamples> readTiffSamples(QIODevice& device) {
    Source source{device};
    device.seek(0);
    const TiffHandle tiff = openTiff(source);
    const std::optional<Layout> layout = tiff ? uncommonLayout(tiff.get()) : std::nullopt;
    if (!layout) return std::nullopt;

    TiffSamples samples;
    samples.isCmyk = layout->isCmyk;
    const QImage::Format format = layout->isCmyk          ? QImage::Format_RGB32
                                  : layout->premultiplied ? QImage::Format_ARGB32_Premultiplied
                                                          : QImage::Format_ARGB32;
    QImage image =
        newPicture(QSize(static_cast<int>(layout->width), static_cast<int>(layout->height)), format);
    if (layout->chunkWidth == 0 || layout->chunkHeight == 0 ||
        !SampleReader(tiff.get(), *layout, image).readAll())
        return samples;
    if (!layout->isCmyk) spreadGrey(image);
    samples.image = std::move(image);
    return samples;
}

bool isCameraRaw(QIODevice& device) {
    device.seek(0);
    Source source{device};
    const TiffHandle tiff = openTiff(source);
    if (!tiff) return false;
    const auto isSensorData = [&] {
        const auto photometric = field<std::uint16_t>(tiff.get(), TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
        return photometric == PHOTOMETRIC_CFA || photometric == LinearRaw;
    };
    std::uint16_t count = 0;
    void* data = nullptr;
    if (isSensorData() || TIFFGetField(tiff.get(), TIFFTAG_DNGVERSION, &data) == 1) return true;
    if (TIFFGetField(tiff.get(), TIFFTAG_SUBIFD, &count, &data) != 1) return false;
    constexpr std::uint16_t MostPictures = 8;
    const auto* const first = static_cast<const toff_t*>(data);
    const std::vector<toff_t> directories(first, first + std::min(count, MostPictures));
    return std::ranges::any_of(directories, [&](toff_t directory) {
        return TIFFSetSubDirectory(tiff.get(), directory) == 1 && isSensorData();
    });
}

}  // namespace zelto
