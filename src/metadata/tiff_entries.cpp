// SPDX-License-Identifier: GPL-3.0-or-later
#include "metadata/tiff_entries.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <optional>

namespace zelto {
namespace {

constexpr qsizetype HeaderSize = 8;
constexpr qsizetype EntrySize = 12;
// More directories than any file has; a chain may lead back to itself.
constexpr int MostDirectories = 16;

// Bytes of a value by its type's number.
constexpr std::array<qsizetype, 14> TypeSizes = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
constexpr quint16 Short = 3;
constexpr quint16 Long = 4;

class Reader {
  public:
    explicit Reader(QByteArrayView bytes) : bytes_(bytes), isLittle_(bytes.startsWith("II")) {}

    template <class Number>
    std::optional<Number> number(qsizetype at) const {
        if (at < 0 || at + qsizetype{sizeof(Number)} > bytes_.size()) return std::nullopt;
        const char* data = bytes_.data() + at;
        return isLittle_ ? qFromLittleEndian<Number>(data) : qFromBigEndian<Number>(data);
    }

    std::optional<TiffEntry> entry(int directory, qsizetype at) const {
        const auto tag = number<quint16>(at);
        const auto type = number<quint16>(at + 2);
        const auto count = number<quint32>(at + 4);
        const auto offset = number<quint32>(at + 8);
        if (!offset || *type >= TypeSizes.size()) return std::nullopt;
        const qsizetype size = TypeSizes[*type] * qsizetype{*count};
        const qsizetype from = size <= 4 ? at + 8 : qsizetype{*offset};
        if (from + size > bytes_.size()) return std::nullopt;
        return TiffEntry{directory, *tag, *type, isLittle_, bytes_.sliced(from, size)};
    }

  private:
    QByteArrayView bytes_;
    bool isLittle_;
};

}  // namespace

std::vector<TiffEntry> tiffEntries(QByteArrayView tiff) {
    std::vector<TiffEntry> entries;
    if (tiff.size() < HeaderSize || (!tiff.startsWith("II*\0") && !tiff.startsWith("MM"))) return entries;
    const Reader reader(tiff);
    qsizetype next = reader.number<quint32>(4).value_or(0);
    for (int directory = 0; next != 0 && directory < MostDirectories; ++directory) {
        const auto count = reader.number<quint16>(next);
        if (!count) break;
        for (int i = 0; i < *count; ++i) {
            if (const auto entry = reader.entry(directory, next + 2 + i * EntrySize))
                entries.push_back(*entry);
        }
        next = reader.number<quint32>(next + 2 + *count * EntrySize).value_or(0);
    }
    return entries;
}

bool isFirstDirectoryWhole(QByteArrayView tiff) {
    const std::vector<TiffEntry> entries = tiffEntries(tiff);
    const Reader reader(tiff);
    const auto count = reader.number<quint16>(reader.number<quint32>(4).value_or(0));
    return count && *count == std::count_if(entries.begin(), entries.end(),
                                            [](const TiffEntry& entry) { return entry.directory == 0; });
}

std::vector<quint32> TiffEntry::numbers() const {
    std::vector<quint32> numbers;
    const auto append = [&]<class Number>(Number) {
        for (qsizetype i = 0; i < value.size(); i += qsizetype{sizeof(Number)}) {
            const char* data = value.data() + i;
            numbers.push_back(isLittleEndian ? qFromLittleEndian<Number>(data)
                                             : qFromBigEndian<Number>(data));
        }
    };
    if (type == Short) append(quint16{});
    if (type == Long) append(quint32{});
    return numbers;
}

const TiffEntry* tiffEntry(const std::vector<TiffEntry>& entries, quint16 tag) {
    const auto found = std::ranges::find_if(
        entries, [&](const TiffEntry& entry) { return entry.directory == 0 && entry.tag == tag; });
    return found == entries.end() ? nullptr : &*found;
}

}  // namespace zelto
