// SPDX-License-Identifier: GPL-3.0-or-later
// What both programs do before anything else, so that whoever started them cannot make them lose work.
#pragma once

namespace zelto {

// Opens the null device for standard input, output and error where they are closed: the first photo opened would
// otherwise get their number and be written over by a message. Has a reader that goes away (SIGPIPE) and a file that
// grows too large (SIGXFSZ) show as errors of the call instead of ending the process. Call it before the first thread.
void prepareProcess();

}  // namespace zelto
