// SPDX-License-Identifier: GPL-3.0-or-later
// What zelto-batch tells instead of running: saved settings, fonts, what a setting or the options hold, whether the
// machine has what a run needs. Nothing is written. Needs the application object.
#pragma once

#include "cli/command_line.h"
#include "platform/result.h"

#include <QByteArray>
#include <QString>

namespace zelto {

struct Answer {
    QByteArray text;  // for standard output
    QString note;     // for standard error; may be empty
    int exitStatus = 0;
};

// For a line whose task asks for such a thing. Error: what cannot be used.
Result<Answer> answerTo(const CommandLine& line);

}  // namespace zelto
