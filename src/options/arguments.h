// SPDX-License-Identifier: GPL-3.0-or-later
// Reading a command line by a program's table. Any thread.
#pragma once

#include "options/option_table.h"
#include "platform/result.h"

#include <QStringList>

#include <vector>

namespace zelto {

struct GivenOption {
    QString name;
    QString value;  // null for a switch
};

struct GivenArguments {
    std::vector<GivenOption> options;  // in the table's order, each once: of several, the last one counts
    QStringList others;                // photos, folders and the like
};

// `arguments` without the program's name. Error: ErrorCode::InvalidValue, naming the option, and the one that was
// probably meant.
Result<GivenArguments> readArguments(const ProgramManual& manual, const QStringList& arguments);

}  // namespace zelto
