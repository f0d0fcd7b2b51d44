// SPDX-License-Identifier: GPL-3.0-or-later
// The page of a text or of a logo: what both kinds have, which is their transparency, rotation, place and tiling. Main
// thread only.
#pragma once

#include "app/editors/controls/watermark_page.h"

#include <functional>

namespace zelto {

class WatermarkWindowController : public WatermarkPage {
    Q_OBJECT

  protected:
    using WatermarkPage::WatermarkPage;

    // The group of what `makeLook` makes, with the transparency below it.
    void addLook(const std::function<QWidget*(QWidget* parent)>& makeLook);
    // Rotation and position, and the tiling.
    void addPlaceAndTiling();
};

}  // namespace zelto
