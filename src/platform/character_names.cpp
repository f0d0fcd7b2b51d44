// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/character_names.h"

#include <QByteArray>
#include <QByteArrayList>

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <tuple>
#include <vector>

namespace zelto {
namespace {

struct Match {
    bool isPart = false;  // a word of the name only begins as asked
    std::size_t length = 0;
    char32_t character = 0;

    auto operator<=>(const Match&) const = default;
};

bool isWordEnd(std::string_view name, std::size_t at) {
    return at == name.size() || name[at] == ' ' || name[at] == '-';
}

// Whether a word of `name` begins with `word`; `isWhole` is set where one is `word`.
bool holdsWord(std::string_view name, std::string_view word, bool& isWhole) {
    bool found = false;
    isWhole = false;
    for (std::size_t at = name.find(word); at != std::string_view::npos && !isWhole;
         at = name.find(word, at + 1)) {
        if (at > 0 && !isWordEnd(name, at - 1)) continue;
        found = true;
        isWhole = isWordEnd(name, at + word.size());
    }
    return found;
}

struct Search {
    QByteArrayList words;
    std::vector<Match> matches;

    void look(char32_t character, std::string_view name) {
        Match match{false, name.size(), character};
        for (const QByteArray& word : words) {
            bool isWhole = false;
            if (!holdsWord(name, {word.data(), static_cast<std::size_t>(word.size())}, isWhole)) return;
            match.isPart = match.isPart || !isWhole;
        }
        matches.push_back(match);
    }
};

UBool lookAt(void* search, UChar32 code, UCharNameChoice /*choice*/, const char* name, int32_t length) {
    static_cast<Search*>(search)->look(static_cast<char32_t>(code), {name, static_cast<std::size_t>(length)});
    return true;
}

// The character that `words` itself is, or gives the code of.
std::optional<char32_t> characterMeant(const QString& words) {
    const QList<uint> codes = words.toUcs4();
    if (codes.size() == 1 && codes.front() > 0x7F) return codes.front();
    const bool isCode = words.startsWith(QLatin1String("U+"), Qt::CaseInsensitive);
    bool isNumber = false;
    const uint code = words.mid(2).toUInt(&isNumber, 16);
    if (!isCode || !isNumber || characterName(code).isEmpty()) return std::nullopt;
    return code;
}

}  // namespace

QString characterName(char32_t character) {
    std::array<char, 128> name{};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length = u_charName(static_cast<UChar32>(character), U_UNICODE_CHAR_NAME, name.data(),
                                      static_cast<int32_t>(name.size()), &status);
    return U_FAILURE(status) ? QString() : QString::fromLatin1(name.data(), length);
}

FoundCharacters findCharacters(const QString& words, qsizetype limit) {
    const QString wanted = words.simplified();
    if (wanted.isEmpty()) return {};
    if (const std::optional<char32_t> meant = characterMeant(wanted)) return {{*meant}, 1};
    Search search{wanted.toUpper().replace(u'-', u' ').toLatin1().simplified().split(' '), {}};
    UErrorCode status = U_ZERO_ERROR;
    u_enumCharNames(0, UCHAR_MAX_VALUE + 1, lookAt, &search, U_UNICODE_CHAR_NAME, &status);
    FoundCharacters found;
    found.total = std::ssize(search.matches);
    const auto shown = search.matches.begin() + std::min(limit, found.total);
    std::partial_sort(search.matches.begin(), shown, search.matches.end());
    std::for_each(search.matches.begin(), shown,
                  [&found](const Match& match) { found.characters += match.character; });
    return found;
}

}  // namespace zelto
