// SPDX-License-Identifier: GPL-3.0-or-later
// What a watermark setting holds, in words. Any thread.
#pragma once

#include "records/watermark_stack.h"

#include <QString>

namespace zelto {

// Lines for a terminal: what is done to the whole photo, then layer by layer, the lowest first. What the setting's
// author wrote is shown printable. `name` stands for the setting.
QString settingText(const WatermarkStack& stack, const QString& name);

}  // namespace zelto
