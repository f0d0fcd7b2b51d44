// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/coded_size.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <vector>

namespace zelto {
namespace {

// Numbers from a row of bits, the highest first; zeros after its end.
class Bits {
  public:
    explicit Bits(QByteArrayView bytes) : bytes_(bytes) {}

    bool atEnd() const { return at_ >= bytes_.size() * 8; }
    quint64 take(int count) {
        quint64 value = 0;
        for (; count > 0; --count, ++at_) {
            const int byte = atEnd() ? 0 : static_cast<uchar>(bytes_[at_ / 8]);
            value = value << 1 | ((byte >> (7 - at_ % 8)) & 1);
        }
        return value;
    }
    bool flag() { return take(1) != 0; }
    void skip(qsizetype count) { at_ += count; }
    // As many bits as there are zeros before the first one.
    quint64 takeExpGolomb() {
        int zeros = 0;
        while (!atEnd() && !flag()) ++zeros;
        return zeros >= 32 ? ~quint32{0} : (quint64{1} << zeros) - 1 + take(zeros);
    }
    // Seven bits a byte, the lowest first.
    quint64 takeLeb128() {
        quint64 value = 0;
        for (int i = 0; i < 8; ++i) {
            const bool more = flag();
            value |= take(7) << (7 * i);
            if (!more) break;
        }
        return value;
    }
    // The next `count` bytes, or what is left; the place is at a whole byte.
    QByteArrayView takeBytes(quint64 count) {
        const qsizetype from = std::min(at_ / 8, bytes_.size());
        const auto size = static_cast<qsizetype>(std::min<quint64>(count, bytes_.size() - from));
        at_ = (from + size) * 8;
        return bytes_.sliced(from, size);
    }
    QByteArrayView rest() { return takeBytes(~quint64{0}); }

  private:
    QByteArrayView bytes_;
    qsizetype at_ = 0;
};

qint64 pixels(quint64 width, quint64 height) {
    constexpr quint64 Largest = quint64{1} << 24;  // of a side; no codec goes so far
    return static_cast<qint64>(std::min(width, Largest) * std::min(height, Largest));
}

// ---- HEVC

constexpr int HevcSequenceParameters = 33;

// A byte 3 after two zeros only keeps them from looking like a start.
QByteArray withoutEmulationPrevention(QByteArrayView unit) {
    QByteArray bytes;
    bytes.reserve(unit.size());
    int zeros = 0;
    for (const char byte : unit) {
        if (zeros >= 2 && byte == 3) {
            zeros = 0;
            continue;
        }
        zeros = byte == 0 ? zeros + 1 : 0;
        bytes.append(byte);
    }
    return bytes;
}

// A NAL unit that is no sequence parameter set has no pixels.
qint64 hevcUnitPixels(QByteArrayView unit) {
    constexpr qsizetype FarEnough = 256;  // the size stands near the beginning
    const QByteArray bytes = withoutEmulationPrevention(unit.first(std::min(unit.size(), FarEnough)));
    Bits bits(bytes);
    bits.skip(1);
    const auto type = bits.take(6);
    const auto layer = bits.take(6);
    bits.skip(3);
    if (type != HevcSequenceParameters || layer != 0) return 0;
    bits.skip(4);
    const auto subLayers = static_cast<int>(bits.take(3));
    bits.skip(1 + 88 + 8);      // nesting; general profile and level
    int profilesAndLevels = 0;  // of the sub-layers, behind the flags that tell which of them are there
    for (int i = 0; i < subLayers; ++i) {
        if (bits.flag()) profilesAndLevels += 88;
        if (bits.flag()) profilesAndLevels += 8;
    }
    if (subLayers > 0) bits.skip(2 * (8 - subLayers));
    bits.skip(profilesAndLevels);
    bits.takeExpGolomb();
    constexpr quint64 ThreeColors = 3;
    if (bits.takeExpGolomb() == ThreeColors) bits.skip(1);
    const quint64 width = bits.takeExpGolomb();
    return pixels(width, bits.takeExpGolomb());
}

qint64 hevcPixels(QByteArrayView data) {
    qint64 most = 0;
    for (Bits bits(data); !bits.atEnd();)
        most = std::max(most, hevcUnitPixels(bits.takeBytes(bits.take(32))));
    return most;
}

// The parameter sets that a file keeps outside of a picture's data.
qint64 hevcConfigurationPixels(QByteArrayView configuration) {
    qint64 most = 0;
    Bits bits(configuration);
    bits.skip(22 * 8);
    for (auto arrays = bits.take(8); arrays > 0 && !bits.atEnd(); --arrays) {
        bits.skip(8);
        for (auto units = bits.take(16); units > 0 && !bits.atEnd(); --units)
            most = std::max(most, hevcUnitPixels(bits.takeBytes(bits.take(16))));
    }
    return most;
}

// ---- AV1

// The pictures of one stream: a frame has the size of the sequence unless it states one of its own, which may be
// anything that its number of bits can hold.
class Av1Stream {
  public:
    qint64 pixelsOf(QByteArrayView data) {
        qint64 most = 0;
        for (Bits bits(data); !bits.atEnd();) {
            bits.skip(1);
            const auto type = static_cast<int>(bits.take(4));
            const bool isExtended = bits.flag();
            const bool hasSize = bits.flag();
            bits.skip(isExtended ? 9 : 1);
            const QByteArrayView unit = hasSize ? bits.takeBytes(bits.takeLeb128()) : bits.rest();
            if (type == SequenceHeader) {
                readSequence(Bits(unit));
                most = std::max(most, pixels(width_, height_));
            } else if ((type == FrameHeader || type == Frame || type == RedundantFrameHeader) &&
                       statesItsSize(Bits(unit))) {
                most = std::max(most, pixels(quint64{1} << widthBits_, quint64{1} << heightBits_));
            }
        }
        return most;
    }

  private:
    enum Unit { SequenceHeader = 1, FrameHeader = 3, Frame = 6, RedundantFrameHeader = 7 };
    static constexpr quint64 ChosenByFrame = 2;

    void readSequence(Bits bits) {
        bits.skip(3 + 1);
        isReduced_ = bits.flag();
        presentationTimeBits_ = 0;
        if (isReduced_) {
            bits.skip(5);
        } else {
            readOperatingPoints(bits);
        }
        widthBits_ = static_cast<int>(bits.take(4)) + 1;
        heightBits_ = static_cast<int>(bits.take(4)) + 1;
        width_ = bits.take(widthBits_) + 1;
        height_ = bits.take(heightBits_) + 1;
        frameIdBits_ = 0;
        if (!isReduced_ && bits.flag()) {
            const auto differenceBits = static_cast<int>(bits.take(4)) + 2;
            frameIdBits_ = static_cast<int>(bits.take(3)) + differenceBits + 1;
        }
        bits.skip(3);
        screenContent_ = ChosenByFrame;
        integerMotion_ = ChosenByFrame;
        if (isReduced_) return;
        bits.skip(4);
        if (bits.flag()) bits.skip(2);
        if (!bits.flag()) screenContent_ = bits.take(1);
        if (screenContent_ > 0 && !bits.flag()) integerMotion_ = bits.take(1);
    }

    void readOperatingPoints(Bits& bits) {
        int delayBits = 0;
        bool hasModel = false;
        if (bits.flag()) {
            bits.skip(64);
            const bool isEven = bits.flag();
            if (isEven) bits.takeExpGolomb();
            hasModel = bits.flag();
            if (hasModel) {
                delayBits = static_cast<int>(bits.take(5)) + 1;
                bits.skip(32 + 5);
                const auto timeBits = static_cast<int>(bits.take(5)) + 1;
                presentationTimeBits_ = isEven ? 0 : timeBits;
            }
        }
        const bool hasDelays = bits.flag();
        for (auto points = bits.take(5) + 1; points > 0; --points) {
            bits.skip(12);
            constexpr quint64 LowestWithTier = 8;
            if (bits.take(5) >= LowestWithTier) bits.skip(1);
            if (hasModel && bits.flag()) bits.skip(2 * delayBits + 1);
            if (hasDelays && bits.flag()) bits.skip(4);
        }
    }

    bool statesItsSize(Bits bits) const {
        constexpr quint64 Key = 0;
        constexpr quint64 Switch = 3;
        if (isReduced_ || bits.flag()) return false;
        const auto type = bits.take(2);
        const bool isShown = bits.flag();
        bits.skip(isShown ? presentationTimeBits_ : 1);
        if (type == Switch) return true;
        if (type != Key || !isShown) bits.skip(1);
        bits.skip(1);
        const auto screenContent = screenContent_ == ChosenByFrame ? bits.take(1) : screenContent_;
        if (screenContent > 0 && integerMotion_ == ChosenByFrame) bits.skip(1);
        bits.skip(frameIdBits_);
        return bits.flag();
    }

    bool isReduced_ = true;
    quint64 width_ = 0;
    quint64 height_ = 0;
    int widthBits_ = 0;
    int heightBits_ = 0;
    int frameIdBits_ = 0;
    int presentationTimeBits_ = 0;
    quint64 screenContent_ = 0;
    quint64 integerMotion_ = 0;
};

// ---- the file

struct Extent {
    quint64 from;
    quint64 size;
};
struct Item {
    quint64 type = 0;
    bool isInMeta = false;  // its data lie in the box "idat" and not in the file
    std::vector<Extent> extents;
};

constexpr quint64 boxType(const char (&name)[5]) {
    quint64 type = 0;
    for (int i = 0; i < 4; ++i) type = type << 8 | static_cast<uchar>(name[i]);
    return type;
}

template <class Visit>
void forEachBox(QByteArrayView bytes, const Visit& visit) {
    for (Bits bits(bytes); !bits.atEnd();) {
        quint64 size = bits.take(32);
        const quint64 type = bits.take(32);
        quint64 header = 8;
        if (size == 1) {
            size = bits.take(64);
            header = 16;
        }
        if (size != 0 && size < header) return;
        visit(type, size == 0 ? bits.rest() : bits.takeBytes(size - header));
    }
}

constexpr int VersionAndFlags = 4;  // bytes that begin some boxes

// What a picture that is put together from others says before its size: how many rows and columns; the background.
constexpr int TilesBits = 2 * 8;
constexpr int BackgroundBits = 4 * 16;

qint64 canvasPixels(QByteArrayView description, int bitsBefore) {
    Bits bits(description);
    bits.skip(8 + 7);
    const int fieldBits = bits.flag() ? 32 : 16;
    bits.skip(bitsBefore);
    const quint64 width = bits.take(fieldBits);
    return pixels(width, bits.take(fieldBits));
}

class CodedItems {
  public:
    explicit CodedItems(QByteArrayView file) : file_(file) {
        forEachBox(file, [this](quint64 type, QByteArrayView content) {
            if (type != boxType("meta")) return;
            noteDescription(type);
            readMeta(content.sliced(std::min<qsizetype>(VersionAndFlags, content.size())));
        });
    }

    std::optional<qint64> largest() {
        if (isAmbiguous_) return std::nullopt;
        // Each byte belongs to one picture, or to a few that share it.
        constexpr qint64 Sharing = 8;
        qint64 left = Sharing * file_.size();
        for (const auto& [id, item] : items_) {
            constexpr std::array<quint64, 4> Measured = {boxType("hvc1"), boxType("av01"), boxType("grid"),
                                                         boxType("iovl")};
            if (std::ranges::find(Measured, item.type) == Measured.end()) continue;
            const std::optional<QByteArray> data = dataOf(item, left);
            if (!data) return std::nullopt;
            if (item.type == boxType("hvc1")) most_ = std::max(most_, hevcPixels(*data));
            if (item.type == boxType("av01")) measureAv1(*data);
            if (item.type == boxType("grid")) most_ = std::max(most_, canvasPixels(*data, TilesBits));
            if (item.type == boxType("iovl")) most_ = std::max(most_, canvasPixels(*data, BackgroundBits));
        }
        return most_;
    }

  private:
    // Of two descriptions a decoder may believe the one that was not measured.
    void noteDescription(quint64 box, std::optional<quint64> item = {}) {
        if (!described_.insert({box, item}).second) isAmbiguous_ = true;
    }

    // Nothing where that is more than `left` bytes, which it is taken from, or where it goes on behind "idat", as
    // libheif does.
    std::optional<QByteArray> dataOf(const Item& item, qint64& left) const {
        const QByteArrayView source = item.isInMeta ? inMeta_ : file_;
        QByteArray data;
        for (const Extent& extent : item.extents) {
            const auto available = static_cast<quint64>(source.size());
            if (item.isInMeta && (extent.from > available || extent.size > available - extent.from))
                return std::nullopt;
            const auto from = static_cast<qsizetype>(std::min<quint64>(extent.from, source.size()));
            const auto size = static_cast<qsizetype>(std::min<quint64>(extent.size, source.size() - from));
            left -= size;
            if (left < 0) return std::nullopt;
            data.append(source.sliced(from, size));
        }
        return data;
    }

    void measureAv1(QByteArrayView data) {
        for (const QByteArray& beginning : av1Beginnings_) {
            Av1Stream stream;
            most_ = std::max({most_, stream.pixelsOf(beginning), stream.pixelsOf(data)});
        }
    }

    void readMeta(QByteArrayView content) {
        forEachBox(content, [this](quint64 type, QByteArrayView box) {
            constexpr std::array<quint64, 4> Read = {boxType("iinf"), boxType("iloc"), boxType("idat"),
                                                     boxType("iprp")};
            if (std::ranges::find(Read, type) != Read.end()) noteDescription(type);
            if (type == boxType("iinf")) readTypes(box);
            if (type == boxType("iloc")) readPlaces(Bits(box));
            if (type == boxType("idat")) inMeta_ = box;
            if (type == boxType("iprp")) readProperties(box);
        });
    }

    void readProperties(QByteArrayView content) {
        forEachBox(content, [this](quint64 type, QByteArrayView properties) {
            if (type != boxType("ipco")) return;
            noteDescription(type);
            forEachBox(properties, [this](quint64 property, QByteArrayView box) {
                if (property == boxType("hvcC")) most_ = std::max(most_, hevcConfigurationPixels(box));
                constexpr qsizetype Fixed = 4;
                if (property == boxType("av1C"))
                    av1Beginnings_.insert(box.sliced(std::min(Fixed, box.size())).toByteArray());
            });
        });
    }

    void readTypes(QByteArrayView content) {
        Bits bits(content);
        const int countBytes = bits.take(8) == 0 ? 2 : 4;
        forEachBox(content.sliced(std::min<qsizetype>(VersionAndFlags + countBytes, content.size())),
                   [this](quint64 type, QByteArrayView entry) {
                       if (type != boxType("infe")) return;
                       Bits entryBits(entry);
                       const auto version = entryBits.take(8);
                       entryBits.skip(24);
                       const auto id = entryBits.take(version >= 3 ? 32 : 16);
                       entryBits.skip(16);
                       noteDescription(type, id);
                       items_[id].type = entryBits.take(32);
                   });
    }

    void readPlaces(Bits bits) {
        const auto version = bits.take(8);
        bits.skip(24);
        const auto offsetBits = static_cast<int>(bits.take(4)) * 8;
        const auto lengthBits = static_cast<int>(bits.take(4)) * 8;
        const auto baseBits = static_cast<int>(bits.take(4)) * 8;
        const auto indexBits = static_cast<int>(bits.take(4)) * 8;
        // libheif takes fields of other sizes for none at all, and reads indices in version 2 only.
        constexpr auto isUsual = [](int size) { return size == 0 || size == 32 || size == 64; };
        if (!isUsual(offsetBits) || !isUsual(lengthBits) || !isUsual(baseBits) ||
            (version > 0 && !isUsual(indexBits)) || (version == 1 && indexBits != 0))
            isAmbiguous_ = true;
        const int idBits = version < 2 ? 16 : 32;
        for (auto count = bits.take(idBits); count > 0 && !bits.atEnd(); --count) {
            const quint64 id = bits.take(idBits);
            noteDescription(boxType("iloc"), id);
            Item& item = items_[id];
            item.isInMeta = version > 0 && (bits.take(16) & 0xF) == 1;
            bits.skip(16);
            const quint64 base = bits.take(baseBits);
            for (auto extents = bits.take(16); extents > 0 && !bits.atEnd(); --extents) {
                if (version > 0) bits.skip(indexBits);
                const quint64 from = base + bits.take(offsetBits);
                item.extents.push_back({from, bits.take(lengthBits)});
            }
        }
    }

    QByteArrayView file_;
    QByteArrayView inMeta_;
    std::map<quint64, Item> items_;
    std::set<std::pair<quint64, std::optional<quint64>>> described_;  // boxes, and the items in them
    bool isAmbiguous_ = false;  // a decoder may take it for something else than is measured here
    std::set<QByteArray> av1Beginnings_ = {{}};  // what files keep of a stream outside of the pictures' data
    qint64 most_ = 0;
};

}  // namespace

std::optional<qint64> largestCodedPicture(QByteArrayView file) {
    return CodedItems(file).largest();
}

}  // namespace zelto
