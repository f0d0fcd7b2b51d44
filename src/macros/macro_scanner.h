// SPDX-License-Identifier: GPL-3.0-or-later
// Finding macros in a text: what the regular expressions named below would find without regard to case, in
// time that grows with the length of the text only, and in any text at all (halves of surrogate pairs
// included). Positions are UTF-16 code units; matches come in order and never overlap. Any thread.
#pragma once

#include <QList>
#include <QString>

namespace zelto {

struct MacroMatch {
    qsizetype position = 0;
    qsizetype length = 0;
};

// Matches of prefix(.*?)suffix: the nearest suffix counts, and it stands on the prefix's line.
QList<MacroMatch> findEnclosed(QStringView text, QLatin1String prefix, QLatin1String suffix);

// Matches of <<AUTO:#*\d*\+*\d*>>, digits being 0 to 9.
QList<MacroMatch> findRunningNumbers(QStringView text);

}  // namespace zelto
