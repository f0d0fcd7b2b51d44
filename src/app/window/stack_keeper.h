// SPDX-License-Identifier: GPL-3.0-or-later
// Knows which setting the stack on screen belongs to and whether it has been changed since, saves it there, and sees to
// it that the stack is never lost: when the window closes, a stack that no setting file holds is kept
// as "Last Watermark", and the next start brings back what was on screen. Where a saved setting was loaded and changed,
// the user is asked first. Main thread only.
#pragma once

#include "records/watermark_stack.h"

#include <QHash>
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

    // The name of the setting; empty for a stack that has none.
    QString name() const;
    // Whether the stack is not what its setting holds; false without a setting.
    bool isChanged() const;
    // Saves it in its setting, without a question. False where it has none. The user is told of an error.
    bool save();
    // Whether the setting is one of the saved ones, and so may be loaded at every start.
    bool mayLoadAtStart() const;
    // Whether the setting is the one that every start of the program loads.
    bool isLoadedAtStart() const;
    void setLoadedAtStart(bool on);

    // Keeps the stack and tells whether the window may close now. Where it may not, a question has been opened that
    // closes the window with its answer.
    bool mayClose();

    // Loads what was on screen when the window was last closed. Returns a line for the user; nothing where there was
    // no such stack.
    std::optional<QString> bringBack();

  Q_SIGNALS:
    // The name, or whether the stack has been changed, or whether it is loaded at start may be another.
    void changed();

  private:
    const WatermarkStack& stack() const;
    const QString& setting() const;
    bool holdsTheStack() const;
    QString lastWatermarkPath() const;
    bool keepForNextTime();
    void askAboutTheChanges();
    void ask(const QString& title, const QString& text, const QStringList& buttons, int onEnter,
             std::function<void(int button)> answered);

    WatermarkController& watermarks_;
    const MyGlobalInstance& shared_;
    QWidget* window_;
    QHash<QString, WatermarkStack>
        kept_;  // what setting files hold that were loaded or saved, by their paths
    QPointer<QMessageBox> question_;
    bool isGivenUp_ = false;  // the user closes the window though the stack cannot be kept
};

}  // namespace zelto
