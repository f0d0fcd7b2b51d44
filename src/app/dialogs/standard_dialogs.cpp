// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/standard_dialogs.h"

#include "app/dialogs/existing_settings_window_controller.h"
#include "app/dialogs/folder_window_controller.h"
#include "app/dialogs/guide_window.h"
#include "app/dialogs/import_export_window_controller.h"
#include "app/dialogs/output_options_controller.h"
#include "app/dialogs/save_settings_dialog.h"
#include "app/dialogs/tips_dialog.h"
#include "app/dialogs/version_check.h"
#include "app/watermarks/watermark_controller.h"
#include "persistence/setting_file.h"
#include "pictures/picture_names.h"
#include "platform/application_folders.h"
#include "platform/words.h"

#include <QFileDialog>

namespace zelto {
namespace {

QStringList choosePhotos(QWidget* parent, const QString& startFolder) {
    return QFileDialog::getOpenFileNames(parent, Words::tr("Add Photos"), startFolder,
                                         Words::tr("Photos") + QLatin1Char(' ') + chooserPattern());
}

std::optional<FolderChoice> chooseFolder(QWidget* parent) {
    FolderWindowController dialog(parent);
    dialog.exec();
    const QString folder = dialog.GetIputFoldername();
    if (folder.isEmpty()) return std::nullopt;
    return FolderChoice{folder, dialog.CheckToIncludeSubDirectories(), dialog.GetExtensionList()};
}

// One dialog serves all runs of a window: it shows again what it last showed.
std::optional<OutputOptions> askOutputOptions(QWidget* parent, ImageListController& photos,
                                              WatermarkController& watermarks, bool metadataPresent) {
    auto* dialog = parent->findChild<OutputOptionsController*>(QString(), Qt::FindDirectChildrenOnly);
    if (dialog == nullptr) dialog = new OutputOptionsController(photos, watermarks, parent);
    dialog->setOptions(std::nullopt);
    dialog->setMetadataPresent(metadataPresent);
    dialog->exec();
    return dialog->getOptions();
}

// The library of the user's settings; nothing where its folder cannot be made, and the user has been told.
std::optional<SettingsLibrary> userLibrary(QWidget* parent) {
    const Result<QString> folder = applicationFolder(SettingsFolder);
    if (folder) return SettingsLibrary(*folder);
    showAlert(parent, Words::tr("Setting Load Error"), folder.error().message);
    return std::nullopt;
}

void saveSettings(QWidget* parent, WatermarkController& watermarks) {
    if (!hasAnythingToSave(watermarks.document().state().Stack)) {
        showAlert(
            parent, WatermarkController::tr("Save Setting"),
            WatermarkController::tr("There is nothing to save yet. Add a watermark or a border first."));
        return;
    }
    const auto library = userLibrary(parent);
    if (!library) return;
    SaveSettingsDialog dialog(*library, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    const Result<void> saved = watermarks.SaveWatermarkSettings(dialog.path());
    if (!saved) showAlert(parent, WatermarkController::tr("Setting Save Error"), saved.error().message);
}

void openSettings(QWidget* parent, WatermarkController& watermarks) {
    const auto library = userLibrary(parent);
    if (!library) return;
    ExistingSettingsWindowController dialog(*library, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    const Result<void> loaded =
        library->path(dialog.selectedName()).and_then([&watermarks](const QString& path) {
            return watermarks.LoadWatermarkSetting(path);
        });
    if (!loaded) showAlert(parent, Words::tr("Setting Load Error"), loaded.error().message);
}

void importExport(CopyMode mode, QWidget* parent) {
    if (const auto library = userLibrary(parent)) ImportExportWatermarks(*library, mode, parent);
}

void showTips(QWidget* parent, MyGlobalInstance& shared) {
    TipsDialog(shared, parent).exec();
}

}  // namespace

DialogSet standardDialogs() {
    DialogSet dialogs;
    dialogs.choosePhotos = choosePhotos;
    dialogs.chooseFolder = chooseFolder;
    dialogs.outputOptions = askOutputOptions;
    dialogs.saveSettings = saveSettings;
    dialogs.openSettings = openSettings;
    dialogs.importSettings = [](QWidget* parent) { importExport(CopyMode::Import, parent); };
    dialogs.exportSettings = [](QWidget* parent) { importExport(CopyMode::Export, parent); };
    dialogs.guide = openGuide;
    dialogs.tips = showTips;
    dialogs.versionCheck = CheckLatestVersion;
    return dialogs;
}

}  // namespace zelto
