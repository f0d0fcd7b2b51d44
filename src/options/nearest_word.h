// SPDX-License-Identifier: GPL-3.0-or-later
// What somebody may have meant who mistyped a word. Any thread.
#pragma once

#include <QString>
#include <QStringList>

namespace zelto {

// The one of `words` that `typed` becomes with the fewest letters changed, added, left out or swapped with their
// neighbour, letter case aside, or that begins with it; empty where none is near enough to be worth asking.
QString nearestWord(const QString& typed, const QStringList& words);

}  // namespace zelto
