// SPDX-License-Identifier: GPL-3.0-or-later
// Expanding the macros of a watermark text for one photo. Values in, values out: reentrant, any thread.
#pragma once

#include "macros/auto_number.h"
#include "metadata/image_properties.h"

#include <QDateTime>
#include <QLocale>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace zelto {

// What an expansion knows of the photo and its place in the list.
struct MacroContext {
    QString photoPath;
    QSize pixelSize;     // of the photo itself, upright, without a border
    double dpiX = 72.0;  // of the upright photo; 72 where none is recorded
    double dpiY = 72.0;
    qint64 row = 0;       // place in the photo list, from 0
    qint64 listSize = 0;  // photos in the list
    bool batchRunning = false;
    QDateTime now;
    QLocale locale;  // of month names, short dates and digits; userDateLocale() for the user's own
    // The photo's metadata, shared by all texts of one photo and read when a macro first asks for it. Without
    // it, a text that asks reads it anew.
    std::shared_ptr<const LazyImageProperties> properties = nullptr;
};

struct MacroExpansion {
    QString text;
    // The number to store as "LastAutoNumber" once the photo has been written: set for the last photo of a
    // running batch when the text holds a running number.
    std::optional<qint64> lastAutoNumber;
};

// `text` with every macro replaced. Never fails: a running number that cannot be placed leaves the text as
// far as it was expanded.
MacroExpansion ParseMacros(const QString& text, const MacroContext& context);

}  // namespace zelto
