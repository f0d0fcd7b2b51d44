// SPDX-License-Identifier: GPL-3.0-or-later
// Whether this machine has what a run needs.
#pragma once

#include <QString>

namespace zelto {

struct Findings {
    QString text;  // a line each, and what to do where something is missing
    bool isAllThere = true;
};

// Looks at the disk, starts exiftool, and writes nothing. `outputFolder` is looked at as well unless it is empty. Needs
// the application object.
Findings examineMachine(const QString& outputFolder);

}  // namespace zelto
