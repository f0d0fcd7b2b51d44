// SPDX-License-Identifier: GPL-3.0-or-later
// What users read, in their language: Words::tr("The folder “%1” cannot be made.").arg(path). Every text that a user of
// either program may see is marked so, or with a widget's own tr(); its English is the source. A sentence is marked
// whole and never glued from pieces; what depends on a number takes it as tr("%Ln photo(s)", nullptr, number). Not
// marked are what programs read (options, elements of files, keys and kinds of reports) and what goes to a log.
// tr() may be called on any thread. Tables that are made before the program runs hold
// QT_TRANSLATE_NOOP("zelto::Words", "...") and call tr() on it when they are read.
#pragma once

#include <QCoreApplication>

namespace zelto {

class Words {
    Q_DECLARE_TR_FUNCTIONS(zelto::Words)
};

}  // namespace zelto
