// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/stack_keeper.h"

#include "app/common/messages.h"
#include "app/common/my_global_instance.h"
#include "app/watermarks/watermark_controller.h"
#include "persistence/setting_file.h"
#include "persistence/settings_library.h"
#include "platform/preferences.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace zelto {
namespace {

// A logo's own size is found out when it is first drawn, not chosen by the user.
WatermarkStack withoutLogoSizes(WatermarkStack stack) {
    for (Watermark& watermark : stack.Watermarks) {
        if (watermark.Type == watermark_type::Image) watermark.Width = watermark.Height = 0.0F;
    }
    return stack;
}

bool areTheSameWork(const WatermarkStack& a, const WatermarkStack& b) {
    return withoutLogoSizes(a) == withoutLogoSizes(b);
}

QString nameOf(const QString& path) {
    return QFileInfo(path).completeBaseName();
}

}  // namespace

StackKeeper::StackKeeper(WatermarkController& watermarks, const MyGlobalInstance& shared, QWidget* window)
    : QObject(window), watermarks_(watermarks), shared_(shared), window_(window) {
    connect(&watermarks_, &WatermarkController::keptAs, this, [this](const QString& path) {
        kept_.insert(path, stack());
        Q_EMIT changed();
    });
    connect(&watermarks_.document(), &WatermarkDocument::changed, this, &StackKeeper::changed);
    connect(&watermarks_.document(), &WatermarkDocument::settingChanged, this, &StackKeeper::changed);
}

const WatermarkStack& StackKeeper::stack() const {
    return watermarks_.document().state().Stack;
}

const QString& StackKeeper::setting() const {
    return watermarks_.document().setting();
}

bool StackKeeper::holdsTheStack() const {
    const auto kept = kept_.constFind(setting());
    return !setting().isEmpty() && kept != kept_.constEnd() && areTheSameWork(stack(), *kept);
}

QString StackKeeper::name() const {
    return nameOf(setting());
}

bool StackKeeper::isChanged() const {
    return !setting().isEmpty() && !holdsTheStack();
}

bool StackKeeper::save() {
    if (setting().isEmpty()) return false;
    const Result<void> saved = watermarks_.SaveWatermarkSettings(setting());
    if (!saved) showAlert(window_, tr("Setting Save Error"), saved.error().message);
    return true;
}

bool StackKeeper::mayLoadAtStart() const {
    return !setting().isEmpty() && QFileInfo(setting()).absoluteDir() == QDir(shared_.SettingDirectory);
}

bool StackKeeper::isLoadedAtStart() const {
    return mayLoadAtStart() && storedPreference(preference::AutoLoadSetting) == name();
}

void StackKeeper::setLoadedAtStart(bool on) {
    if (on && mayLoadAtStart()) {
        setPreference(preference::AutoLoadSetting, name());
    } else if (isLoadedAtStart()) {
        removePreference(preference::AutoLoadSetting);
    }
    Q_EMIT changed();
}

QString StackKeeper::lastWatermarkPath() const {
    if (shared_.SettingDirectory.isEmpty()) return {};
    return SettingsLibrary(shared_.SettingDirectory).path(LastWatermarkSetting).value_or(QString());
}

// ---- closing

bool StackKeeper::mayClose() {
    if (isGivenUp_) return true;
    if (question_ && question_->isVisible()) return false;
    const bool isSetting = holdsTheStack();
    if (stack() == WatermarkStack() || isSetting) {
        setPreference(preference::StackAtClose, isSetting ? setting() : QString());
        return true;
    }
    if (!setting().isEmpty() && hasAnythingToSave(stack())) {
        askAboutTheChanges();
        return false;
    }
    return keepForNextTime();
}

void StackKeeper::askAboutTheChanges() {
    enum Answer { Save, Keep, Cancel };
    ask(tr("“%1” Has Been Changed").arg(name()),
        tr("Save the changes in the setting, or keep these watermarks for the next start without changing "
           "the setting?"),
        {tr("Save"), tr("Keep for Next Time"), tr("Cancel")}, Keep, [this](int answer) {
            if (answer == Cancel) return;
            if (answer == Save) {
                save();
                if (!holdsTheStack()) return;
            } else {
                watermarks_.document().setSetting({});
            }
            window_->close();
        });
}

bool StackKeeper::keepForNextTime() {
    const QString path = lastWatermarkPath();
    const Result<void> kept = path.isEmpty()
                                  ? fail(ErrorCode::CannotWrite, tr("There is no folder for settings."), path)
                                  : writeSettingFile(stack(), path);
    if (kept) {
        setPreference(preference::StackAtClose, path);
        return true;
    }
    ask(tr("The Watermarks Cannot Be Kept"), kept.error().message, {tr("Close Anyway"), tr("Cancel")}, 1,
        [this](int answer) {
            if (answer != 0) return;
            isGivenUp_ = true;
            window_->close();
        });
    return false;
}

// The last button is the one for Escape.
void StackKeeper::ask(const QString& title, const QString& text, const QStringList& buttons, int onEnter,
                      std::function<void(int button)> answered) {
    question_ = openMessageSheet(
        window_, {QMessageBox::Question, title, text, buttons, onEnter, static_cast<int>(buttons.size()) - 1},
        std::move(answered));
}

// ---- starting

std::optional<QString> StackKeeper::bringBack() {
    const QString path = storedPreference(preference::StackAtClose).value_or(lastWatermarkPath());
    if (path.isEmpty() || !QFileInfo(path).isFile()) return std::nullopt;
    const Result<void> loaded = watermarks_.LoadWatermarkSetting(path);
    if (!loaded)
        return tr("The watermarks of the last time cannot be brought back: %1").arg(loaded.error().message);
    return !setting().isEmpty() ? tr("“%1” is loaded again, as when Zelto was closed.").arg(nameOf(path))
                                : tr("The watermarks of the last time are back.");
}

}  // namespace zelto
