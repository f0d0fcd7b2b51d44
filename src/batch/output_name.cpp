// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_name.h"

#include "macros/auto_number.h"
#include "platform/path_parts.h"

#include <QFileInfo>

#include <array>

namespace zelto {
namespace {

QString twoDigits(int number) {
    return AdjustLength(QString::number(number), 2);
}

// A pattern or a name taken from elsewhere may hold separators; as part of a file name they would name a
// folder.
QString asFileName(QString name) {
    return name.replace(QLatin1Char('/'), QLatin1Char('_')).replace(QChar(u'\0'), QLatin1Char('_'));
}

// What a macro stands for in the name of one output.
struct NameParts {
    QString original;
    QString number;
    QString month;
    QString day;
    QString year;
};

struct NameMacro {
    QLatin1String token;
    const char* label;
    QString (*text)(const NameParts&);
};

// In the order they are filled in.
constexpr std::array NameMacros = {
    NameMacro{QLatin1String("[O]"), "Original name", [](const NameParts& parts) { return parts.original; }},
    NameMacro{QLatin1String("[#]"), "Number", [](const NameParts& parts) { return parts.number; }},
    NameMacro{QLatin1String("[##]"), "Number, two digits",
              [](const NameParts& parts) { return AdjustLength(parts.number, 2); }},
    NameMacro{QLatin1String("[###]"), "Number, three digits",
              [](const NameParts& parts) { return AdjustLength(parts.number, 3); }},
    NameMacro{QLatin1String("[####]"), "Number, four digits",
              [](const NameParts& parts) { return AdjustLength(parts.number, 4); }},
    NameMacro{QLatin1String("[D]"), "Date: month, day, year",
              [](const NameParts& parts) { return parts.month + parts.day + parts.year; }},
    NameMacro{QLatin1String("[DD]"), "Date: day, month, year",
              [](const NameParts& parts) { return parts.day + parts.month + parts.year; }},
};

QString filledPattern(QString pattern, const QString& originalName, const OutputPlace& place) {
    const NameParts parts{originalName, QString::number(place.row + 1), twoDigits(place.today.month()),
                          twoDigits(place.today.day()), QString::number(place.today.year())};
    for (const NameMacro& macro : NameMacros) pattern.replace(macro.token, macro.text(parts));
    return pattern;
}

}  // namespace

QList<Macro> renameMacros() {
    QList<Macro> macros;
    for (const NameMacro& macro : NameMacros) macros.append({macro.token, QString::fromLatin1(macro.label)});
    return macros;
}

bool combinesIntoOnePdf(const OutputOptions& options) {
    return options.CombineToSinglePDF &&
           options.OutputFormat.compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0;
}

QString outputExtension(const QString& sourcePath, const OutputOptions& options) {
    const QString extension = options.OutputFormat == SameAsSourceFormat
                                  ? pathExtension(lastPathComponent(sourcePath)).toLower()
                                  : asFileName(options.OutputFormat);
    return QLatin1Char('.') + extension;
}

QString outputName(const OutputPlace& place, const OutputOptions& options) {
    const QString originalName = withoutPathExtension(lastPathComponent(place.sourcePath));
    QString name;
    if (options.Rename) name = asFileName(filledPattern(options.RenameFormat.trimmed(), originalName, place));
    // An empty name would give every photo the same hidden file.
    if (name.isEmpty()) name = originalName;
    return place.number == 0 ? name : name + QString::number(place.number);
}

QString outputFolder(const QString& sourcePath, const OutputOptions& options,
                     const FolderDestinations& destinations) {
    const QString destination =
        options.KeepDirectoryStructure ? destinations.value(withoutLastPathComponent(sourcePath)) : QString();
    return destination.isEmpty() ? options.OutputPath : destination;
}

QString outputPath(const OutputPlace& place, const OutputOptions& options,
                   const FolderDestinations& destinations) {
    return joinedPath(outputFolder(place.sourcePath, options, destinations),
                      outputName(place, options) + outputExtension(place.sourcePath, options));
}

bool isTaken(const QString& path) {
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

QString combinedPdfPath(const QString& folder) {
    QString number;
    for (int k = 1;; ++k) {
        const QString path =
            joinedPath(folder, QLatin1String("WatermarkedPhotos") + number + QLatin1String(".pdf"));
        if (!isTaken(path)) return path;
        number = QString::number(k);
    }
}

}  // namespace zelto
