// SPDX-License-Identifier: GPL-3.0-or-later
// The whole window with a run in it: photos in a folder of their own, an output dialog that answers at once, results
// that are noted instead of shown, and a gate that lets photos through one by one where a test asks for it.
#pragma once

#include "app/run/run_controller.h"
#include "app/window/main_window.h"
#include "support/testing.h"

#include <QMessageBox>

#include <atomic>
#include <memory>
#include <semaphore>

namespace zelto {

class RunWindow : public ::testing::Test {
  protected:
    RunWindow();
    ~RunWindow() override;

    QString path(const QString& name) const { return folder_.filePath(name); }

    // Adds a photo for each letter: g a good one, u the same unchecked, b one that cannot be read; in/photo0.png and
    // so on.
    void addPhotos(const QString& kinds, QSize size = {60, 40});

    void start();       // presses Start
    void startGated();  // the same, until the first photo waits to be let through
    void letThrough(int photos) { gate_.open.release(photos); }
    bool waitUntilHeld(int photos) const;  // that many have come to the gate since the first start
    void destroyRun();                     // as at the end of the program

    // A letter for each photo: w written, x failed, . not processed.
    QString statuses() const;
    bool waitFor(const QString& statuses) const;
    QString pace() const;
    bool isEnabled(Act act) const { return window->actions()[act]->isEnabled(); }

    // The message over the window, once there is one. `answer` presses one of its buttons.
    static QMessageBox* message();
    static QStringList buttons(const QMessageBox& message);
    static void answer(const QString& button);
    // Waits for the summary, has it open what it offers, closes it and returns what it says.
    QString summary();

    QStringList outputs() const;  // the files of the output folder

    OutputOptions options;  // what the output dialog returns
    int asked = 0;          // how often it was shown
    QString opened;
    QStringList revealed;
    MyGlobalInstance shared;
    std::unique_ptr<MainWindow> window;

  private:
    class GatedWriter;

    const QTemporaryDir folder_;
    struct Gate {
        std::counting_semaphore<> open{0};
        std::atomic<int> arrived = 0;
    };
    Gate gate_;
    bool isGated_ = false;
    std::unique_ptr<RunController> run_;
};

}  // namespace zelto
