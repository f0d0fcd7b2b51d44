// SPDX-License-Identifier: GPL-3.0-or-later
// Brings the program up, in the order its parts rely on, and holds what they share. Main thread only.
#pragma once

#include "app/common/my_global_instance.h"
#include "app/run/run_controller.h"
#include "app/watermarks/editor_set.h"
#include "app/window/dialog_set.h"
#include "app/window/main_window.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace zelto {

// What the command line asks for.
struct StartRequest {
    std::optional<QString>
        setting;         // a saved setting's name or the path of a setting file, instead of the autoload
    QStringList photos;  // photos and folders to begin with
};

class AppDelegate {
  public:
    AppDelegate(DialogSet dialogs, EditorSet editors);

    // Shows the window and loads what it is to begin with. Once.
    void start(const StartRequest& request);

    MyGlobalInstance& CurrentInstance() { return shared_; }
    MainWindow& window() { return *window_; }

  private:
    void showWindow();
    void showTip();
    void loadSetting(const StartRequest& request);
    void load(const QString& path);
    QString savedSettingPath(const QString& name) const;
    QString settingPath(const QString& nameOrFile) const;

    MyGlobalInstance shared_;
    DialogSet dialogs_;
    std::unique_ptr<MainWindow> window_;
    RunController run_;
};

}  // namespace zelto
