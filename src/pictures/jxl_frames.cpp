// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jxl_frames.h"

#include <QByteArray>
#include <QtEndian>

#include <jxl/decode.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>

namespace zelto {
namespace {

// Where the boxes of a file are, the codestream is in one or in several.
QByteArray jxlCodestream(QByteArrayView file) {
    if (file.startsWith("\xFF\x0A")) return QByteArray::fromRawData(file.data(), file.size());
    QByteArray codestream;
    while (file.size() >= 8) {
        quint64 size = qFromBigEndian<quint32>(file.data());
        const QByteArrayView type = file.sliced(4, 4);
        qsizetype header = 8;
        if (size == 1 && file.size() >= 16) {
            size = qFromBigEndian<quint64>(file.data() + 8);
            header = 16;
        }
        if (size == 0) size = static_cast<quint64>(file.size());
        if (size < static_cast<quint64>(header) || size > static_cast<quint64>(file.size())) break;
        const QByteArrayView content = file.first(static_cast<qsizetype>(size)).sliced(header);
        constexpr qsizetype Number = 4;
        if (type == "jxlc") codestream.append(content);
        if (type == "jxlp" && content.size() >= Number) codestream.append(content.sliced(Number));
        file = file.sliced(static_cast<qsizetype>(size));
    }
    return codestream;
}

// Numbers from a row of bits, the lowest first; zeros after its end.
class LowBits {
  public:
    LowBits(QByteArrayView bytes, qsizetype from) : bytes_(bytes), at_(from * 8) {}

    bool isInside() const { return at_ <= bytes_.size() * 8; }
    qsizetype bytesLeft() const { return bytes_.size() - at_ / 8; }
    quint64 take(int count) {
        quint64 value = 0;
        for (int i = 0; i < count; ++i, ++at_) {
            const int byte = at_ / 8 < bytes_.size() ? static_cast<uchar>(bytes_[at_ / 8]) : 0;
            value |= quint64((byte >> (at_ % 8)) & 1) << i;
        }
        return value;
    }
    bool flag() { return take(1) != 0; }
    void skip(qsizetype count) { at_ += count; }
    void skipToByte() { at_ = (at_ + 7) / 8 * 8; }

    // One of four ways to write a number: some bits, and what is added to them.
    struct Way {
        int bits;
        quint32 added;
    };
    quint64 take(const std::array<Way, 4>& ways) {
        const Way& way = ways[take(2)];
        return take(way.bits) + way.added;
    }

    quint64 takeLong() {
        const auto way = take(2);
        if (way == 0) return 0;
        if (way == 1) return take(4) + 1;
        if (way == 2) return take(8) + 17;
        quint64 value = take(12);
        for (int shift = 12; flag(); shift += 8) {
            if (shift == 60) return value | take(4) << shift;
            value |= take(8) << shift;
        }
        return value;
    }

  private:
    QByteArrayView bytes_;
    qsizetype at_;
};

constexpr std::array<LowBits::Way, 4> Length = {{{8, 0}, {11, 256}, {14, 2304}, {30, 18688}}};
constexpr std::array<LowBits::Way, 4> FromZero = {{{0, 0}, {0, 1}, {0, 2}, {3, 3}}};

qint64 ceilDivided(qint64 value, qint64 by) {
    return (value + by - 1) / by;
}

class JxlFrames {
  public:
    JxlFrames(QByteArrayView codestream, qsizetype first, const JxlBasicInfo& info)
        : bits_(codestream, first), info_(info) {}

    std::optional<qint64> largest() {
        qint64 largest = 0;
        for (;;) {
            Frame frame;
            if (!readHeader(frame) || !bits_.isInside()) return std::nullopt;
            constexpr qint64 LongestSide = qint64{1} << 30;
            if (frame.width > LongestSide || frame.height > LongestSide) return std::nullopt;
            largest = std::max(largest, frame.width * frame.height);
            if (frame.isLast) return largest;
            if (!skipContent(frame)) return std::nullopt;
        }
    }

  private:
    enum Type { Regular, LowFrequency, ReferenceOnly, SkipProgressive };

    struct Frame {
        qint64 width = 0;
        qint64 height = 0;
        qint64 coveredOnce = 1;  // sides of a square of pixels that one sample stands for
        qint64 groupSide = 256;
        qint64 passes = 1;
        bool isLast = true;
    };

    bool readHeader(Frame& frame) {
        frame.width = info_.xsize;
        frame.height = info_.ysize;
        if (bits_.flag()) return true;
        const auto type = static_cast<Type>(bits_.take(2));
        const bool isModular = bits_.flag();
        readSampling(frame, isModular);
        if (type != ReferenceOnly) readPasses(frame);
        bool isPartial = false;
        if (type == LowFrequency) {
            for (auto level = bits_.take(2) + 1; level > 0; --level) frame.coveredOnce *= 8;
        } else if (bits_.flag()) {
            isPartial = readPlace(frame, type == ReferenceOnly);
        }
        readUse(frame, type, isPartial);
        constexpr std::array<LowBits::Way, 4> NameLength = {{{0, 0}, {4, 0}, {5, 16}, {10, 48}}};
        bits_.skip(static_cast<qsizetype>(8 * bits_.take(NameLength)));
        return readFilters(isModular) && bits_.takeLong() == 0;
    }

    void readSampling(Frame& frame, bool isModular) {
        constexpr quint64 UsesLowFrequencyFrame = 32;
        const quint64 flags = bits_.takeLong();
        const bool isXyb = info_.uses_original_profile == JXL_FALSE;
        const bool isYcbcr = !isXyb && bits_.flag();
        if ((flags & UsesLowFrequencyFrame) == 0) {
            if (isYcbcr) bits_.skip(3 * 2);
            frame.coveredOnce = qint64{1} << bits_.take(2);
            bits_.skip(2 * qsizetype{info_.num_extra_channels});
        }
        if (isModular) frame.groupSide = qint64{128} << bits_.take(2);
        if (!isModular && isXyb) bits_.skip(3 + 3);
    }

    void readPasses(Frame& frame) {
        constexpr std::array<LowBits::Way, 4> Passes = {{{0, 1}, {0, 2}, {0, 3}, {3, 4}}};
        frame.passes = static_cast<qint64>(bits_.take(Passes));
        if (frame.passes == 1) return;
        constexpr std::array<LowBits::Way, 4> Sizes = {{{0, 0}, {0, 1}, {0, 2}, {1, 3}}};
        constexpr std::array<LowBits::Way, 4> Last = {{{0, 0}, {0, 1}, {0, 2}, {3, 0}}};
        const auto sizes = static_cast<int>(bits_.take(Sizes));
        bits_.skip(2 * (frame.passes - 1 + sizes));
        for (int i = 0; i < sizes; ++i) bits_.take(Last);
    }

    // Whether it leaves some of the picture as it is.
    bool readPlace(Frame& frame, bool hasNoPlace) {
        const auto signedPlace = [this] {
            const auto packed = static_cast<qint64>(bits_.take(Length));
            return packed % 2 == 0 ? packed / 2 : -(packed + 1) / 2;
        };
        const qint64 x = hasNoPlace ? 0 : signedPlace();
        const qint64 y = hasNoPlace ? 0 : signedPlace();
        frame.width = static_cast<qint64>(bits_.take(Length));
        frame.height = static_cast<qint64>(bits_.take(Length));
        return !hasNoPlace && (x > 0 || y > 0 || x + frame.width < qint64{info_.xsize} ||
                               y + frame.height < qint64{info_.ysize});
    }

    // How it is laid upon others, and kept for others.
    void readUse(Frame& frame, Type type, bool isPartial) {
        const bool isShown = type == Regular || type == SkipProgressive;
        quint64 mode = 0;
        quint64 duration = 0;
        frame.isLast = false;
        if (isShown) {
            mode = readBlending(isPartial);
            for (quint32 i = 0; i < info_.num_extra_channels; ++i) readBlending(isPartial);
            constexpr std::array<LowBits::Way, 4> Duration = {{{0, 0}, {0, 1}, {8, 0}, {32, 0}}};
            if (info_.have_animation != JXL_FALSE) {
                duration = bits_.take(Duration);
                if (info_.animation.have_timecodes != JXL_FALSE) bits_.skip(32);
            }
            frame.isLast = bits_.flag();
        }
        const quint64 keptAs = type != LowFrequency && !frame.isLast ? bits_.take(2) : 0;
        const bool isKeptWhole =
            isShown && !frame.isLast && (duration == 0 || keptAs != 0) && mode == 0 && !isPartial;
        if (type == ReferenceOnly || isKeptWhole) bits_.skip(1);
    }

    quint64 readBlending(bool isPartial) {
        enum Mode { Replace, Add, Blend, AddWithAlpha, Multiply };
        constexpr std::array<LowBits::Way, 4> Modes = {{{0, 0}, {0, 1}, {0, 2}, {2, 3}}};
        const quint64 mode = bits_.take(Modes);
        const bool hasExtra = info_.num_extra_channels > 0;
        if (hasExtra && (mode == Blend || mode == AddWithAlpha)) bits_.take(FromZero);
        if (hasExtra && (mode == Blend || mode == AddWithAlpha || mode == Multiply)) bits_.skip(1);
        if (mode != Replace || isPartial) bits_.skip(2);
        return mode;
    }

    // False for extensions, which nothing is known of.
    bool readFilters(bool isModular) {
        constexpr int Number = 16;  // bits
        if (bits_.flag()) return true;
        if (bits_.flag() && bits_.flag()) bits_.skip(6 * Number);
        if (bits_.take(2) > 0) {
            if (!isModular && bits_.flag()) bits_.skip(8 * Number);
            if (bits_.flag()) bits_.skip(5 * Number);
            if (bits_.flag()) bits_.skip((isModular ? 3 : 4) * Number);
            if (isModular) bits_.skip(Number);
        }
        return bits_.takeLong() == 0;
    }

    // By its table of contents. False where that is shuffled: only entropy coding tells how.
    bool skipContent(const Frame& frame) {
        const auto count = [&](qint64 side) {
            return ceilDivided(ceilDivided(frame.width, frame.coveredOnce), side) *
                   ceilDivided(ceilDivided(frame.height, frame.coveredOnce), side);
        };
        const qint64 groups = count(frame.groupSide);
        const qint64 sections =
            groups == 1 && frame.passes == 1 ? 1 : 2 + count(8 * frame.groupSide) + groups * frame.passes;
        if (bits_.flag() || sections > bits_.bytesLeft()) return false;
        bits_.skipToByte();
        qint64 bytes = 0;
        constexpr std::array<LowBits::Way, 4> Size = {{{10, 0}, {14, 1024}, {22, 17408}, {30, 4211712}}};
        for (qint64 i = 0; i < sections; ++i) bytes += static_cast<qint64>(bits_.take(Size));
        bits_.skipToByte();
        if (bytes >= bits_.bytesLeft()) return false;
        bits_.skip(8 * bytes);
        return true;
    }

    LowBits bits_;
    const JxlBasicInfo& info_;
};

struct DestroyJxlDecoder {
    void operator()(JxlDecoder* decoder) const { JxlDecoderDestroy(decoder); }
};

}  // namespace

std::optional<qint64> largestJxlFrame(QByteArrayView file) {
    const QByteArray codestream = jxlCodestream(file);
    const std::unique_ptr<JxlDecoder, DestroyJxlDecoder> decoder(JxlDecoderCreate(nullptr));
    if (!decoder) throw std::bad_alloc();
    JxlBasicInfo info{};
    if (JxlDecoderSubscribeEvents(decoder.get(), JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING) !=
            JXL_DEC_SUCCESS ||
        JxlDecoderSetInput(decoder.get(), reinterpret_cast<const std::uint8_t*>(codestream.constData()),
                           static_cast<std::size_t>(codestream.size())) != JXL_DEC_SUCCESS ||
        JxlDecoderProcessInput(decoder.get()) != JXL_DEC_BASIC_INFO ||
        JxlDecoderGetBasicInfo(decoder.get(), &info) != JXL_DEC_SUCCESS || info.have_preview != JXL_FALSE ||
        JxlDecoderProcessInput(decoder.get()) != JXL_DEC_COLOR_ENCODING)
        return std::nullopt;
    // What follows the colours is the first frame.
    const auto left = static_cast<qsizetype>(JxlDecoderReleaseInput(decoder.get()));
    return JxlFrames(codestream, codestream.size() - left, info).largest();
}

}  // namespace zelto
