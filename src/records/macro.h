// SPDX-License-Identifier: GPL-3.0-or-later
// One row of the macro list an editor offers.
#pragma once

#include <QString>

namespace zelto {

struct Macro {
    QString MacroName;  // the token inserted into a text; empty where a dialog composes it
    QString MacroText;  // the label shown

    bool operator==(const Macro&) const = default;
};

}  // namespace zelto
