// SPDX-License-Identifier: GPL-3.0-or-later
// What one saved setting holds and one run applies: the watermarks in drawing order, the photo's border and
// shadow, its filter, and whether copyright data goes into the outputs. A snapshot of it is shared by threads
// as a const value.
#pragma once

#include "records/photo_effects.h"
#include "records/watermark.h"

#include <optional>
#include <vector>

namespace zelto {

// What the user has switched off but not removed. Nothing that makes pictures looks at it.
struct SwitchedOff {
    std::optional<PhotoEffects> Effects;
    int SelectedFilter = 0;

    bool operator==(const SwitchedOff&) const = default;
};

struct WatermarkStack {
    std::vector<Watermark> Watermarks;    // first drawn first
    std::optional<PhotoEffects> Effects;  // none: the photo is not framed at all
    int SelectedFilter = 0;               // photo filter number, 0 for none
    bool Metadata = false;                // copyright data is switched on
    SwitchedOff Off{};

    bool operator==(const WatermarkStack&) const = default;
};

// What there is to switch on or off, applied or not.
inline const std::optional<PhotoEffects>& effectsOf(const WatermarkStack& stack) {
    return stack.Effects ? stack.Effects : stack.Off.Effects;
}
inline int filterOf(const WatermarkStack& stack) {
    return stack.SelectedFilter != 0 ? stack.SelectedFilter : stack.Off.SelectedFilter;
}

}  // namespace zelto
