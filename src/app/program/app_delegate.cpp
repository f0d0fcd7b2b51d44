// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/app_delegate.h"

#include "app/common/window_resources.h"
#include "batch/folder_scan.h"
#include "persistence/setting_file.h"
#include "platform/preferences.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>

#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(startUp, "zelto.start")

// The tips that ship with the program; none where they are missing.
QByteArray tipsDocument() {
    QFile file(windowResource(QStringLiteral("Tips.xml")));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

AppDelegate::AppDelegate(DialogSet dialogs, EditorSet editors)
    : dialogs_(std::move(dialogs)),
      window_(std::make_unique<MainWindow>(shared_, dialogs_, std::move(editors))),
      run_(*window_, shared_) {}

void AppDelegate::start(const StartRequest& request) {
    const Result<void> folder = shared_.findSettingDirectory();
    if (!folder) qCWarning(startUp, "%s", qUtf8Printable(folder.error().message));
    shared_.SetFirstRunInfo();
    window_->EnableDisableWatermarkControls();
    showWindow();
    shared_.ReadTips(tipsDocument());
    if (dialogs_.tips && storedPreference(preference::ShowTips).value_or(false)) {
        dialogs_.tips(window_.get(), shared_);
    }
    flushPreferences();
    loadSetting(request);
    addPhotos(request.photos);
}

void AppDelegate::showWindow() {
    if (!storedPreference(preference::WindowGeometry)) {
        const QRect screen = window_->screen()->availableGeometry();
        QRect place(QPoint(), window_->size().boundedTo(screen.size()));
        place.moveCenter(screen.center());
        window_->setGeometry(place);
    }
    window_->show();
    window_->raise();
    window_->activateWindow();
}

void AppDelegate::loadSetting(const StartRequest& request) {
    QString path;
    if (request.setting && QFileInfo(*request.setting).isFile()) {
        path = *request.setting;
    } else {
        const QString name =
            request.setting.value_or(storedPreference(preference::AutoLoadSetting).value_or(QString()));
        if (name.isEmpty()) return;
        path = shared_.SettingDirectory + name + SettingFileExtension;
        if (!QFileInfo(path).isFile()) return;
    }
    WatermarkController& watermarks = window_->watermarks();
    watermarks.resetCurrentWatermarkIndex();
    const Result<void> loaded = watermarks.LoadWatermarkSetting(path);
    if (!loaded) showAlert(window_.get(), QStringLiteral("Setting Load Error"), loaded.error().message);
    // There is nothing to go back to before the first thing the user does.
    window_->document().history().clear();
}

void AppDelegate::addPhotos(const QStringList& paths) {
    ScanFormats all;
    QStringList photos;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        if (!file.isDir()) {
            photos.append(file.absoluteFilePath());
        } else if (const auto found =
                       ImportImagesFromFolder(file.absoluteFilePath(), false, GetExtensionList(all))) {
            photos.append(*found);
        }
    }
    if (!photos.isEmpty()) window_->photos().AddImages(photos);
    window_->document().history().clear();
}

}  // namespace zelto
