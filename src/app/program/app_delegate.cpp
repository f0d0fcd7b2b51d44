// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program/app_delegate.h"

#include "app/common/window_resources.h"
#include "persistence/settings_library.h"
#include "platform/languages.h"
#include "platform/preferences.h"
#include "platform/words.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QScreen>
#include <QStatusBar>

#include <utility>

namespace zelto {
namespace {

Q_LOGGING_CATEGORY(startUp, "zelto.start")

constexpr MarkedText LoadErrorTitle(QT_TRANSLATE_NOOP("Words", "Setting Load Error"));
constexpr int StatusMilliseconds = 15000;  // that a line stays in the status bar

// The tips that ship with the program, in the language it speaks; none where they are missing.
QByteArray tipsDocument() {
    QFile file(windowResource(QStringLiteral("Tips_%1.xml").arg(spokenLanguage())));
    if (!file.exists()) file.setFileName(windowResource(QStringLiteral("Tips.xml")));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

AppDelegate::AppDelegate(DialogSet dialogs, EditorSet editors)
    : dialogs_(std::move(dialogs)),
      window_(std::make_unique<MainWindow>(shared_, dialogs_, std::move(editors))),
      run_(*window_, shared_) {
    constexpr int LookMilliseconds = 200;
    untilFree_.setInterval(LookMilliseconds);
    untilFree_.callOnTimeout([this] { openWaiting(); });
}

void AppDelegate::start(const StartRequest& request) {
    const Result<void> folder = shared_.findSettingDirectory();
    if (!folder) qCWarning(startUp, "%s", qUtf8Printable(folder.error().message));
    shared_.SetFirstRunInfo();
    window_->EnableDisableWatermarkControls();
    showWindow();
    shared_.ReadTips(tipsDocument());
    // Whoever opens photos with Zelto is not kept waiting by a tip.
    const bool isAskedFor = request.setting || !request.photos.isEmpty();
    if (!isAskedFor) showTip();
    flushPreferences();
    const QStringList photos = loadFirst(request);
    if (!photos.isEmpty()) window_->controller().importPaths(photos);
    if (isAskedFor) showTip();
    isStarted_ = true;
    openWaiting();
}

void AppDelegate::open(const StartRequest& request) {
    // Where the desktop looks for its leave when a window asks to come to the front.
    if (!request.activation.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", request.activation);
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->raise();
    window_->activateWindow();
    waiting_.push_back(request);
    openWaiting();
}

bool AppDelegate::isFree() const {
    return isStarted_ && window_->actions()[Act::AddPhotos]->isEnabled() &&
           QApplication::activeModalWidget() == nullptr;
}

void AppDelegate::openWaiting() {
    while (!waiting_.empty() && isFree()) {
        const StartRequest request = std::move(waiting_.front());
        waiting_.erase(waiting_.begin());
        if (request.setting) loadNamed(*request.setting);
        const QStringList photos = window_->controller().loadSettings(request.photos);
        if (!photos.isEmpty()) window_->controller().importPaths(photos);
    }
    if (waiting_.empty()) {
        untilFree_.stop();
    } else if (!untilFree_.isActive()) {
        untilFree_.start();
        window_->statusBar()->showMessage(
            MainWindow::tr("What was opened from outside comes in as soon as the window is free."),
            StatusMilliseconds);
    }
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

// At the first start nothing is to lie over the welcome: the tip is a line of it.
void AppDelegate::showTip() {
    if (!storedPreference(preference::ShowTips).value_or(false)) return;
    if (shared_.FirstRun) {
        window_->welcome().showTip(shared_.GetCurrentTip(shared_.CurrentTip),
                                   [this] { return shared_.nextTip(); });
    } else if (dialogs_.tips) {
        dialogs_.tips(window_.get(), shared_);
    }
}

QStringList AppDelegate::loadFirst(const StartRequest& request) {
    window_->watermarks().resetCurrentWatermarkIndex();
    const QString autoload = storedPreference(preference::AutoLoadSetting).value_or(QString());
    const QStringList photos = window_->controller().loadSettings(request.photos);
    if (request.setting) {
        loadNamed(*request.setting);
    } else if (photos.size() < request.photos.size()) {
        // A setting file was among them.
    } else if (const QString path = savedSettingPath(autoload); !path.isEmpty()) {
        load(path);
    } else if (const auto told = window_->keeper().bringBack()) {
        window_->statusBar()->showMessage(*told, StatusMilliseconds);
    }
    // There is nothing to go back to before the first thing the user does.
    window_->document().history().clear();
    return photos;
}

void AppDelegate::loadNamed(const QString& nameOrFile) {
    const QString path = settingPath(nameOrFile);
    if (!path.isEmpty()) return load(path);
    showAlert(window_.get(), LoadErrorTitle,
              MainWindow::tr("There is no saved setting and no setting file “%1”.").arg(nameOrFile));
}

void AppDelegate::load(const QString& path) {
    const Result<void> loaded = window_->watermarks().LoadWatermarkSetting(path);
    if (!loaded) showAlert(window_.get(), LoadErrorTitle, loaded.error().message);
}

// The file of a saved setting; empty where there is none of that name.
QString AppDelegate::savedSettingPath(const QString& name) const {
    if (shared_.SettingDirectory.isEmpty()) return {};
    const SettingsLibrary library(shared_.SettingDirectory);
    return library.contains(name) ? library.path(name).value_or(QString()) : QString();
}

// The same for a setting that may also be given as the path of a file.
QString AppDelegate::settingPath(const QString& nameOrFile) const {
    return QFileInfo(nameOrFile).isFile() ? nameOrFile : savedSettingPath(nameOrFile);
}

}  // namespace zelto
