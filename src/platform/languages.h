// SPDX-License-Identifier: GPL-3.0-or-later
// Which language the programs speak. The translations are built into them; those of Qt's own dialogs come with Qt.
// Main thread only, with an application object.
#pragma once

#include <QString>
#include <QStringList>

namespace zelto {

// The first language of `wanted` (codes such as "de-AT", the dearest first) that there is a translation into, without
// its country; "en", the language of the source, where there is none.
QString languageFor(const QStringList& wanted);

// Has the program speak `language`, a code that languageFor() gave, from here on and lie in its direction. What was
// already said or shown stays.
void speakLanguage(const QString& language);

// The language spoken now, as such a code.
QString spokenLanguage();

// Speaks the language that the environment asks for, as gettext reads it: LANGUAGE, LC_ALL, LC_MESSAGES, LANG, and
// English in the locale C.
void speakUsersLanguage();

}  // namespace zelto
