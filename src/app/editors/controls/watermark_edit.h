// SPDX-License-Identifier: GPL-3.0-or-later
// What a control does to the record being edited. A control never keeps the record: it says what is to change,
// and shows what it is then loaded with.
#pragma once

#include "records/watermark.h"

#include <functional>

namespace zelto {

using WatermarkEdit = std::function<void(Watermark&)>;

}  // namespace zelto
