// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/destination_map.h"

#include "platform/path_parts.h"

#include <algorithm>

namespace zelto {
namespace {

bool isTop(const QString& folder) {
    return folder.isEmpty() || folder == QLatin1String("/");
}

// A source folder written with ".." must not lead out of the output folder.
QString insideOutput(const QString& relative) {
    QStringList components = relative.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    std::replace(components.begin(), components.end(), QStringLiteral(".."), QStringLiteral("_"));
    return components.join(QLatin1Char('/'));
}

// The destination of a folder without an ancestor in the map.
QString topDestination(const QString& folder, const QString& outputPath) {
    return joinedPath(outputPath, insideOutput(lastPathComponent(folder)));
}

}  // namespace

std::optional<QString> GetRelativePath(const QString& candidate, const QString& folder) {
    QString relative = lastPathComponent(folder);
    for (QString ancestor = withoutLastPathComponent(folder); !isTop(ancestor);
         ancestor = withoutLastPathComponent(ancestor)) {
        relative = joinedPath(lastPathComponent(ancestor), relative);
        if (ancestor == candidate) return relative;
    }
    return std::nullopt;
}

bool HasParent(const QString& folder, const FolderDestinations& inDictionary, const QString& outputPath,
               FolderDestinations& destinations) {
    // Only the folder's own ancestors can match, so they are looked up instead of trying every key: a scan of
    // thousands of folders stays quick. The last one found is the shortest, the first in the order of the
    // keys.
    QString topmost;
    for (QString ancestor = withoutLastPathComponent(folder); !isTop(ancestor);
         ancestor = withoutLastPathComponent(ancestor)) {
        if (inDictionary.contains(ancestor)) topmost = ancestor;
    }
    if (topmost.isEmpty()) return false;
    const auto place = destinations.find(folder);
    if (place != destinations.end())
        *place = joinedPath(outputPath, insideOutput(*GetRelativePath(topmost, folder)));
    return true;
}

QString destinationOf(const QString& folder, const FolderDestinations& sources, const QString& outputPath) {
    FolderDestinations destination = {{folder, QString()}};
    return HasParent(folder, sources, outputPath, destination) ? destination.value(folder)
                                                               : topDestination(folder, outputPath);
}

QStringList resolveDestinations(FolderDestinations& destinations, const QString& outputPath) {
    QStringList topFolders;
    const FolderDestinations sources = destinations;
    for (const QString& folder : sources.keys()) {
        if (HasParent(folder, sources, outputPath, destinations)) continue;
        const QString destination = topDestination(folder, outputPath);
        destinations[folder] = destination;
        topFolders.append(destination);
    }
    return topFolders;
}

}  // namespace zelto
