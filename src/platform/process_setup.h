// SPDX-License-Identifier: GPL-3.0-or-later
// What both programs do before anything else, so that whoever started them cannot make them lose work.
#pragma once

#include "platform/result.h"

#include <QByteArray>

namespace zelto {

// Opens the null device for standard input, output and error where they are closed: the first photo opened would
// otherwise get their number and be written over by a message. Has a reader that goes away (SIGPIPE) and a file that
// grows too large (SIGXFSZ) show as errors of the call instead of ending the process. Call it before the first thread.
void prepareProcess();

// Starts the threads on which Qt draws large pictures, and keeps them. Qt starts them when it first draws one, and where
// the system then refuses (a limit of threads or memory) waits for them for ever. Error where not even one could be
// started. Needs an application object.
Result<void> startDrawingThreads();

// Has what libraries print on standard error by themselves go nowhere: some know no other way to be quiet. What the
// program itself has to say there goes through printError().
void keepLibrariesQuiet();

// Writes `text` to standard error, in one piece where that takes it. What it does not take is lost. Any thread.
void printError(const QByteArray& text);

}  // namespace zelto
