// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of texts and of logos: a page for how the watermark looks and a page for where it stands, of either kind,
// and what only one of the two kinds has. Main thread only.
#pragma once

#include "app/editors/controls/editor_panel.h"

#include <QTabWidget>

namespace zelto {

class WatermarkWindowController : public RecordPanel {
    Q_OBJECT

  protected:
    using RecordPanel::RecordPanel;

    QTabWidget* makePages();
    // The page of `look`, with the transparency below it.
    QWidget* makeLookPage(QWidget* look);
    // Rotation, position and tiling.
    QWidget* makePlacePage();
};

}  // namespace zelto
