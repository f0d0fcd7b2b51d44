// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/rename_pattern.h"

#include "macros/photo_macros.h"
#include "platform/path_parts.h"
#include "platform/words.h"

#include <array>

namespace zelto {
namespace {

using namespace Qt::StringLiterals;

// A name has room for 255 bytes; a few values, a number and an extension are to fit.
constexpr qsizetype MostBytesOfAValue = 100;

// What a bracket macro stands for in the name of one output.
struct NameParts {
    QString original;
    QString number;
    QString month;
    QString day;
    QString year;
};

struct NameMacro {
    QLatin1String token;
    MarkedText label;
    QString (*text)(const NameParts&);
};

// In the order they are filled in.
constexpr std::array NameMacros = {
    NameMacro{"[O]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Original name")),
              [](const NameParts& parts) { return parts.original; }},
    NameMacro{"[#]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Number")),
              [](const NameParts& parts) { return parts.number; }},
    NameMacro{"[##]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Number, two digits")),
              [](const NameParts& parts) { return AdjustLength(parts.number, 2); }},
    NameMacro{"[###]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Number, three digits")),
              [](const NameParts& parts) { return AdjustLength(parts.number, 3); }},
    NameMacro{"[####]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Number, four digits")),
              [](const NameParts& parts) { return AdjustLength(parts.number, 4); }},
    NameMacro{"[D]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Date: month, day, year")),
              [](const NameParts& parts) { return parts.month + parts.day + parts.year; }},
    NameMacro{"[DD]"_L1, MarkedText(QT_TRANSLATE_NOOP("Words", "Date: day, month, year")),
              [](const NameParts& parts) { return parts.day + parts.month + parts.year; }},
};

// Of the macros of texts, those worth a place in a menu.
constexpr std::array<std::pair<const char*, MarkedText>, 6> TextMacros = {{
    {"<<EXIF:DateTimeOriginal[Y-M-D]>>", MarkedText(QT_TRANSLATE_NOOP("Words", "Date taken"))},
    {"<<EXIF:DateTimeOriginal[H-N-S]>>", MarkedText(QT_TRANSLATE_NOOP("Words", "Time taken"))},
    {"<<IPTC:ObjectName>>", MarkedText(QT_TRANSLATE_NOOP("Words", "Title"))},
    {"<<IPTC:City>>", MarkedText(QT_TRANSLATE_NOOP("Words", "City"))},
    {"<<PHOTOWIDTH>>", MarkedText(QT_TRANSLATE_NOOP("Words", "Photo width"))},
    {"<<PHOTOHEIGHT>>", MarkedText(QT_TRANSLATE_NOOP("Words", "Photo height"))},
}};

QString filledBrackets(QString text, const NameParts& parts) {
    for (const NameMacro& macro : NameMacros) text.replace(macro.token, macro.text(parts));
    return text;
}

// What a macro printed, with nothing in it that a file system or a reader of names could take for something else.
QString asValue(const QString& printed) {
    QString value;
    qsizetype bytes = 0;
    const QList<uint> characters = printed.simplified().toUcs4();
    for (const char32_t character : characters) {
        const QChar::Category category = QChar::category(character);
        // Such as those that have a name read from right to left.
        if (category == QChar::Other_Format || category == QChar::Other_Surrogate) continue;
        const bool isRefused = category == QChar::Other_Control ||
                               (character < 0x80 && "\\/:*?\"<>|"_L1.contains(QChar(character))) ||
                               (character == U'.' && value.isEmpty());
        const QString next = isRefused ? u"_"_s : QString::fromUcs4(&character, 1);
        bytes += next.toUtf8().size();
        if (bytes > MostBytesOfAValue) break;
        value += next;
    }
    return value;
}

}  // namespace

QList<Macro> renameMacros() {
    QList<Macro> macros;
    for (const NameMacro& macro : NameMacros) macros.append({macro.token, macro.label});
    for (const auto& [token, label] : TextMacros) macros.append({QString::fromLatin1(token), label});
    return macros;
}

bool asksPhotos(const QString& pattern) {
    return pattern.contains("<<"_L1);
}

MacroContext renameContext(const QString& pattern, const QString& path, qint64 row, const QDateTime& now,
                           const QLocale& locale) {
    const bool asksHeaders = pattern.contains("<<PHOTO"_L1);
    return (asksHeaders ? photoMacroContext : unreadMacroContext)(path, row, now, locale);
}

// Macro by macro: what one prints is never read as part of another.
QString filledPattern(const QString& pattern, const NamedPhoto& photo, const MacroContext* macros) {
    const NameParts parts{withoutPathExtension(lastPathComponent(photo.path)), QString::number(photo.row + 1),
                          AdjustLength(QString::number(photo.today.month()), 2),
                          AdjustLength(QString::number(photo.today.day()), 2),
                          QString::number(photo.today.year())};
    const QString text = pattern.trimmed();
    QString filled;
    qsizetype plain = 0;  // where what is not yet filled in begins
    for (qsizetype open = text.indexOf("<<"_L1); macros != nullptr && open >= 0;) {
        const qsizetype close = text.indexOf(">>"_L1, open);
        if (close < 0) break;
        const QString token = text.sliced(open, close + 2 - open);
        const QString printed = ParseMacros(token, *macros).text;
        if (printed == token) {
            open = text.indexOf("<<"_L1, open + 2);  // no macro
            continue;
        }
        filled += filledBrackets(text.sliced(plain, open - plain), parts) + asValue(printed);
        plain = close + 2;
        open = text.indexOf("<<"_L1, plain);
    }
    return asFileName(filled + filledBrackets(text.sliced(plain), parts));
}

QString asFileName(QString text) {
    return text.replace(u'/', u'_').replace(QChar(u'\0'), u'_');
}

}  // namespace zelto
