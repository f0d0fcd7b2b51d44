// SPDX-License-Identifier: GPL-3.0-or-later
// Where the photos of each source folder go when a run keeps the directory structure: below the output folder, at the
// path they have from the topmost of their folders that holds photos itself. Folders are compared as plain text. Values
// in, values out; any thread.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace zelto {

// Source folder -> destination folder; a destination is empty until resolveDestinations has filled it. The
// order of the keys matters: of two ancestors of one folder the shorter, met first, decides.
using FolderDestinations = QMap<QString, QString>;

// The path of `folder` below the parent of `candidate`, so with candidate's own name in front ("/p/a" and
// "/p/a/b" give "a/b"); nothing where `candidate` is not an ancestor of `folder`. The root never counts as one.
std::optional<QString> GetRelativePath(const QString& candidate, const QString& folder);

// Whether a key of `inDictionary` is an ancestor of `folder`. If so, and if `destinations` has the folder,
// its destination below `outputPath` is stored there.
bool HasParent(const QString& folder, const FolderDestinations& inDictionary, const QString& outputPath,
               FolderDestinations& destinations);

// Where the photos of `folder` go when the map knows the source folders `sources`.
QString destinationOf(const QString& folder, const FolderDestinations& sources, const QString& outputPath);

// Fills in every destination and returns those of the folders without an ancestor in the map, in key order.
QStringList resolveDestinations(FolderDestinations& destinations, const QString& outputPath);

}  // namespace zelto
