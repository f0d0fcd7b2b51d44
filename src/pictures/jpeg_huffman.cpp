// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/jpeg_huffman.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

namespace zelto {
namespace {

constexpr std::size_t Symbols = 256;
constexpr int LongestCode = 16;

// The lengths of codes by symbol, 0 for none. The last stands for the code of ones only, which no symbol may have.
using CodeLengths = std::array<int, Symbols + 1>;
using Frequencies = std::array<int, Symbols + 1>;

CodeLengths lengthsOf(const JHUFF_TBL& table) {
    CodeLengths lengths{};
    std::size_t next = 0;
    for (int length = 1; length <= LongestCode; ++length) {
        for (int i = 0; i < table.bits[length] && next < Symbols; ++i)
            lengths[table.huffval[next++]] = length;
    }
    return lengths;
}

// Figures K.1 and K.2: the two rarest sets of symbols become one, until there is one.
CodeLengths codeLengths(Frequencies frequencies) {
    CodeLengths lengths{};
    std::array<std::size_t, Symbols + 1> sets{};
    std::iota(sets.begin(), sets.end(), 0U);
    const auto rarest = [&](std::optional<std::size_t> otherThan) {
        std::optional<std::size_t> found;
        for (std::size_t i = 0; i <= Symbols; ++i) {
            if (frequencies[i] > 0 && i != otherThan && (!found || frequencies[i] <= frequencies[*found]))
                found = i;
        }
        return found;
    };
    for (;;) {
        const std::optional<std::size_t> one = rarest(std::nullopt);
        const std::optional<std::size_t> other = rarest(one);
        if (!other) return lengths;
        frequencies[*one] += frequencies[*other];
        frequencies[*other] = 0;
        for (std::size_t i = 0; i <= Symbols; ++i) {
            if (sets[i] != *one && sets[i] != *other) continue;
            sets[i] = *one;
            ++lengths[i];
        }
    }
}

// Figure K.3, on the numbers of codes by length: two of the codes that are too long share a shorter prefix.
template <std::size_t Size>
void shorten(std::array<int, Size>& counts) {
    for (std::size_t length = Size - 1; length > LongestCode; --length) {
        while (counts[length] > 0) {
            std::size_t shorter = length - 2;
            while (counts[shorter] == 0) --shorter;
            counts[length] -= 2;
            counts[length - 1] += 1;
            counts[shorter + 1] += 2;
            counts[shorter] -= 1;
        }
    }
}

JHUFF_TBL tableFor(const Frequencies& frequencies) {
    const CodeLengths lengths = codeLengths(frequencies);
    std::array<int, Symbols + 2> counts{};
    for (const int length : lengths) ++counts[static_cast<std::size_t>(length)];
    counts[0] = 0;
    shorten(counts);
    // The code of ones only is the last of the longest.
    std::size_t longest = LongestCode;
    while (counts[longest] == 0) --longest;
    --counts[longest];

    JHUFF_TBL table{};
    for (std::size_t length = 1; length <= LongestCode; ++length)
        table.bits[length] = static_cast<UINT8>(counts[length]);
    std::array<std::size_t, Symbols> order{};
    std::iota(order.begin(), order.end(), 0U);
    const auto* const coded = std::stable_partition(order.begin(), order.end(),
                                                    [&](std::size_t symbol) { return lengths[symbol] > 0; });
    std::stable_sort(order.begin(), order.begin() + (coded - order.begin()),
                     [&](std::size_t one, std::size_t other) { return lengths[one] < lengths[other]; });
    std::transform(order.begin(), order.begin() + (coded - order.begin()), std::begin(table.huffval),
                   [](std::size_t symbol) { return static_cast<UINT8>(symbol); });
    return table;
}

JHUFF_TBL completed(const JHUFF_TBL& table, bool (*isNeeded)(std::size_t symbol)) {
    const CodeLengths lengths = lengthsOf(table);
    Frequencies frequencies{};
    bool isComplete = true;
    for (std::size_t symbol = 0; symbol < Symbols; ++symbol) {
        if (lengths[symbol] > 0) {
            frequencies[symbol] = 4 << (LongestCode - lengths[symbol]);
        } else if (isNeeded(symbol)) {
            frequencies[symbol] = 1;
            isComplete = false;
        }
    }
    if (isComplete) return table;
    frequencies[Symbols] = 1;
    return tableFor(frequencies);
}

}  // namespace

JHUFF_TBL completedDcTable(const JHUFF_TBL& table) {
    return completed(table, [](std::size_t symbol) { return symbol <= MostMeanBits; });
}

JHUFF_TBL completedAcTable(const JHUFF_TBL& table) {
    constexpr std::size_t ZeroRun = 0xF0;  // and 0 for the end of a block
    return completed(table, [](std::size_t symbol) {
        const std::size_t bits = symbol & 15;
        return symbol == 0 || symbol == ZeroRun || (bits >= 1 && bits <= MostBits);
    });
}

bool CodeRange::takes(const JBLOCK* blocks, int count) {
    for (const JBLOCK* block = blocks; block < blocks + count; ++block) {
        for (std::size_t i = 0; i < DCTSIZE2; ++i) {
            least_[i] = std::min(least_[i], (*block)[i]);
            largest_[i] = std::max(largest_[i], (*block)[i]);
        }
    }
    const int leastOther = *std::min_element(least_.begin() + 1, least_.end());
    const int largestOther = *std::max_element(largest_.begin() + 1, largest_.end());
    constexpr int Limit = 1 << MostBits;
    return largest_[0] - least_[0] < 1 << MostMeanBits && largestOther < Limit && leastOther > -Limit;
}

}  // namespace zelto
