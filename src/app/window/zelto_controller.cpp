// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/zelto_controller.h"

#include "app/common/my_global_instance.h"
#include "app/photos/folder_import.h"
#include "app/photos/image_list_controller.h"
#include "app/preview/photo_preview.h"
#include "app/preview/preview_view.h"
#include "app/watermarks/watermark_controller.h"
#include "app/window/full_screen_view.h"
#include "persistence/settings_library.h"
#include "platform/preferences.h"

#include <QFileInfo>

#include <utility>

namespace zelto {

ZeltoController::ZeltoController(ImageListController& photos, WatermarkController& watermarks,
                                 PreviewView& view, PhotoPreview& preview, MyGlobalInstance& shared,
                                 DialogSet dialogs, QWidget* window)
    : QObject(window),
      photos_(photos),
      watermarks_(watermarks),
      view_(view),
      preview_(preview),
      shared_(shared),
      dialogs_(std::move(dialogs)),
      window_(window) {
    connect(&watermarks_, &WatermarkController::setSaveLastWatermark, this,
            [this] { shared_.SaveLastWatermark = true; });
    connect(&watermarks_, &WatermarkController::clearSaveLastWatermark, this,
            [this] { shared_.SaveLastWatermark = false; });
}

void ZeltoController::ZoomIn() {
    view_.ZoomIn();
}
void ZeltoController::ZoomOut() {
    view_.ZoomOut();
}
void ZeltoController::FittoScreen() {
    view_.FittoScreen();
}
void ZeltoController::ActualSize() {
    view_.ActualSize();
}

void ZeltoController::ShowFullScreenImage() {
    if (photos_.selectedRow() >= 0) FullScreenView::open(preview_.finalRequest(), window_);
}

void ZeltoController::Addimages() {
    const QString last = storedPreference(preference::LastImageDirectory).value_or(QString());
    const QStringList paths = dialogs_.choosePhotos(window_, QFileInfo::exists(last) ? last : QString());
    if (paths.isEmpty()) return;
    setPreference(preference::LastImageDirectory, QFileInfo(paths.first()).absolutePath());
    photos_.AddImages(paths);
}

void ZeltoController::OpenAddFolderWindow() {
    const std::optional<FolderChoice> choice = dialogs_.chooseFolder(window_);
    if (!choice || choice->folder.isEmpty() || choice->extensionList.isEmpty()) return;
    ImportImagesFromFolder(choice->folder, choice->includeSubFolders, choice->extensionList);
}

void ZeltoController::ImportImagesFromFolder(const QString& folder, bool includeSubFolders,
                                             const QString& extensionList) {
    auto* import = new FolderImport(folder, includeSubFolders, extensionList, window_, this);
    connect(import, &FolderImport::found, &photos_, &ImageListController::AddImages);
}

void ZeltoController::keepLastWatermark() {
    if (shared_.SettingDirectory.isEmpty() || !shared_.SaveLastWatermark) return;
    shared_.SaveLastWatermark = false;
    saveLastWatermark(watermarks_.document().state().Stack, shared_.SettingDirectory);
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
