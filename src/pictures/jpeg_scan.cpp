// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_scan.h"

#include "pictures/jpeg_huffman.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace zelto {
namespace {

constexpr int LongestCodeRead = 16;
constexpr std::size_t ZeroRun = 0xF0;
// By how many coefficients they lead on: what no block may have, beyond its last one; the end, farther than that can.
constexpr int NoSymbol = DCTSIZE2 + 1;
constexpr int EndOfBlock = 2 * DCTSIZE2;
// The most that is read beyond the end before it is noticed: one block.
constexpr qsizetype BytesBehind = 512;
constexpr std::uint8_t Marker = 0xFF;
constexpr std::uint8_t EndOfImage = 0xD9;

// The place of each coefficient of the zigzag in a block.
constexpr std::array<std::uint8_t, DCTSIZE2> Zigzag = [] {
    std::array<std::uint8_t, DCTSIZE2> places{};
    std::size_t next = 0;
    for (int diagonal = 0; diagonal < 2 * DCTSIZE - 1; ++diagonal) {
        for (int i = 0; i <= diagonal; ++i) {
            const int u = diagonal % 2 == 0 ? i : diagonal - i;
            const int v = diagonal - u;
            if (u < DCTSIZE && v < DCTSIZE) places[next++] = static_cast<std::uint8_t>(v * DCTSIZE + u);
        }
    }
    return places;
}();

// The table of a number that the file may have made up; null where there is none.
const JHUFF_TBL* tableAt(JHUFF_TBL* const (&tables)[NUM_HUFF_TBLS], int number) {
    return number >= 0 && number < NUM_HUFF_TBLS ? tables[number] : nullptr;
}

bool isSame(const JHUFF_TBL& one, const JHUFF_TBL& other) {
    return std::ranges::equal(one.bits, other.bits) && std::ranges::equal(one.huffval, other.huffval);
}

// Whether its codes are codes: none is a number that its length has no room for.
bool isTree(const JHUFF_TBL& table) {
    int code = 0;
    for (int length = 1; length <= LongestCodeRead; ++length) {
        code = (code + table.bits[length]) * 2;
        if (code > 2 << length) return false;
    }
    return true;
}

// Takes the zero behind each byte of ones out of `data`. False where the file does not end behind the scan.
bool removeStuffing(QByteArray& data) {
    auto* const begin = reinterpret_cast<std::uint8_t*>(data.data());
    std::uint8_t* const end = begin + data.size();
    std::uint8_t* to = begin;
    for (const std::uint8_t* from = begin; from < end;) {
        const auto* found =
            static_cast<const std::uint8_t*>(std::memchr(from, Marker, static_cast<std::size_t>(end - from)));
        if (found == nullptr || found + 1 == end) return false;
        const bool isData = found[1] == 0;
        const auto length = static_cast<std::size_t>(found - from) + (isData ? 1 : 0);
        std::memmove(to, from, length);
        to += length;
        if (!isData) {
            data.truncate(to - begin);
            return found[1] == EndOfImage;
        }
        from = found + 2;
    }
    return false;
}

}  // namespace

JpegScan::Codes::Symbol JpegScan::Codes::meaningOf(std::size_t symbol, int length, bool isForMeans) {
    const std::size_t most = isForMeans ? MostMeanBits : MostBits;
    std::size_t size = isForMeans ? symbol : symbol % 16;
    std::size_t step = isForMeans ? 1 : symbol / 16 + 1;
    if (!isForMeans && symbol == 0) step = EndOfBlock;
    if (size > most || (!isForMeans && size == 0 && symbol != 0 && symbol != ZeroRun)) {
        size = 0;
        step = NoSymbol;
    }
    const auto bits = static_cast<std::size_t>(length) + size;
    return {static_cast<std::uint8_t>(length), static_cast<std::uint8_t>(size),
            static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(step)};
}

JpegScan::Codes::Codes(const JHUFF_TBL& table, bool isForMeans) {
    int next = 0;
    int first = 0;
    for (int bits = 1; bits <= LongestCodeRead; ++bits) {
        firstSymbol[static_cast<std::size_t>(bits)] = next - first;
        for (int i = 0; i < table.bits[bits]; ++i, ++next) {
            const std::size_t symbol = table.huffval[next];
            const int codeNow = first + i;
            code[symbol] = static_cast<std::uint16_t>(codeNow);
            length[symbol] = static_cast<std::uint8_t>(bits);
            const Symbol known = meaningOf(symbol, bits, isForMeans);
            symbols[static_cast<std::size_t>(next)] = known;
            if (bits > QuickBits) continue;
            const auto from = quick.begin() + (codeNow << (QuickBits - bits));
            std::fill_n(from, 1 << (QuickBits - bits), known);
        }
        first += table.bits[bits];
        behind[static_cast<std::size_t>(bits)] = first;
        first *= 2;
    }
}

inline JpegScan::Codes::Symbol JpegScan::Codes::at(std::uint64_t window) const {
    const Symbol& known = quick[window >> (64 - QuickBits)];
    if (known.length != 0) return known;
    for (std::size_t bits = QuickBits + 1; bits <= LongestCodeRead; ++bits) {
        const int found = static_cast<int>(window >> (64 - bits));
        if (found < behind[bits]) return symbols[static_cast<std::size_t>(firstSymbol[bits] + found)];
    }
    return {};
}

inline void JpegScan::Bits::refill() {
    window |= qFromBigEndian<quint64>(next) >> left;
    next += (63U - static_cast<unsigned>(left)) / 8;
    left |= 56;
}

inline void JpegScan::Bits::drop(int count) {
    window <<= count;
    left -= count;
}

// The number behind a code that the window begins with: one whose highest bit is 0 stands for a negative one.
inline int JpegScan::Bits::number(const Codes::Symbol& symbol) const {
    if (symbol.size == 0) return 0;
    const auto bits = static_cast<int>((window << symbol.length) >> (64 - symbol.size));
    return bits >> (symbol.size - 1) != 0 ? bits : bits - (1 << symbol.size) + 1;
}

bool JpegScan::suits(const jpeg_decompress_struct& header, const JpegGeometry& geometry) {
    const bool isOneBaselineScan = header.progressive_mode == 0 &&
                                   header.comps_in_scan == header.num_components &&
                                   header.restart_interval == 0;
    // The blocks of a scan of one component come in rows, whatever its sampling.
    const bool comesInUnits = geometry.components.size() > 1 || geometry.unit == QSize(DCTSIZE, DCTSIZE);
    if (!isOneBaselineScan || !comesInUnits) return false;
    for (int i = 0; i < header.num_components; ++i) {
        const jpeg_component_info& component = header.comp_info[i];
        const JHUFF_TBL* means = tableAt(header.dc_huff_tbl_ptrs, component.dc_tbl_no);
        const JHUFF_TBL* others = tableAt(header.ac_huff_tbl_ptrs, component.ac_tbl_no);
        if (header.cur_comp_info[i] != &component || means == nullptr || others == nullptr ||
            !isTree(*means) || !isTree(*others) || !isSame(completedDcTable(*means), *means) ||
            !isSame(completedAcTable(*others), *others))
            return false;
    }
    return true;
}

JpegScan::JpegScan(const jpeg_decompress_struct& header, const JpegGeometry& geometry, QByteArray data)
    : geometry_(geometry),
      data_(std::move(data)),
      changed_(static_cast<std::size_t>(geometry.units.width()) *
               static_cast<std::size_t>(geometry.units.height())) {
    codes_.reserve(geometry.components.size() * 2);
    for (std::size_t i = 0; i < geometry.components.size(); ++i) {
        const jpeg_component_info& component = header.comp_info[i];
        const Codes& means = codes_.emplace_back(*header.dc_huff_tbl_ptrs[component.dc_tbl_no], true);
        const Codes& others = codes_.emplace_back(*header.ac_huff_tbl_ptrs[component.ac_tbl_no], false);
        components_.push_back({&means, &others});
    }
    target_.resize(data_.size() + data_.size() / 8 + 65536);
    const bool isWhole = removeStuffing(data_);
    dataBits_ = isWhole ? data_.size() * 8 : 0;
    data_.append(BytesBehind, '\0');
    bits_.next = reinterpret_cast<const std::uint8_t*>(data_.constData());
    readable_ = bits_.next + dataBits_ / 8 + sizeof bits_.window;
    rows_.reserve(static_cast<std::size_t>(geometry.units.height()));
}

qint64 JpegScan::position() const {
    return (bits_.next - reinterpret_cast<const std::uint8_t*>(data_.constData())) * 8 - bits_.left;
}

inline bool JpegScan::readMean(Component& component) {
    bits_.refill();
    const Codes::Symbol symbol = component.means->at(bits_.window);
    if (symbol.step != 1 || bits_.next > readable_) return false;
    component.lastMean += bits_.number(symbol);
    bits_.drop(symbol.bits);
    return std::abs(component.lastMean) <= 0x7FFF;
}

inline bool JpegScan::skipBlock(Component& component) {
    if (!readMean(component)) return false;
    const Codes& codes = *component.others;
    int at = 1;
    while (at < DCTSIZE2) {
        bits_.refill();  // enough for two
        Codes::Symbol symbol = codes.at(bits_.window);
        if (symbol.length == 0) return false;
        bits_.drop(symbol.bits);
        at += symbol.step;
        if (at >= DCTSIZE2) break;
        symbol = codes.at(bits_.window);
        if (symbol.length == 0) return false;
        bits_.drop(symbol.bits);
        at += symbol.step;
    }
    return at == DCTSIZE2 || at > EndOfBlock;
}

inline bool JpegScan::readBlock(Component& component, JCOEF* block) {
    if (!readMean(component)) return false;
    std::memset(block, 0, sizeof(JBLOCK));
    block[0] = static_cast<JCOEF>(component.lastMean);
    const Codes& codes = *component.others;
    int at = 1;
    while (at < DCTSIZE2) {
        bits_.refill();
        const Codes::Symbol symbol = codes.at(bits_.window);
        if (symbol.length == 0) return false;
        at += symbol.step;
        if (at <= DCTSIZE2)
            block[Zigzag[static_cast<std::size_t>(at) - 1]] = static_cast<JCOEF>(bits_.number(symbol));
        bits_.drop(symbol.bits);
    }
    return at == DCTSIZE2 || at > EndOfBlock;
}

// step(component, its number, row of blocks, place in it), in the order of the scan.
template <class Step>
bool JpegScan::forBlocksOf(int unitRow, int column, Step step) {
    for (std::size_t i = 0; i < components_.size(); ++i) {
        const auto& [across, down, blocks, covers] = geometry_.components[i];
        for (int y = 0; y < down; ++y) {
            for (int x = 0; x < across; ++x) {
                if (!step(components_[i], i, unitRow * down + y, column * across + x)) return false;
            }
        }
    }
    return true;
}

bool JpegScan::readRow(const JpegBlocks* blocks) {
    const int unitRow = static_cast<int>(rows_.size());
    Row row{position(), 0, {}};
    for (int column = 0; column < geometry_.units.width(); ++column) {
        if (blocks != nullptr) row.units.push_back(position());
        const bool done =
            blocks != nullptr
                ? forBlocksOf(unitRow, column,
                              [&](Component& component, std::size_t i, int y, int x) {
                                  return readBlock(component, blocks->row(i, y)[x]);
                              })
                : forBlocksOf(unitRow, column, [&](Component& component, std::size_t, int, int) {
                      return skipBlock(component);
                  });
        if (!done) return false;
    }
    row.end = position();
    if (row.end > dataBits_) return false;
    rows_.push_back(std::move(row));
    return true;
}

void JpegScan::change(int unitRow, int column) {
    changed_[static_cast<std::size_t>(unitRow) * static_cast<std::size_t>(geometry_.units.width()) +
             static_cast<std::size_t>(column)] = true;
}

bool JpegScan::writeRow(const JpegBlocks& blocks) {
    const int unitRow = written_++;
    Row& row = rows_[static_cast<std::size_t>(unitRow)];
    qint64 copied = row.begin;
    for (std::size_t column = 0; column < row.units.size(); ++column) {
        const std::size_t unit = static_cast<std::size_t>(unitRow) * row.units.size() + column;
        if (!changed_[unit] && (unit == 0 || !changed_[unit - 1])) continue;
        copy(copied, row.units[column]);
        copied = column + 1 < row.units.size() ? row.units[column + 1] : row.end;
        if (!encodeUnit(blocks, unitRow, static_cast<int>(column))) return false;
    }
    copy(copied, row.end);
    row.units = {};
    return true;
}

bool JpegScan::encodeUnit(const JpegBlocks& blocks, int unitRow, int column) {
    std::array<int, MAX_COMPS_IN_SCAN> means{};  // of the unit before: its last blocks'
    const bool isFirst = unitRow == 0 && column == 0;
    for (std::size_t i = 0; i < components_.size() && !isFirst; ++i) {
        const auto& [across, down, size, covers] = geometry_.components[i];
        const int row = column > 0 ? unitRow : unitRow - 1;
        const int unitsBefore = column > 0 ? column : geometry_.units.width();
        means[i] = blocks.row(i, (row + 1) * down - 1)[unitsBefore * across - 1][0];
    }
    return forBlocksOf(unitRow, column, [&](const Component& component, std::size_t i, int y, int x) {
        const JCOEF* block = blocks.row(i, y)[x];
        return encodeBlock(component, block, std::exchange(means[i], block[0]));
    });
}

bool JpegScan::encodeBlock(const Component& component, const JCOEF* block, int meanBefore) {
    const auto putNumber = [this](const Codes& codes, int run, int number) {
        const int size = std::bit_width(static_cast<unsigned>(std::abs(number)));
        const auto symbol = static_cast<std::size_t>(run * 16 + size);
        const auto mask = (std::uint64_t{1} << size) - 1;
        const auto bits = static_cast<std::uint64_t>(number < 0 ? number - 1 : number) & mask;
        put(std::uint64_t{codes.code[symbol]} << size | bits, codes.length[symbol] + size);
        return size;
    };
    if (std::abs(block[0] - meanBefore) >= 1 << MostMeanBits) return false;
    putNumber(*component.means, 0, block[0] - meanBefore);
    const Codes& codes = *component.others;
    int zeros = 0;
    for (std::size_t at = 1; at < DCTSIZE2; ++at) {
        const int number = block[Zigzag[at]];
        if (number == 0) {
            ++zeros;
            continue;
        }
        if (std::abs(number) >= 1 << MostBits) return false;
        for (; zeros > 15; zeros -= 16) put(codes.code[ZeroRun], codes.length[ZeroRun]);
        putNumber(codes, std::exchange(zeros, 0), number);
    }
    if (zeros > 0) put(codes.code[0], codes.length[0]);
    return true;
}

void JpegScan::copy(qint64 begin, qint64 end) {
    constexpr qint64 Step = 56;
    const char* const bytes = data_.constData();
    while (begin < end) {
        const auto count = static_cast<int>(std::min(end - begin, Step));
        const quint64 bits = qFromBigEndian<quint64>(bytes + begin / 8) << (begin % 8);
        put(bits >> (64 - count), count);
        begin += count;
    }
}

// At most 56 bits.
inline void JpegScan::put(std::uint64_t bits, int count) {
    if (count < room_) {
        pending_ = pending_ << count | bits;
        room_ -= count;
        return;
    }
    const int left = count - room_;
    putBytes(pending_ << room_ | bits >> left, 8);
    pending_ = bits;  // what is there of it already is pushed out by what comes
    room_ = 64 - left;
}

// The highest `count` bytes.
void JpegScan::putBytes(std::uint64_t bytes, int count) {
    constexpr qsizetype Most = 16;
    if (targetBytes_ + Most > target_.size()) target_.resize(target_.size() + target_.size() / 2);
    char* const target = target_.data();
    constexpr std::uint64_t Highest = 0x8080808080808080;
    constexpr std::uint64_t Ones = 0x0101010101010101;
    const bool mayHaveMarker = (bytes & ~(bytes + Ones) & Highest) != 0;
    if (count == 8 && !mayHaveMarker) {
        qToBigEndian<quint64>(bytes, target + targetBytes_);
        targetBytes_ += 8;
        return;
    }
    for (int i = 0; i < count; ++i, bytes <<= 8) {
        const auto byte = static_cast<std::uint8_t>(bytes >> 56);
        target[targetBytes_++] = static_cast<char>(byte);
        if (byte == Marker) target[targetBytes_++] = 0;
    }
}

QByteArray JpegScan::takeBits() {
    // What is left of the last byte is filled with ones.
    const int count = (64 - room_ + 7) / 8;
    const int filling = count * 8 - (64 - room_);
    if (count > 0) putBytes((pending_ << filling | ((1U << filling) - 1)) << (64 - count * 8), count);
    target_.truncate(targetBytes_);
    target_.append(static_cast<char>(Marker)).append(static_cast<char>(EndOfImage));
    return std::move(target_);
}

}  // namespace zelto
