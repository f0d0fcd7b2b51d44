// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/character_names.h"

#include "support/testing.h"

namespace zelto {
namespace {

using ::testing::Contains;
using ::testing::Not;

TEST(CharacterNames, AreSearchedByWordsInAnyOrder) {
    constexpr qsizetype Plenty = 100'000;
    struct Row {
        QString words;
        char32_t found, notFound;
    };
    const Row rows[] = {
        {u"right arrow"_s, U'→', U'←'}, {u" ARROW   rightw"_s, U'→', U'↔'}, {u"grinning face"_s, U'😀', U'☹'},
        {u"row"_s, U'🚣', U'→'},  // the word begins so, it does not only hold it
        {u"cjk 4e2d"_s, U'中', U'文'},  {u"hyphen minus"_s, U'-', U'−'},    {u"hyphen-minus"_s, U'-', U'−'},
    };
    for (const Row& row : rows) {
        const FoundCharacters found = findCharacters(row.words, Plenty);
        EXPECT_THAT(found.characters, Contains(row.found)) << qPrintable(row.words);
        EXPECT_THAT(found.characters, Not(Contains(row.notFound))) << qPrintable(row.words);
        EXPECT_EQ(found.total, found.characters.size()) << qPrintable(row.words);
    }
}

TEST(CharacterNames, BestComeFirst) {
    EXPECT_EQ(findCharacters(u"rightwards arrow"_s, 5).characters.value(0), U'→');
    EXPECT_EQ(findCharacters(u"star"_s, 5).characters.size(), 5);
    EXPECT_GT(findCharacters(u"star"_s, 5).total, 50);
}

TEST(CharacterNames, ACharacterOrItsCodeFindsIt) {
    const std::pair<QString, QList<char32_t>> rows[] = {
        {u"→"_s, {U'→'}},  {u" 😀 "_s, {U'😀'}},   {u"u+20ac"_s, {U'€'}}, {u"U+1F600"_s, {U'😀'}},
        {u"U+0007"_s, {}}, {u"U+FFFFFFF"_s, {}}, {u"  "_s, {}},         {u"no such"_s, {}}};
    for (const auto& [words, found] : rows)
        EXPECT_EQ(findCharacters(words, 10).characters, found) << qPrintable(words);
}

}  // namespace
}  // namespace zelto
