// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/raw_decoder.h"

#include "pictures/decoding_time.h"
#include "pictures/device_bytes.h"
#include "pictures/jpeg_decoder.h"
#include "pictures/picture_facts.h"
#include "pictures/picture_libraries.h"
#include "pictures/picture_memory.h"
#include "pictures/upright.h"

#include <QBuffer>

#include <libraw/libraw.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <new>

namespace zelto {
namespace {

// The EXIF orientation of LibRaw's number for it.
int orientationOfFlip(int flip) {
    switch (flip) {
        case 3:
            return 3;
        case 5:
            return 8;
        case 6:
            return 6;
        default:
            return 1;
    }
}

struct Preview {
    QByteArray jpeg;
    QImage pixels;  // where it is no JPEG
    int orientation = 1;
};

// A file's bytes for LibRaw, for a limited time: it believes the counts in damaged files and would go on for hours.
class RawBytes : public LibRaw_buffer_datastream {
  public:
    // LibRaw only reads the buffer; its interface has no const.
    explicit RawBytes(const QByteArray& bytes)
        : LibRaw_buffer_datastream(const_cast<char*>(bytes.constData()),  // NOLINT(*-const-cast)
                                   static_cast<std::size_t>(bytes.size())),
          time_(0, MostSeconds) {}

    int read(void* target, std::size_t size, std::size_t count) override {
        checkTime();
        return LibRaw_buffer_datastream::read(target, size, count);
    }
    int seek(INT64 offset, int whence) override {
        checkTime();
        return LibRaw_buffer_datastream::seek(offset, whence);
    }
    int get_char() override {
        checkTime();
        return LibRaw_buffer_datastream::get_char();
    }

  private:
    static constexpr qint64 MostSeconds = 2;  // a hundred times what cameras' files take

    // LibRaw makes an error of every exception.
    void checkTime() {
        constexpr int CallsBetween = 1000;
        if (++calls_ % CallsBetween == 0 && !time_.isLeft()) throw OutOfDecodingTime();
    }

    DecodingTime time_;
    unsigned calls_ = 0;
};

// Tells where a raw file's preview lies. LibRaw's own unpack_thumb() is not called: in version 0.20 it writes beyond its
// memory for previews whose colours are apart, and has libjpeg print.
class RawFile : public LibRaw {
  public:
    RawFile() : LibRaw(LIBRAW_OPIONS_NO_MEMERR_CALLBACK | LIBRAW_OPIONS_NO_DATAERR_CALLBACK) {}

    bool hasJpegPreview() const { return hasPreviewAs(&RawFile::jpeg_thumb); }
    // 8 bits each of red, green and blue
    bool hasPixelPreview() const { return hasPreviewAs(&RawFile::ppm_thumb); }
    QSize previewSize() const { return {imgdata.thumbnail.twidth, imgdata.thumbnail.theight}; }
    // Its bytes in the file; empty where they are not all there.
    QByteArrayView previewIn(QByteArrayView file) const {
        const qint64 from = libraw_internal_data.internal_data.toffset;
        const qint64 size = imgdata.thumbnail.tlength;
        if (from <= 0 || from > file.size() || size > file.size() - from) return {};
        return file.sliced(from, size);
    }

  private:
    bool hasPreviewAs(void (LibRaw::*kind)()) const {
        return write_thumb == kind && thumb_load_raw == nullptr;
    }
};

// JPEG previews with an Exif block of their own say themselves how they are to be turned.
bool knowsItsOrientation(const QByteArray& jpeg) {
    constexpr qsizetype FirstSegments = 512;
    return jpeg.first(qMin(jpeg.size(), FirstSegments)).contains(QByteArray("Exif\0\0", 6));
}

QImage pixelsOf(QByteArrayView bytes, QSize size) {
    const qint64 stride = qint64{3} * size.width();
    if (size.isEmpty() || stride * size.height() > bytes.size()) return {};
    QImage pixels = newPicture(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(pixels.scanLine(y), bytes.data() + stride * y, static_cast<std::size_t>(stride));
    return pixels;
}

// How a directory entry for a pattern of 6 x 6 colours begins, in both byte orders: the tag, two bytes for its type, and
// the number of values.
struct PatternEntry {
    std::array<uchar, 2> tag;
    std::array<uchar, 4> count;
};
constexpr qsizetype CountFrom = 4;
constexpr PatternEntry PatternsOfSix[] = {{{0x8E, 0x82}, {36, 0, 0, 0}},
                                          {{0x82, 0x8E}, {0, 0, 0, 36}},
                                          {{0x09, 0xFD}, {36, 0, 0, 0}},
                                          {{0xFD, 0x09}, {0, 0, 0, 36}}};

// Whether there may be such an entry (X-Trans in a TIFF or DNG). LibRaw 0.20 goes over the bounds of its array there,
// of which its compiler has made an endless loop that overwrites memory. Looked for without regard to structure, since
// LibRaw follows directories to any place; a photo hardly ever holds these six bytes by chance.
bool mayHavePatternOfSix(QByteArrayView bytes) {
    return std::ranges::any_of(PatternsOfSix, [bytes](const PatternEntry& entry) {
        const QByteArrayView count(entry.count);
        const QByteArrayView tag(entry.tag);
        for (qsizetype at = bytes.indexOf(tag); at >= 0; at = bytes.indexOf(tag, at + 1)) {
            if (bytes.size() - at >= CountFrom + count.size() &&
                bytes.sliced(at + CountFrom, count.size()) == count)
                return true;
        }
        return false;
    });
}

// Nothing where LibRaw knows no such camera or file, or it holds no preview.
std::optional<Preview> previewOf(QIODevice& device) {
    const QByteArray bytes = allBytes(device);
    if (mayHavePatternOfSix(bytes)) return std::nullopt;
    RawBytes stream(bytes);
    // Some hundred kilobytes: too many for a thread's stack.
    const auto raw = std::make_unique<RawFile>();
    const int result = raw->open_datastream(&stream);
    if (result == LIBRAW_UNSUFFICIENT_MEMORY) throw std::bad_alloc();
    if (result != LIBRAW_SUCCESS) return std::nullopt;

    Preview preview;
    const QByteArrayView found = raw->previewIn(bytes);
    if (raw->hasJpegPreview()) preview.jpeg = found.toByteArray();
    if (raw->hasPixelPreview()) preview.pixels = pixelsOf(found, raw->previewSize());
    if (preview.jpeg.isEmpty() && preview.pixels.isNull()) return std::nullopt;
    if (!knowsItsOrientation(preview.jpeg)) preview.orientation = orientationOfFlip(raw->imgdata.sizes.flip);
    return preview;
}

}  // namespace

std::optional<PictureNeeds> rawPreviewNeeds(QIODevice& device) {
    std::optional<Preview> preview = previewOf(device);
    if (!preview) return std::nullopt;
    if (preview->jpeg.isEmpty())
        return needsOf(preview->pixels.size(), {.orientation = preview->orientation},
                       device.size() + preview->pixels.sizeInBytes() * 3);
    QBuffer jpeg(&preview->jpeg);
    jpeg.open(QIODevice::ReadOnly);
    const std::optional<PictureNeeds> needs = jpegNeeds(jpeg);
    if (!needs) return std::nullopt;
    return needsOf(needs->size, {preview->orientation, needs->dpiX, needs->dpiY},
                   needs->memory + device.size() + preview->jpeg.size());
}

std::optional<Picture> decodeRawPreview(QIODevice& device) {
    std::optional<Preview> preview = previewOf(device);
    if (!preview) return std::nullopt;
    if (preview->jpeg.isEmpty())
        return finishedPicture(std::move(preview->pixels), {.orientation = preview->orientation});
    QBuffer jpeg(&preview->jpeg);
    jpeg.open(QIODevice::ReadOnly);
    std::optional<Picture> picture = decodeJpeg(jpeg);
    if (picture) {
        picture->image = uprightPicture(std::move(picture->image), preview->orientation);
        setResolution(*picture, picture->dpiX, picture->dpiY, preview->orientation);
    }
    return picture;
}

const char* rawLibrary() {
    static const QByteArray name = QByteArray("LibRaw ") + LibRaw::version();
    return name.constData();
}

}  // namespace zelto
