// SPDX-License-Identifier: GPL-3.0-or-later
// The table of zelto-batch's options: what is told of each, and what it does to the command line.
#pragma once

#include "cli/command_line.h"
#include "options/option_table.h"

#include <QString>

#include <vector>

namespace zelto {

// What is wrong with a value, as a sentence that names the option; null when nothing is.
using Complaint = QString;

struct BatchOption {
    OptionText text;
    Complaint (*apply)(CommandLine& line, const OptionText& option, const QString& value);
};

struct BatchOptionGroup {
    const char* title;
    std::vector<BatchOption> options;
};

const std::vector<BatchOptionGroup>& batchOptions();

}  // namespace zelto
