// SPDX-License-Identifier: GPL-3.0-or-later
// The scan of a baseline JPEG as bits on their way from one file into another. To find where a block ends, its Huffman
// codes have to be read, but neither its coefficients nor the codes have to be made: what stays as it is is copied bit
// for bit. Only around rows in which something changes are there coefficients, and only units that have changed, and
// the one behind each, whose means count from theirs, are encoded. After ITU-T T.81, F.1.2 and F.2.2.
//
//     JpegScan scan(header, geometry, fileBehindTheHeader);
//     while (rows are left) { scan.readRow(blocks of rows that are wanted, else nullptr); ... scan.writeRow(blocks); }
//     QByteArray bits = scan.takeBits();
#pragma once

#include "pictures/jpeg_blocks.h"

#include <QByteArray>

#include <array>
#include <cstdint>
#include <vector>

namespace zelto {

class JpegScan {
  public:
    // Whether it works for a file whose header has been read: all coefficients in one scan of Huffman codes, without
    // restarts, by tables that have a code for whatever a mark may need. `geometry` is the file's.
    static bool suits(const jpeg_decompress_struct& header, const JpegGeometry& geometry);

    // `data` is the file from behind its header on, and is worked on in place. Throws std::bad_alloc.
    JpegScan(const jpeg_decompress_struct& header, const JpegGeometry& geometry, QByteArray data);

    // Finds the next row of units, and where `blocks` is not null takes its coefficients. False for damaged data.
    bool readRow(const JpegBlocks* blocks);

    // From now on the unit counts as changed.
    void change(int unitRow, int column);

    // Adds the next row of units to the bits. `blocks` holds it and the one before, where one of them has been read with
    // coefficients. False where a coefficient is too large for a code.
    bool writeRow(const JpegBlocks& blocks);

    // What has been written, as a file has it behind a scan's header; the mark of its end included.
    QByteArray takeBits();

  private:
    // One Huffman table, for both ways.
    struct Codes {
        // What a code stands for.
        struct Symbol {
            std::uint8_t length;  // of the code, bits; 0: there is none
            std::uint8_t size;    // of the number behind it, bits
            std::uint8_t bits;    // both
            std::uint8_t step;    // by how many coefficients it leads on
        };
        static constexpr int QuickBits = 10;

        Codes(const JHUFF_TBL& table, bool isForMeans);
        static Symbol meaningOf(std::size_t symbol, int length, bool isForMeans);
        Symbol at(std::uint64_t window) const;

        std::array<Symbol, std::size_t{1} << QuickBits>
            quick{};                            // by the next bits, for codes that are not longer
        std::array<int, 17> behind{};           // by length: the number behind its last code
        std::array<int, 17> firstSymbol{};      // by length: place in `symbols`, less the first code
        std::array<Symbol, 256> symbols{};      // in the order of their codes
        std::array<std::uint16_t, 256> code{};  // by symbol
        std::array<std::uint8_t, 256> length{};
    };

    struct Component {
        const Codes* means;
        const Codes* others;
        int lastMean = 0;  // as read
    };

    struct Bits {
        const std::uint8_t* next;  // byte that is not in the window yet
        std::uint64_t window = 0;  // the next bits, from the highest
        int left = 0;              // how many of them there are

        void refill();
        void drop(int count);
        int number(const Codes::Symbol& symbol) const;
    };

    // Where a row of units lies in the data, bits; of each unit, where something around it changes.
    struct Row {
        qint64 begin;
        qint64 end;
        std::vector<qint64> units;
    };

    bool skipBlock(Component& component);
    bool readBlock(Component& component, JCOEF* block);
    bool readMean(Component& component);
    qint64 position() const;
    template <class Step>
    bool forBlocksOf(int unitRow, int column, Step step);

    bool encodeUnit(const JpegBlocks& blocks, int unitRow, int column);
    bool encodeBlock(const Component& component, const JCOEF* block, int meanBefore);
    void copy(qint64 begin, qint64 end);
    void put(std::uint64_t bits, int count);
    void putBytes(std::uint64_t bytes, int count);

    JpegGeometry geometry_;
    std::vector<Codes> codes_;  // never grows once components_ point into it
    std::vector<Component> components_;
    QByteArray data_;      // without stuffing, and with some bytes behind its end that may be read
    qint64 dataBits_ = 0;  // 0 where the file does not end behind the scan
    const std::uint8_t* readable_ = nullptr;
    Bits bits_{};
    std::vector<Row> rows_;      // that have been read
    std::vector<bool> changed_;  // by unit

    int written_ = 0;  // rows
    QByteArray target_;
    qsizetype targetBytes_ = 0;
    std::uint64_t pending_ = 0;  // bits that make no whole word yet, in the lowest places
    int room_ = 64;              // for so many more
};

}  // namespace zelto
