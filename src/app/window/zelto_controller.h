// SPDX-License-Identifier: GPL-3.0-or-later
// The actions of the main window that belong neither to the photo list nor to the watermark list: the full
// screen, adding files and folders, sorting photos, starting a run, tips and the version check. Thin: it opens the
// dialogs it was given and hands on what they return. Main thread only.
#pragma once

#include "app/photos/folder_import.h"
#include "app/window/dialog_set.h"

#include <QObject>
#include <QWidget>

namespace zelto {

class ImageListController;
class MyGlobalInstance;
class PhotoPreview;
class WatermarkController;

class ZeltoController : public QObject {
    Q_OBJECT

  public:
    // What the program shares and the dialogs it has; `window` is the parent of the dialogs. All outlive the
    // controller.
    ZeltoController(ImageListController& photos, WatermarkController& watermarks, PhotoPreview& preview,
                    MyGlobalInstance& shared, DialogSet dialogs, QWidget* window);

    const DialogSet& dialogs() const { return dialogs_; }

    void ShowFullScreenImage();

    void Addimages();
    void OpenAddFolderWindow();
    // Adds the photos of a folder once they are found; the window goes on meanwhile.
    void ImportImagesFromFolder(const QString& folder, bool includeSubFolders, const QString& extensionList);
    // The same for files and folders in any order; of the folders, the photos that lie directly in them, or everywhere
    // below them.
    void importPaths(const QStringList& paths, bool includeSubFolders = false);
    // Files and folders that were dropped or pasted, the folders with all that is below them. Setting files are loaded,
    // as loadSettings() does.
    void bringFiles(const QStringList& paths);
    // Loads the setting files among `paths`, each as a step of the history: the last one stays. Tells the user of those
    // that cannot be loaded. Returns the other paths.
    QStringList loadSettings(const QStringList& paths);
    // Puts the photo list into another order.
    void sortByName();
    void sortByDateTaken();
    void StartWatermarking();
    void ShowTips();
    void CheckLatestVersion();

  Q_SIGNALS:
    // The user has confirmed the options of a run: it is to begin.
    void ProcessImaging(const zelto::OutputOptions& options);

  private:
    void import(FolderImport::Scan scan);

    ImageListController& photos_;
    WatermarkController& watermarks_;
    PhotoPreview& preview_;
    MyGlobalInstance& shared_;
    DialogSet dialogs_;
    QWidget* window_;
};

}  // namespace zelto
