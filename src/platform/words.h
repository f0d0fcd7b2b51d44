// SPDX-License-Identifier: GPL-3.0-or-later
// What users read, in their language: Words::tr("The folder “%1” cannot be made.").arg(path). Every text that a user of
// either program may see is marked so, or with a widget's own tr(); its English is the source. A sentence is marked
// whole and never glued from pieces; what depends on a number takes it as tr("%Ln photo(s)", nullptr, number). Not
// marked are what programs read (options, elements of files, keys and kinds of reports) and what goes to a log.
// tr() may be called on any thread. What is made before the program runs, such as a table, holds a MarkedText.
#pragma once

#include <QCoreApplication>
#include <QString>

namespace zelto {

class Words {
    Q_DECLARE_TR_FUNCTIONS(Words)
};

// A marked text that becomes one in the user's language wherever a QString is asked for:
// MarkedText(QT_TRANSLATE_NOOP("Words", "Watermarking failed.")).
class MarkedText {
  public:
    constexpr explicit MarkedText(const char* source) : source_(source) {}
    operator QString() const { return Words::tr(source_); }  // NOLINT(google-explicit-constructor)

  private:
    const char* source_;
};

}  // namespace zelto
