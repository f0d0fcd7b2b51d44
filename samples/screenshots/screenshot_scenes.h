// SPDX-License-Identifier: GPL-3.0-or-later
// What docs/images and the images of the guide show, a row a picture. A new picture is a new row.
#pragma once

#include "samples/screenshots/stage.h"

#include <functional>
#include <string>
#include <vector>

namespace zelto::samples {

struct ScreenshotScene {
    enum class Look { Light, Dark };
    enum class Shot { Window, Dialog, Inspector };  // everything, the dialog that was opened last, the page

    std::string name;  // of the picture's file, without extension
    Look look;
    double scale;  // device pixels a pixel
    Shot shot;
    // Sets the scene; may open a dialog that blocks.
    std::function<void(Stage& stage)> set;
    // Whether the scene is set; asked again and again, within the event loop of a dialog too.
    bool (*isSet)(Stage& stage);
    const char* language = "en";
};

const std::vector<ScreenshotScene>& screenshotScenes();

}  // namespace zelto::samples
