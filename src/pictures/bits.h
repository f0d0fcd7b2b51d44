// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers from a row of bits, the highest first; zeros after its end. The bytes outlive it. One thread at a time.
#pragma once

#include <QByteArrayView>

#include <algorithm>

namespace zelto {

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

}  // namespace zelto
