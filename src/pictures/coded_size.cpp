// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/coded_size.h"

#include "pictures/bits.h"

#include <QByteArray>

#include <algorithm>

namespace zelto {

qint64 codedPixels(quint64 width, quint64 height) {
    constexpr quint64 Largest = quint64{1} << 24;  // of a side; no codec goes so far
    return static_cast<qint64>(std::min(width, Largest) * std::min(height, Largest));
}

namespace {

// Types of NAL units: those of pictures come first.
constexpr int HevcLastOfPicture = 31;
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

void addHevcUnit(CodedStream& stream, QByteArrayView unit) {
    Bits header(unit);
    header.skip(1);
    const auto type = header.take(6);
    const auto layer = header.take(6);
    if (type <= HevcLastOfPicture) ++stream.pictures;
    if (type != HevcSequenceParameters || layer != 0) return;
    constexpr qsizetype FarEnough = 256;  // the size stands near the beginning
    const QByteArray bytes = withoutEmulationPrevention(unit.first(std::min(unit.size(), FarEnough)));
    Bits bits(bytes);
    bits.skip(16);
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
    stream.largest = std::max(stream.largest, codedPixels(width, bits.takeExpGolomb()));
}

// The pictures of one stream: a frame has the size of the sequence unless it states one of its own, which may be
// anything that its number of bits can hold.
class Av1Reader {
  public:
    void addTo(CodedStream& stream, QByteArrayView data) {
        for (Bits bits(data); !bits.atEnd();) {
            bits.skip(1);
            const auto type = static_cast<int>(bits.take(4));
            const bool isExtended = bits.flag();
            const bool hasSize = bits.flag();
            bits.skip(isExtended ? 9 : 1);
            const QByteArrayView unit = hasSize ? bits.takeBytes(bits.takeLeb128()) : bits.rest();
            if (type == SequenceHeader) {
                readSequence(Bits(unit));
                stream.largest = std::max(stream.largest, codedPixels(width_, height_));
            } else if (type == FrameHeader || type == Frame || type == RedundantFrameHeader) {
                ++stream.pictures;
                if (statesItsSize(Bits(unit)))
                    stream.largest = std::max(
                        stream.largest, codedPixels(quint64{1} << widthBits_, quint64{1} << heightBits_));
            }
        }
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

}  // namespace

CodedStream hevcStream(QByteArrayView configuration, QByteArrayView data) {
    CodedStream stream;
    Bits parameters(configuration);
    parameters.skip(22 * 8);
    for (auto arrays = parameters.take(8); arrays > 0 && !parameters.atEnd(); --arrays) {
        parameters.skip(8);
        for (auto units = parameters.take(16); units > 0 && !parameters.atEnd(); --units)
            addHevcUnit(stream, parameters.takeBytes(parameters.take(16)));
    }
    for (Bits units(data); !units.atEnd();) addHevcUnit(stream, units.takeBytes(units.take(32)));
    return stream;
}

CodedStream av1Stream(QByteArrayView configuration, QByteArrayView data) {
    CodedStream stream;
    Av1Reader reader;
    constexpr qsizetype Fixed = 4;  // bytes, before the units
    reader.addTo(stream, configuration.sliced(std::min(Fixed, configuration.size())));
    reader.addTo(stream, data);
    return stream;
}

}  // namespace zelto
