// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/nearest_word.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace zelto {
namespace {

// Longer words are names of files and the like, where a guess helps nobody.
constexpr qsizetype LongestWord = 64;

// The distance of Damerau and Levenshtein in which no piece is changed twice, row by row of its usual table.
qsizetype distance(const QString& one, const QString& other) {
    const auto width = static_cast<std::size_t>(other.size()) + 1;
    std::array<std::vector<qsizetype>, 3> rows;  // this one, the last and the one before
    for (auto& row : rows) row.resize(width);
    for (std::size_t j = 0; j < width; ++j) rows[0][j] = static_cast<qsizetype>(j);
    for (qsizetype i = 1; i <= one.size(); ++i) {
        std::rotate(rows.begin(), rows.end() - 1, rows.end());
        auto& [row, last, before] = rows;
        row[0] = i;
        for (std::size_t j = 1; j < width; ++j) {
            const auto k = static_cast<qsizetype>(j);
            const bool isSame = one[i - 1] == other[k - 1];
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && one[i - 1] == other[k - 2] && one[i - 2] == other[k - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return rows[0][width - 1];
}

}  // namespace

QString nearestWord(const QString& typed, const QStringList& words) {
    const QString wanted = typed.toLower();
    if (wanted.isEmpty() || wanted.size() > LongestWord) return {};
    constexpr qsizetype LettersPerSlip = 3;
    qsizetype nearest = std::max<qsizetype>(1, wanted.size() / LettersPerSlip) + 1;
    QString found;
    for (const QString& word : words) {
        if (word.size() > LongestWord) continue;
        const QString candidate = word.toLower();
        const bool isBegun = wanted.size() >= LettersPerSlip && candidate.startsWith(wanted);
        const qsizetype away = isBegun ? 1 : distance(wanted, candidate);
        if (away < nearest) {
            nearest = away;
            found = word;
        }
    }
    return found;
}

}  // namespace zelto
