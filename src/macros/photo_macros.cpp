// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/photo_macros.h"

#include "macros/macro_list.h"
#include "pictures/picture_needs.h"
#include "pictures/picture_reader.h"
#include "platform/dates.h"

#include <memory>

namespace zelto {

MacroContext unreadMacroContext(const QString& path, qint64 row, const QDateTime& now,
                                const QLocale& locale) {
    MacroContext context;
    context.photoPath = path;
    context.row = row;
    context.now = now;
    context.locale = locale;
    context.properties = std::make_shared<LazyImageProperties>(path);
    return context;
}

MacroContext photoMacroContext(const QString& path, qint64 row, const QDateTime& now, const QLocale& locale) {
    MacroContext context = unreadMacroContext(path, row, now, locale);
    if (const Result<PictureNeeds> photo = readPictureNeeds(path)) {
        context.pixelSize = photo->size;
        context.dpiX = photo->dpiX;
        context.dpiY = photo->dpiY;
    }
    return context;
}

PhotoMacros macrosOfPhoto(const QString& path, qint64 row, const QDateTime& now, const QLocale& locale) {
    PhotoMacros macros{fixedMacros(), {}};
    if (path.isEmpty()) {
        // Only the date of today is the same everywhere.
        macros.values.resize(macros.list.size());
        macros.values[1] = formatShortDate(now, locale);
        return macros;
    }
    const MacroContext context = photoMacroContext(path, row, now, locale);
    macros.list += metadataMacros(context.properties->get());
    const QString countByOne = GenerateAutoMacro({});
    for (const Macro& macro : macros.list) {
        const QString& token = macro.MacroName.isEmpty() ? countByOne : macro.MacroName;
        macros.values += ParseMacros(token, context).text;
    }
    return macros;
}

}  // namespace zelto
