// SPDX-License-Identifier: GPL-3.0-or-later
// Watermarks on the clipboard and under the pointer, as the setting file's own XML: what is copied in one window can be
// pasted in another, or into a mail. Main thread only.
#pragma once

#include "platform/result.h"
#include "records/watermark.h"

#include <QLatin1String>

#include <memory>
#include <vector>

class QMimeData;

namespace zelto {

inline constexpr QLatin1String WatermarksMimeType("application/x-zelto-watermarks+xml");

std::unique_ptr<QMimeData> watermarksAsMime(const std::vector<Watermark>& watermarks);

// Whether there is anything to paste, as far as can be told without reading it.
bool holdsWatermarks(const QMimeData& data);

// Error: ErrorCode::InvalidFile where the XML is damaged or holds no watermark.
Result<std::vector<Watermark>> watermarksOf(const QMimeData& data);

}  // namespace zelto
