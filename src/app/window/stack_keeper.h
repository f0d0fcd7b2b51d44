// SPDX-License-Identifier: GPL-3.0-or-later
// Sees to it that the stack on screen is never lost: when the window closes, a stack that no setting file holds is kept
// as "Last Watermark", and the next start brings back what was on screen. Where a saved setting was loaded and changed,
// the user is asked first. Main thread only.
#pragma once

#include "records/watermark_stack.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>

namespace zelto {

class MyGlobalInstance;
class WatermarkController;

class StackKeeper : public QObject {
    Q_OBJECT

  public:
    // `window` is the one that is closed. All outlive the keeper.
    StackKeeper(WatermarkController& watermarks, const MyGlobalInstance& shared, QWidget* window);

    // Keeps the stack and tells whether the window may close now. Where it may not, a question has been opened that
    // closes the window with its answer.
    bool mayClose();

    // Loads what was on screen when the window was last closed. Returns a line for the user; nothing where there was
    // no such stack.
    std::optional<QString> bringBack();

  private:
    struct Setting {
        QString path;
        WatermarkStack stack;
    };

    const WatermarkStack& stack() const;
    void noteSetting(const QString& path);
    QString lastWatermarkPath() const;
    bool keepForNextTime();
    void askAboutTheChanges();
    void ask(const QString& title, const QString& text, const QStringList& buttons, int onEnter,
             std::function<void(int button)> answered);

    WatermarkController& watermarks_;
    const MyGlobalInstance& shared_;
    QWidget* window_;
    std::optional<Setting> setting_;  // the named setting that was loaded or saved last, with what it holds
    QPointer<QMessageBox> question_;
    bool isGivenUp_ = false;  // the user closes the window though the stack cannot be kept
};

}  // namespace zelto
