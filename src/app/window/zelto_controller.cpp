// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/zelto_controller.h"

#include "app/common/my_global_instance.h"
#include "app/photos/image_list_controller.h"
#include "app/preview/photo_preview.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/full_screen_view.h"
#include "batch/folder_scan.h"
#include "persistence/settings_library.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace zelto {

ZeltoController::ZeltoController(ImageListController& photos, WatermarkController& watermarks,
                                 PhotoPreview& preview, MyGlobalInstance& shared, DialogSet dialogs,
                                 QWidget* window)
    : QObject(window),
      photos_(photos),
      watermarks_(watermarks),
      preview_(preview),
      shared_(shared),
      dialogs_(std::move(dialogs)),
      window_(window) {}

void ZeltoController::ShowFullScreenImage() {
    if (photos_.selectedRow() < 0) return;
    const auto step = [this](int photos) {
        photos_.step(photos);
        return preview_.finalRequest();
    };
    FullScreenView::open(preview_.finalRequest(), step, window_);
}

void ZeltoController::Addimages() {
    const QString last = storedPreference(preference::LastImageDirectory).value_or(QString());
    const QStringList paths = dialogs_.choosePhotos(window_, QFileInfo::exists(last) ? last : QString());
    if (paths.isEmpty()) return;
    setPreference(preference::LastImageDirectory, QFileInfo(paths.first()).absolutePath());
    photos_.bring(paths);
}

void ZeltoController::OpenAddFolderWindow() {
    const std::optional<FolderChoice> choice = dialogs_.chooseFolder(window_);
    if (!choice || choice->folder.isEmpty() || choice->extensionList.isEmpty()) return;
    ImportImagesFromFolder(choice->folder, choice->includeSubFolders, choice->extensionList);
}

void ZeltoController::ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                             const QString& extensionList) {
    const auto scan = [folder, includeSubFolders, extensionList](const FolderImport::GoesOn& goesOn) {
        return zelto::ImportImagesFromFolder(folder, includeSubFolders, extensionList, goesOn)
            .value_or(QStringList());
    };
    import(scan);
}

void ZeltoController::importPaths(const QStringList& paths, bool includeSubFolders) {
    const QString extensions = GetExtensionList(ScanFormats());
    const auto scan = [paths, includeSubFolders, extensions](const FolderImport::GoesOn& goesOn) {
        QStringList photos;
        for (const QString& path : paths) {
            const QFileInfo file(path);
            if (!file.isDir()) {
                photos.append(file.absoluteFilePath());
                continue;
            }
            const auto goesOnFromHere = [&](qsizetype found) { return goesOn(photos.size() + found); };
            photos += zelto::ImportImagesFromFolder(file.absoluteFilePath(), includeSubFolders, extensions,
                                                    goesOnFromHere)
                          .value_or(QStringList());
        }
        return photos;
    };
    import(scan);
}

void ZeltoController::import(FolderImport::Scan scan) {
    auto* import = new FolderImport(std::move(scan), window_, this);
    connect(import, &FolderImport::found, &photos_, &ImageListController::bring);
}

void ZeltoController::bringFiles(const QStringList& paths) {
    const QStringList photos = loadSettings(paths);
    const bool hasFolders = std::any_of(photos.begin(), photos.end(),
                                        [](const QString& path) { return QFileInfo(path).isDir(); });
    if (hasFolders) {
        importPaths(photos, true);
    } else if (!photos.isEmpty()) {
        photos_.bring(photos);
    }
}

QStringList ZeltoController::loadSettings(const QStringList& paths) {
    QStringList others;
    for (const QString& path : paths) {
        if (!isSettingFileName(path) || QFileInfo(path).isDir()) {
            others.append(path);
        } else if (const Result<void> loaded = watermarks_.LoadWatermarkSetting(path); !loaded) {
            showAlert(window_, Words::tr("Setting Load Error"), loaded.error().message);
        }
    }
    return others;
}

void ZeltoController::sortByName() {
    photos_.sortPhotos(tr("Sort by Name"), orderByName(photos_.images()));
}

// Each photo has to be looked into.
void ZeltoController::sortByDateTaken() {
    QStringList paths;
    for (const Image& photo : photos_.images()) paths.append(photo.ImagePath);
    const auto readMoments = [paths](const FolderImport::GoesOn& goesOn) {
        QStringList moments;
        for (const QString& path : paths) {
            if (!goesOn(moments.size())) break;
            moments.append(momentTaken(path));
        }
        return moments;
    };
    const QString name = tr("Sort by Date Taken");
    auto* reading = new FolderImport(
        readMoments, window_, this,
        {name, tr("Reading dates..."), [](int photos) { return tr("%Ln photo(s) read", nullptr, photos); }});
    connect(reading, &FolderImport::found, &photos_, [this, name, paths](const QStringList& moments) {
        if (moments.size() == photos_.count()) photos_.sortPhotos(name, orderByMoment(moments));
    });
}

void ZeltoController::StartWatermarking() {
    const std::optional<OutputOptions> options =
        dialogs_.outputOptions(window_, photos_, watermarks_, watermarks_.Metadata().has_value());
    if (!options || options->OutputPath.isEmpty() || options->OutputFolderData.isEmpty()) return;
    Q_EMIT ProcessImaging(*options);
}

void ZeltoController::ShowTips() {
    dialogs_.tips(window_, shared_);
}
void ZeltoController::CheckLatestVersion() {
    dialogs_.versionCheck(window_);
}

}  // namespace zelto
