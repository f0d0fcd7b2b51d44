// SPDX-License-Identifier: GPL-3.0-or-later
// The program as a picture of it is to show: the whole window with the sample photos, in a light or a dark palette,
// whatever the machine it runs on looks like.
#pragma once

#include "app/common/my_global_instance.h"
#include "app/run/run_controller.h"
#include "app/window/main_window.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <atomic>
#include <functional>
#include <memory>

namespace zelto::samples {

void useLightPalette();
void useDarkPalette();

class Stage {
  public:
    // `samples` is the folder of the sample photos and settings.
    explicit Stage(const QString& samples);
    ~Stage();

    MainWindow& window() { return *window_; }
    MyGlobalInstance& shared() { return shared_; }

    // Adds the sample photos; with `broken`, one among them cannot be read.
    void addPhotos(bool broken = false);
    void selectPhoto(const QString& name);
    void loadSetting(const QString& name);
    // Starts a run that writes `photos` photos and then waits for ever.
    void startRun(int photos);
    // Starts a run and answers its summary.
    void finishRun();
    void doubleClickPhoto(const QString& name);
    // Opens the dialog that a run begins with, filled in as `change` would have it, and waits for it.
    void openOutputOptions(const std::function<void(OutputOptions&)>& change = [](OutputOptions&) {});
    // Opens the editor of a row of the watermark list.
    void openEditor(int row) { window_->editors().WatermarkListDoubleClicked(row); }

    // Calls `act` as soon as `condition` holds, which may be within the event loop of a dialog.
    static void when(std::function<bool()> condition, std::function<void()> act);
    // Whether nothing on the stage moves any more.
    bool isAtRest() const;

    // What a user sees: the window, with its dialogs upon it.
    QImage picture() const;
    // The inspector alone, as long as its page, with some groups unfolded.
    QImage inspectorPicture();
    void unfold(const QString& group);
    // The dialog alone that was opened last.
    static QImage dialogPicture();

  private:
    int rowOf(const QString& name);

    const QTemporaryDir home_;
    const QDir samples_;
    QDir photos_;
    MyGlobalInstance shared_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<RunController> run_;
    std::shared_ptr<std::atomic<int>> letThrough_;
};

}  // namespace zelto::samples
