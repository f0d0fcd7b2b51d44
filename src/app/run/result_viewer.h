// SPDX-License-Identifier: GPL-3.0-or-later
// Showing what a run has made with the programs of the desktop. Main thread only.
#pragma once

#include "batch/batch_observer.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace zelto {

struct ResultViewer {
    // Opens a file with the program for its kind.
    std::function<void(const QString& path)> open;
    // Shows files and folders, selected, where they lie.
    std::function<void(const QStringList& paths)> reveal;
};

// The desktop's own: its file manager, or where that cannot be asked to select, the folders.
ResultViewer desktopResultViewer();

// Shows the result of a run; nothing where there is none.
void ShowOutputImages(const RunReport& report, const ResultViewer& viewer);

}  // namespace zelto
