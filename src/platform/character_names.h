// SPDX-License-Identifier: GPL-3.0-or-later
// The characters of Unicode by their names, as ICU knows them. Any thread.
#pragma once

#include <QList>
#include <QString>

namespace zelto {

// "RIGHTWARDS ARROW"; empty for a code that has no name, such as a control character.
QString characterName(char32_t character);

struct FoundCharacters {
    QList<char32_t> characters;  // best first
    qsizetype total = 0;         // how many there are in all
};

// The characters whose names hold, for each word of `words`, a word that begins so; those that hold the very
// words come first, among them those of the shortest names. Letter case and the order of words do not matter.
// A character itself ("→") finds that character, its code ("U+2192") likewise. At most `limit` are returned;
// blank words find nothing. Looks through all names: some 20 ms.
FoundCharacters findCharacters(const QString& words, qsizetype limit);

}  // namespace zelto
