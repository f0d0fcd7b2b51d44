// SPDX-License-Identifier: GPL-3.0-or-later
// Brings the program up, in the order its parts rely on, and holds what they share. Main thread only.
#pragma once

#include "app/common/my_global_instance.h"
#include "app/program/start_request.h"
#include "app/run/run_controller.h"
#include "app/watermarks/editor_set.h"
#include "app/window/dialog_set.h"
#include "app/window/main_window.h"

#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

namespace zelto {

class AppDelegate {
  public:
    AppDelegate(DialogSet dialogs, EditorSet editors);

    // Shows the window and loads what it is to begin with; a setting asked for comes instead of the autoload. Once.
    void start(const StartRequest& request);
    // Brings the window to the front, and into it what a later start of the program asks for: at once, or, while a run
    // or a dialog is in the way, as soon as it is gone.
    void open(const StartRequest& request);

    MyGlobalInstance& CurrentInstance() { return shared_; }
    MainWindow& window() { return *window_; }

  private:
    void showWindow();
    void showTip();
    QStringList loadFirst(const StartRequest& request);
    void loadNamed(const QString& nameOrFile);
    void load(const QString& path);
    QString savedSettingPath(const QString& name) const;
    QString settingPath(const QString& nameOrFile) const;
    bool isFree() const;
    void openWaiting();

    MyGlobalInstance shared_;
    DialogSet dialogs_;
    std::unique_ptr<MainWindow> window_;
    RunController run_;
    bool isStarted_ = false;
    std::vector<StartRequest> waiting_;
    QTimer untilFree_;
};

}  // namespace zelto
