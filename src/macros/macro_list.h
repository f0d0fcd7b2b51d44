// SPDX-License-Identifier: GPL-3.0-or-later
// The macros and special characters an editor offers, and what choosing one does. Any thread.
#pragma once

#include "metadata/image_properties.h"
#include "records/macro.h"

#include <QList>
#include <QStringList>
#include <QVariantMap>

namespace zelto {

// The rows every macro list starts with, running number first.
QList<Macro> fixedMacros();

enum class MetadataKind { Exif, Iptc };

// Appends a row for each value of `dictionary`, in the order of its keys, those of nested dictionaries
// included: "EXIF:FNumber" with the token "<<EXIF:FNumber>>".
void AddMetadata(QList<Macro>& list, const QVariantMap& dictionary, MetadataKind kind);

// The rows of a photo: EXIF, then IPTC.
QList<Macro> metadataMacros(const ImageProperties& properties);

enum class MacroAction { InsertToken, OpenDateFormat, OpenAutoNumber };

// How a row is chosen. A double click on an IPTC date inserts its token, the insert command asks for a
// format.
enum class MacroGesture { InsertMacro, DoubleClick };

// What choosing `list`[`row`] does, `list` starting with the fixed rows. Rows outside it insert nothing of
// their own.
MacroAction macroAction(const QList<Macro>& list, qsizetype row, MacroGesture gesture);

// One character for each code from 128 to 255 of Windows-1252, in their order. The five codes which that set
// leaves open hold characters of use on photos.
QStringList specialCharacters();

}  // namespace zelto
