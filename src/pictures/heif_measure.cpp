// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/heif_measure.h"

#include "pictures/bits.h"
#include "pictures/coded_size.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <vector>

namespace zelto {
namespace {

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

QByteArrayView withoutVersion(QByteArrayView box, int more = 0) {
    return box.sliced(std::min<qsizetype>(VersionAndFlags + more, box.size()));
}

// What a picture that is put together from others says before its size: how many rows and columns; the background.
constexpr int TilesBits = 2 * 8;
constexpr int BackgroundBits = 4 * 16;

qint64 canvasPixels(QByteArrayView description, int bitsBefore) {
    Bits bits(description);
    bits.skip(8 + 7);
    const int fieldBits = bits.flag() ? 32 : 16;
    bits.skip(bitsBefore);
    const quint64 width = bits.take(fieldBits);
    return codedPixels(width, bits.take(fieldBits));
}

struct Extent {
    quint64 from;
    quint64 size;
};

struct Property {
    quint64 type;
    QByteArrayView content;
};

// What decoding a picture comes to, with all that it is put together from.
struct Decoding {
    qint64 largest = 0;  // pixels
    qint64 atOnce = 0;   // pixels of those in memory together
    qint64 work = 0;     // pixels of all, as often as they are decoded, a byte of their data as some more
    int levels = 1;
};

struct Item {
    quint64 type = 0;
    bool isInMeta = false;  // its data lie in the box "idat" and not in the file
    std::vector<Extent> extents;
    std::vector<quint64> properties;  // places in the list of all, from 1
    std::vector<quint64> parts;       // the items that are decoded with it
    std::optional<Decoding> decoding;
};

class HeifItems {
  public:
    explicit HeifItems(QByteArrayView file) : file_(file), bytesLeft_(ForAny + Sharing * file.size()) {
        forEachBox(file, [this](quint64 type, QByteArrayView content) {
            if (type != boxType("meta")) return;
            note(type);
            readMeta(withoutVersion(content));
        });
    }

    std::optional<HeifMeasure> measured() {
        if (isRefused_) return std::nullopt;
        HeifMeasure measure;
        for (const auto& [id, item] : items_) {
            const std::optional<Decoding> decoding = decodingOf(id, 1);
            if (!decoding || decoding->work > mostWork()) return std::nullopt;
            measure.largest = std::max(measure.largest, decoding->largest);
            measure.besides = std::max(measure.besides, decoding->atOnce - decoding->largest);
        }
        return measure;
    }

  private:
    // Bytes that are given out: each belongs to one item, or to a few that share it; plain parts may all be the same.
    static constexpr qint64 Sharing = 8;
    static constexpr qint64 ForAny = 1 << 20;
    // A picture of pictures of pictures, with alpha; libheif calls itself for each.
    static constexpr int MostLevels = 6;
    // libheif looks for an item by going through all; a photo of 200 megapixels has about a thousand, each in three
    // boxes.
    static constexpr std::size_t MostNotes = 12'000;
    static constexpr std::size_t MostParts = 65'536;
    // As many as libheif takes.
    static constexpr std::size_t MostProperties = 20'000;
    static constexpr quint64 MostExtents = 32;

    // A file of 1 MB may take some eight seconds: libde265 decodes 37 to 130 million pixels a second, counted like this.
    qint64 mostWork() const {
        constexpr qint64 Least = 150'000'000;
        constexpr qint64 ForByte = 200;
        return Least + ForByte * file_.size();
    }

    void refuseIf(bool isWrong) {
        if (isWrong) isRefused_ = true;
    }

    // Of two descriptions a decoder may believe the one that was not measured.
    void note(quint64 box, std::optional<quint64> item = {}) {
        refuseIf(!notes_.insert({box, item}).second || notes_.size() > MostNotes);
    }

    std::optional<Decoding> decodingOf(quint64 id, int level) {
        const auto found = items_.find(id);
        if (found == items_.end()) return Decoding();
        Item& item = found->second;
        if (item.decoding) return item.decoding;
        if (level > MostLevels) return std::nullopt;
        std::optional<Decoding> decoding = ownDecodingOf(item);
        if (!decoding) return std::nullopt;
        Decoding most;  // of the parts
        for (const quint64 part : item.parts) {
            const std::optional<Decoding> its = decodingOf(part, level + 1);
            if (!its) return std::nullopt;
            decoding->work = std::min(decoding->work + its->work, mostWork() + 1);
            most.largest = std::max(most.largest, its->largest);
            most.atOnce = std::max(most.atOnce, its->atOnce);
            decoding->levels = std::max(decoding->levels, its->levels + 1);
        }
        if (decoding->levels > MostLevels) return std::nullopt;
        decoding->largest = std::max(decoding->largest, most.largest);
        decoding->atOnce += most.atOnce;
        decoding->work = std::min(decoding->work + decoding->largest * turnsOf(item), mostWork() + 1);
        item.decoding = decoding;
        return decoding;
    }

    // Without its parts.
    std::optional<Decoding> ownDecodingOf(const Item& item) {
        const std::optional<QByteArray> data = dataOf(item);
        if (!data) return std::nullopt;
        CodedStream stream{.largest = 0, .pictures = 1};
        if (item.type == boxType("hvc1")) stream = hevcStream(configurationOf(item, boxType("hvcC")), *data);
        if (item.type == boxType("av01")) stream = av1Stream(configurationOf(item, boxType("av1C")), *data);
        if (item.type == boxType("grid")) stream.largest = canvasPixels(*data, TilesBits);
        if (item.type == boxType("iovl")) stream.largest = canvasPixels(*data, BackgroundBits);
        constexpr qint64 Least = 1 << 16;  // what there is to do for the smallest, in pixels
        constexpr qint64 ForByte = 8;
        const qint64 size = std::max(stream.largest, Least);
        return Decoding{.largest = stream.largest,
                        .atOnce = stream.largest,
                        .work = size * std::clamp<qint64>(stream.pictures, 1, mostWork() / size + 1) +
                                ForByte * data->size()};
    }

    // The bytes are taken from those that may be given out. Nothing where there are none left, or where the data go on
    // behind "idat", as libheif does.
    std::optional<QByteArray> dataOf(const Item& item) {
        const QByteArrayView source = item.isInMeta ? inMeta_ : file_;
        QByteArray data;
        for (const Extent& extent : item.extents) {
            const auto available = static_cast<quint64>(source.size());
            if (item.isInMeta && (extent.from > available || extent.size > available - extent.from))
                return std::nullopt;
            const auto from = static_cast<qsizetype>(std::min(extent.from, available));
            const auto size = static_cast<qsizetype>(std::min(extent.size, available - from));
            bytesLeft_ -= size;
            if (bytesLeft_ < 0) return std::nullopt;
            const QByteArrayView part = source.sliced(from, size);
            if (item.extents.size() == 1) return QByteArray::fromRawData(part.data(), part.size());
            data.append(part);
        }
        return data;
    }

    // How often the picture is turned, mirrored or cut.
    qint64 turnsOf(const Item& item) const {
        return std::ranges::count_if(item.properties, [this](quint64 place) {
            constexpr std::array<quint64, 3> Turns = {boxType("irot"), boxType("imir"), boxType("clap")};
            return std::ranges::find(Turns, typeOfProperty(place)) != Turns.end();
        });
    }

    quint64 typeOfProperty(quint64 place) const {
        return place > 0 && place <= properties_.size() ? properties_[place - 1].type : 0;
    }

    // The first, as libheif does.
    QByteArrayView configurationOf(const Item& item, quint64 type) const {
        for (const quint64 place : item.properties) {
            if (typeOfProperty(place) == type) return properties_[place - 1].content;
        }
        return {};
    }

    void readMeta(QByteArrayView content) {
        forEachBox(content, [this](quint64 type, QByteArrayView box) {
            constexpr std::array<quint64, 5> Read = {boxType("iinf"), boxType("iloc"), boxType("idat"),
                                                     boxType("iprp"), boxType("iref")};
            if (std::ranges::find(Read, type) == Read.end()) return;
            note(type);
            if (type == boxType("iinf")) readTypes(box);
            if (type == boxType("iloc")) readPlaces(Bits(box));
            if (type == boxType("idat")) inMeta_ = box;
            if (type == boxType("iprp")) readProperties(box);
            if (type == boxType("iref")) readParts(box);
        });
    }

    void readProperties(QByteArrayView content) {
        forEachBox(content, [this](quint64 type, QByteArrayView box) {
            if (type == boxType("ipma")) readAssociations(Bits(box));
            if (type != boxType("ipco")) return;
            note(type);
            forEachBox(box, [this](quint64 property, QByteArrayView its) {
                refuseIf(properties_.size() == MostProperties);
                if (!isRefused_) properties_.push_back({property, its});
            });
        });
    }

    void readAssociations(Bits bits) {
        const int idBits = bits.take(8) == 0 ? 16 : 32;
        bits.skip(23);
        const int placeBits = bits.flag() ? 15 : 7;
        for (auto entries = bits.take(32); entries > 0 && !bits.atEnd() && !isRefused_; --entries) {
            const quint64 id = bits.take(idBits);
            note(boxType("ipma"), id);
            std::vector<quint64>& places = items_[id].properties;
            for (auto count = bits.take(8); count > 0 && !bits.atEnd(); --count) {
                bits.skip(1);
                places.push_back(bits.take(placeBits));
            }
        }
    }

    void readTypes(QByteArrayView content) {
        const int countBytes = Bits(content).take(8) == 0 ? 2 : 4;
        forEachBox(withoutVersion(content, countBytes), [this](quint64 type, QByteArrayView entry) {
            if (type != boxType("infe") || isRefused_) return;
            Bits bits(entry);
            const auto version = bits.take(8);
            bits.skip(24);
            const auto id = bits.take(version >= 3 ? 32 : 16);
            bits.skip(16);
            note(type, id);
            items_[id].type = bits.take(32);
        });
    }

    // An alpha picture names the one it belongs to; the others name their parts.
    void readParts(QByteArrayView content) {
        const int idBits = Bits(content).take(8) == 0 ? 16 : 32;
        std::size_t parts = 0;
        forEachBox(withoutVersion(content), [&](quint64 type, QByteArrayView reference) {
            const bool isAuxiliary = type == boxType("auxl");
            if (!isAuxiliary && type != boxType("dimg")) return;
            Bits bits(reference);
            const quint64 from = bits.take(idBits);
            for (auto count = bits.take(16); count > 0 && !bits.atEnd() && !isRefused_; --count) {
                const quint64 to = bits.take(idBits);
                refuseIf(++parts > MostParts);
                items_[isAuxiliary ? to : from].parts.push_back(isAuxiliary ? from : to);
            }
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
        refuseIf(!isUsual(offsetBits) || !isUsual(lengthBits) || !isUsual(baseBits));
        refuseIf((version > 0 && !isUsual(indexBits)) || (version == 1 && indexBits != 0));
        const int idBits = version < 2 ? 16 : 32;
        for (auto count = bits.take(idBits); count > 0 && !bits.atEnd() && !isRefused_; --count) {
            const quint64 id = bits.take(idBits);
            note(boxType("iloc"), id);
            Item& item = items_[id];
            item.isInMeta = version > 0 && (bits.take(16) & 0xF) == 1;
            bits.skip(16);
            const quint64 base = bits.take(baseBits);
            auto extents = bits.take(16);
            refuseIf(extents > MostExtents);
            for (; extents > 0 && !isRefused_; --extents) {
                if (version > 0) bits.skip(indexBits);
                const quint64 from = base + bits.take(offsetBits);
                item.extents.push_back({from, bits.take(lengthBits)});
            }
        }
    }

    QByteArrayView file_;
    QByteArrayView inMeta_;
    qint64 bytesLeft_;
    std::map<quint64, Item> items_;
    std::vector<Property> properties_;
    // The boxes that were read, and the items in them.
    std::set<std::pair<quint64, std::optional<quint64>>> notes_;
    bool isRefused_ = false;
};

}  // namespace

std::optional<HeifMeasure> measureHeif(QByteArrayView file) {
    return HeifItems(file).measured();
}

}  // namespace zelto
