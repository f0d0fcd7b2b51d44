// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold before a run may start with its output options. Any thread.
#pragma once

#include "records/output_options.h"

#include <QString>

#include <optional>

namespace zelto {

// A message for the user: its title and its informative text.
struct OptionsProblem {
    QString title;
    QString text;

    bool operator==(const OptionsProblem&) const = default;
};

// The first thing that keeps a run from starting with `options`, if any. A longer side of 0 or less counts as an empty
// field. Looks at the disk.
std::optional<OptionsProblem> outputOptionsProblem(const OutputOptions& options);

}  // namespace zelto
