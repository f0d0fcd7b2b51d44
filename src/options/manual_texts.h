// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that tells of a program's options, made from its table, in UTF-8: help, manual page and the page of all
// options in the user's language, completions in English. Any thread.
#pragma once

#include "options/option_table.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace zelto {

// What --help prints: examples first, then the options by groups.
QString helpText(const ProgramManual& manual);

// A manual page of section 1, as groff reads it.
QByteArray manualPage(const ProgramManual& manual);

// Completions of the options and their values. Saved settings are asked of `zelto-batch --list-settings` at the
// moment they are completed; their names are never run as commands.
QByteArray bashCompletion(const ProgramManual& manual);
QByteArray zshCompletion(const ProgramManual& manual);
QByteArray fishCompletion(const ProgramManual& manual);

// A page of all options in Markdown.
QByteArray optionsPage(const ProgramManual& manual);

// The words that generatedText() knows.
inline constexpr const char* GeneratedKinds = "man bash zsh fish markdown";
// One of the above by its word; null for any other.
QByteArray generatedText(const ProgramManual& manual, const QString& kind);

}  // namespace zelto
