// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/output_name.h"

#include "batch/rename_pattern.h"
#include "pictures/picture_names.h"
#include "platform/path_parts.h"

#include <QFileInfo>

namespace zelto {

bool combinesIntoOnePdf(const OutputOptions& options) {
    return options.CombineToSinglePDF &&
           options.OutputFormat.compare(QLatin1String("pdf"), Qt::CaseInsensitive) == 0;
}

QString outputExtension(const QString& sourcePath, const OutputOptions& options) {
    const QString extension = options.OutputFormat == SameAsSourceFormat
                                  ? writtenExtension(pathExtension(lastPathComponent(sourcePath)))
                                  : asFileName(options.OutputFormat);
    return QLatin1Char('.') + extension;
}

QString outputName(const OutputPlace& place, const OutputOptions& options) {
    const QString originalName = withoutPathExtension(lastPathComponent(place.sourcePath));
    QString name = place.name;
    if (name.isEmpty() && options.Rename)
        name = filledPattern(options.RenameFormat, {place.sourcePath, place.row, place.today});
    // An empty name would give every photo the same hidden file.
    if (name.isEmpty()) name = originalName;
    return place.number == 0 ? name : name + QString::number(place.number);
}

bool takesNamesFromPhotos(const OutputOptions& options) {
    return options.Rename && asksPhotos(options.RenameFormat);
}

QString nameFromPhoto(const NamedPhoto& photo, const OutputOptions& options, const MacroContext& macros) {
    const QString name = filledPattern(options.RenameFormat, photo, &macros);
    return name.isEmpty() ? withoutPathExtension(lastPathComponent(photo.path)) : name;
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
