// SPDX-License-Identifier: GPL-3.0-or-later
#include "macros/macro_list.h"

#include "metadata/windows1252.h"
#include "platform/words.h"

#include <algorithm>
#include <iterator>

namespace zelto {
namespace {

struct FixedRow {
    MarkedText text;
    QLatin1String name;
    MacroAction action;
};

constexpr FixedRow FixedRows[] = {
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Auto Number")), QLatin1String(""), MacroAction::OpenAutoNumber},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Today's Date")), QLatin1String("<<TODAYDATE>>"),
     MacroAction::OpenDateFormat},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Image Name (Without Extension)")), QLatin1String("<<IMGNAME>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Image Name (With Extension)")), QLatin1String("<<IMGNAMEEXT>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Folder Name")), QLatin1String("<<FOLDER>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Full Image Path")), QLatin1String("<<FULLPATH>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Creation Date")), QLatin1String("<<CREATEDATE>>"),
     MacroAction::OpenDateFormat},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Modification Date")), QLatin1String("<<MODDATE>>"),
     MacroAction::OpenDateFormat},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Photo Width")), QLatin1String("<<PHOTOWIDTH>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Photo Height")), QLatin1String("<<PHOTOHEIGHT>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Photo DPI Width")), QLatin1String("<<PHOTODPIX>>"),
     MacroAction::InsertToken},
    {MarkedText(QT_TRANSLATE_NOOP("Words", "Photo DPI Height")), QLatin1String("<<PHOTODPIY>>"),
     MacroAction::InsertToken},
};

constexpr QLatin1String DateKeys[] = {
    QLatin1String("ModifyDate"),    QLatin1String("MDPrepDate"),      QLatin1String("DateTimeOriginal"),
    QLatin1String("CreateDate"),    QLatin1String("PreviewDateTime"), QLatin1String("DateTimeDigitized"),
    QLatin1String("DateSent"),      QLatin1String("ReleaseDate"),     QLatin1String("ExpirationDate"),
    QLatin1String("ReferenceDate"), QLatin1String("DateCreated"),     QLatin1String("DigitalCreationDate"),
};

QLatin1String prefixOf(MetadataKind kind) {
    return kind == MetadataKind::Exif ? QLatin1String("EXIF:") : QLatin1String("IPTC:");
}

bool isDate(QString token, MacroGesture gesture) {
    token.remove(QLatin1String("<<EXIF:")).remove(QLatin1String(">>"));
    if (gesture == MacroGesture::InsertMacro) token.remove(QLatin1String("<<IPTC:"));
    return std::ranges::find(DateKeys, token) != std::end(DateKeys);
}

}  // namespace

QList<Macro> fixedMacros() {
    QList<Macro> list;
    for (const FixedRow& row : FixedRows) list.append({row.name, row.text});
    return list;
}

void AddMetadata(QList<Macro>& list, const QVariantMap& dictionary, MetadataKind kind) {
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        if (entry->typeId() == QMetaType::QVariantMap) {
            AddMetadata(list, entry->toMap(), kind);
            continue;
        }
        const QString label = prefixOf(kind) + entry.key();
        list.append({QLatin1String("<<") + label + QLatin1String(">>"), label});
    }
}

QList<Macro> metadataMacros(const ImageProperties& properties) {
    QList<Macro> list;
    AddMetadata(list, properties.exif, MetadataKind::Exif);
    AddMetadata(list, properties.iptc, MetadataKind::Iptc);
    return list;
}

MacroAction macroAction(const QList<Macro>& list, qsizetype row, MacroGesture gesture) {
    if (row < 0 || row >= list.size()) return MacroAction::InsertToken;
    if (row < std::ssize(FixedRows)) return FixedRows[row].action;
    return isDate(list[row].MacroName, gesture) ? MacroAction::OpenDateFormat : MacroAction::InsertToken;
}

QStringList specialCharacters() {
    // For 0x81, 0x8D, 0x8F, 0x90 and 0x9D.
    constexpr char16_t Additions[] = u"\u2117\u2116\u2605\u2665\u2192";
    const char16_t* addition = Additions;
    QStringList characters;
    for (int code = 128; code <= 255; ++code) {
        const QChar character = windows1252Character(static_cast<unsigned char>(code));
        const bool isOpen = character.category() == QChar::Other_Control;
        characters += isOpen ? QChar(*addition++) : character;
    }
    return characters;
}

}  // namespace zelto
