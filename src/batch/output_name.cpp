// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_name.h"

#include "batch/path_parts.h"
#include "macros/auto_number.h"

#include <QFileInfo>

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

QString filledPattern(const QString& pattern, const QString& originalName, const OutputPlace& place) {
    const QString number = QString::number(place.row + 1);
    const QString month = twoDigits(place.today.month());
    const QString day = twoDigits(place.today.day());
    const QString year = QString::number(place.today.year());
    return QString(pattern)
        .replace(QLatin1String("[O]"), originalName)
        .replace(QLatin1String("[#]"), number)
        .replace(QLatin1String("[##]"), AdjustLength(number, 2))
        .replace(QLatin1String("[###]"), AdjustLength(number, 3))
        .replace(QLatin1String("[####]"), AdjustLength(number, 4))
        .replace(QLatin1String("[D]"), month + day + year)
        .replace(QLatin1String("[DD]"), day + month + year);
}

}  // namespace

QString outputExtension(const QString& sourcePath, const OutputOptions& options) {
    const QString extension = options.OutputFormat == SameAsSourceFormat
                                  ? pathExtension(lastPathComponent(sourcePath)).toLower()
                                  : asFileName(options.OutputFormat);
    return QLatin1Char('.') + extension;
}

QString outputName(const OutputPlace& place, const OutputOptions& options) {
    const QString originalName = withoutPathExtension(lastPathComponent(place.sourcePath));
    if (!options.Rename) return originalName;
    // An empty name would give every photo the same hidden file.
    const QString name = asFileName(filledPattern(options.RenameFormat.trimmed(), originalName, place));
    return name.isEmpty() ? originalName : name;
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

QString combinedPdfPath(const QString& folder) {
    QString number;
    for (int k = 1;; ++k) {
        const QString path =
            joinedPath(folder, QLatin1String("WatermarkedPhotos") + number + QLatin1String(".pdf"));
        const QFileInfo info(path);
        if (!info.exists() && !info.isSymLink()) return path;
        number = QString::number(k);
    }
}

}  // namespace zelto
