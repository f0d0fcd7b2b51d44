// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs the window opens, each a function that shows it over `parent` and returns what the user chose.
// A place may be empty: then the window does not offer what would open it. Tests put their own answers here.
// Main thread only.
#pragma once

#include "app/common/messages.h"
#include "records/output_options.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

namespace zelto {

class ImageListController;
class MyGlobalInstance;
class WatermarkController;

// A folder to scan for photos, as the add-folder dialog returns it.
struct FolderChoice {
    QString folder;
    bool includeSubFolders = false;
    QString extensionList;  // see GetExtensionList
};

struct DialogSet {
    // Files to add, from `startFolder` (empty for anywhere). Nothing where it was cancelled.
    std::function<QStringList(QWidget* parent, const QString& startFolder)> choosePhotos;
    std::function<std::optional<FolderChoice>(QWidget* parent)> chooseFolder;
    // The options of a run; nothing where none is to be started. `metadataPresent` tells whether there is
    // copyright data to write.
    std::function<std::optional<OutputOptions>(QWidget* parent, ImageListController& photos,
                                               WatermarkController& watermarks, bool metadataPresent)>
        outputOptions;

    // The settings library.
    std::function<void(QWidget* parent, WatermarkController& watermarks)> saveSettings;
    std::function<void(QWidget* parent, WatermarkController& watermarks)> openSettings;
    std::function<void(QWidget* parent)> importSettings;
    std::function<void(QWidget* parent)> exportSettings;

    std::function<void(QWidget* parent)> guide;
    std::function<void(QWidget* parent, MyGlobalInstance& shared)> tips;
    std::function<void(QWidget* parent)> versionCheck;
};

}  // namespace zelto
