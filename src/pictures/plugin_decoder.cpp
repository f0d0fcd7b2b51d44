// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/plugin_decoder.h"

#include "pictures/color_profile.h"
#include "pictures/picture_facts.h"
#include "pictures/resolution.h"
#include "pictures/tiff_decoder.h"
#include "pictures/upright.h"

#include <QColorSpace>
#include <QImageReader>

#include <algorithm>
#include <utility>

namespace zelto {
namespace {

// Passes reads through and remembers whether one came up short. Plugins that read exactly what a header
// promises return the picture all the same when there is less, its rest black or undefined.
class WatchedDevice : public QIODevice {
  public:
    explicit WatchedDevice(QIODevice& source) : source_(source) { open(ReadOnly | Unbuffered); }

    bool isSequential() const override { return false; }
    qint64 size() const override { return source_.size(); }
    bool seek(qint64 position) override {
        position_ = position;
        return QIODevice::seek(position);
    }

    void startWatching() { cameUpShort_ = false; }
    bool cameUpShort() const { return cameUpShort_; }

  protected:
    qint64 readData(char* target, qint64 count) override {
        const bool inside = position_ <= source_.size();
        if (!inside || (source_.pos() != position_ && !source_.seek(position_))) {
            cameUpShort_ = true;
            return -1;
        }
        const qint64 got = source_.read(target, count);
        cameUpShort_ |= got < count;
        position_ += std::max<qint64>(got, 0);
        return got;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

  private:
    QIODevice& source_;
    qint64 position_ = 0;
    bool cameUpShort_ = false;
};

struct FormatRow {
    QByteArrayView name;  // as Qt's plugins call it
    std::optional<PictureFacts> (*readFacts)(QIODevice&);
    bool readsExactly;  // its plugin never asks for more bytes than a complete file has
};

PictureFacts nothingKnown() {
    return {};
}

std::optional<PictureFacts> readNoFacts(QIODevice&) {
    return nothingKnown();
}

const FormatRow& rowOf(const QByteArray& format) {
    static constexpr FormatRow Rows[] = {
        {"png", readPngFacts, true}, {"tiff", readTiffFacts, false}, {"gif", readGifFacts, false},
        {"bmp", readBmpFacts, true}, {"webp", readWebpFacts, false}, {"pbm", readNoFacts, true},
        {"pgm", readNoFacts, true},  {"ppm", readNoFacts, true},     {"tga", readNoFacts, true},
    };
    static constexpr FormatRow Other = {"", readNoFacts, false};
    const auto* row = std::ranges::find_if(Rows, [&](const FormatRow& r) { return r.name == format; });
    return row == std::end(Rows) ? Other : *row;
}

// One file on its way through a plugin.
class PluginFile {
  public:
    explicit PluginFile(QIODevice& device) : device_(device), watched_(device), reader_(&watched_) {
        // Qt's own limit of 128 MB stands in the way of large photos; isReadableSize() takes its place.
        static const bool lifted = (QImageReader::setAllocationLimit(0), true);
        Q_UNUSED(lifted)
        row_ = &rowOf(reader_.format());
    }

    std::optional<PictureFacts> readFacts() {
        if (!reader_.canRead()) return std::nullopt;
        device_.seek(0);
        return row_->readFacts(device_);
    }

    // As the header has it, not upright; empty where only decoding can tell.
    QSize storedSize() { return reader_.size(); }

    // As the file has it; null for a damaged one.
    QImage decode() {
        const QSize size = storedSize();
        if (size.isValid() && !isReadableSize(size, device_.size())) return {};
        watched_.startWatching();
        QImage image;
        if (!reader_.read(&image) || (row_->readsExactly && watched_.cameUpShort())) return {};
        return image;
    }

    bool isTiff() const { return row_->readFacts == readTiffFacts; }

  private:
    QIODevice& device_;
    WatchedDevice watched_;
    QImageReader reader_;
    const FormatRow* row_ = nullptr;
};

bool swapsAxes(int orientation) {
    return uprightSize({1, 2}, orientation).width() == 2;
}

// In sRGB, 8 bits a channel, as stored; null for a damaged file.
QImage decodeColors(PluginFile& file, QIODevice& device, const PictureFacts& facts) {
    const QByteArray profile = facts.profile.value_or(QByteArray());
    if (std::optional<TiffSamples> tiff = file.isTiff() ? readTiffSamples(device) : std::nullopt) {
        if (!tiff->isCmyk) return convertedToSrgb(std::move(tiff->image), profile);
        convertCmykToSrgb(tiff->image, InkScale::FullIs255, profile);
        return std::move(tiff->image);
    }
    QImage image = file.decode();
    const QByteArray known = facts.profile ? profile : image.colorSpace().iccProfile();
    image.setColorSpace({});
    return convertedToSrgb(std::move(image), known);
}

}  // namespace

std::optional<Picture> decodeWithPlugins(QIODevice& device) {
    PluginFile file(device);
    const std::optional<PictureFacts> facts = file.readFacts();
    if (!facts) return std::nullopt;
    Picture picture;
    picture.image = decodeColors(file, device, *facts);
    if (picture.image.isNull()) return std::nullopt;
    picture.image = uprightPicture(std::move(picture.image), facts->orientation);
    if (picture.image.hasAlphaChannel()) picture.image.convertTo(QImage::Format_ARGB32_Premultiplied);
    picture.dpiX = intendedDpi(facts->dpiX);
    picture.dpiY = intendedDpi(facts->dpiY);
    if (swapsAxes(facts->orientation)) std::swap(picture.dpiX, picture.dpiY);
    return picture;
}

std::optional<QSize> sizeByPlugins(QIODevice& device) {
    PluginFile file(device);
    const std::optional<PictureFacts> facts = file.readFacts();
    if (!facts) return std::nullopt;
    QSize size = file.storedSize();
    if (!size.isValid()) size = file.decode().size();
    if (!isReadableSize(size, device.size())) return std::nullopt;
    return uprightSize(size, facts->orientation);
}

}  // namespace zelto
