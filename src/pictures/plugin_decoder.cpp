// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/plugin_decoder.h"

#include "pictures/color_profile.h"
#include "pictures/picture_facts.h"
#include "pictures/tiff_decoder.h"

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

// A format by its plugin's name. Qt is never left to choose: it would take anything that any plugin of the machine
// reads.
struct FormatRow {
    PictureKind kind;
    const char* name;
    std::optional<PictureFacts> (*readFacts)(QIODevice&);
    bool readsExactly;  // its plugin never asks for more bytes than a complete file has
    qint64
        bytesPerPixel;  // at its worst moment, the plugin's and its library's buffers and our conversions together
};

const FormatRow& rowOf(PictureKind kind) {
    static constexpr FormatRow Rows[] = {
        {PictureKind::Tiff, "tiff", readTiffFacts, false, 8},
        {PictureKind::Bmp, "bmp", readBmpFacts, true, 5},
    };
    return *std::ranges::find(Rows, kind, &FormatRow::kind);
}

// One file on its way through a plugin.
class PluginFile {
  public:
    PluginFile(QIODevice& device, PictureKind kind) : row_(rowOf(kind)), device_(device), watched_(device) {
        // Qt's own limit of 128 MB stands in the way of large photos; checkNeeds() takes its place.
        static const bool lifted = (QImageReader::setAllocationLimit(0), true);
        Q_UNUSED(lifted)
        reader_.setAutoDetectImageFormat(false);
        reader_.setFormat(row_.name);
        reader_.setDevice(&watched_);
    }

    std::optional<PictureFacts> readFacts() {
        device_.seek(0);
        std::optional<PictureFacts> facts = row_.readFacts(device_);
        device_.seek(0);
        return facts;
    }

    // As the header has it, not upright; empty where it is broken.
    QSize storedSize() { return reader_.size(); }

    // As the file has it; null for a damaged one.
    QImage decode() {
        watched_.startWatching();
        QImage image;
        if (!reader_.read(&image) || (row_.readsExactly && watched_.cameUpShort())) return {};
        return image;
    }

    qint64 memory() { return pixelCount(storedSize()) * row_.bytesPerPixel; }

  private:
    const FormatRow& row_;
    QIODevice& device_;
    WatchedDevice watched_;
    QImageReader reader_;
};

}  // namespace

std::optional<PictureNeeds> needsByPlugin(QIODevice& device, PictureKind kind) {
    PluginFile file(device, kind);
    const std::optional<PictureFacts> facts = file.readFacts();
    if (!facts) return std::nullopt;
    PictureNeeds needs = needsOf(file.storedSize(), *facts, file.memory());
    if (kind == PictureKind::Tiff) addTiffChunks(device, needs);
    return needs;
}

std::optional<Picture> decodeByPlugin(QIODevice& device, PictureKind kind) {
    PluginFile file(device, kind);
    const std::optional<PictureFacts> facts = file.readFacts();
    if (!facts) return std::nullopt;
    if (kind == PictureKind::Tiff) {
        if (std::optional<TiffSamples> tiff = readTiffSamples(device)) {
            if (!tiff->isCmyk) return finishedPicture(std::move(tiff->image), *facts);
            convertCmykToSrgb(tiff->image, InkScale::FullIs255, facts->profile.value_or(QByteArray()));
            return finishedSrgbPicture(std::move(tiff->image), *facts);
        }
    }
    return finishedPicture(file.decode(), *facts);
}

}  // namespace zelto
