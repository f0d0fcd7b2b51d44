// SPDX-License-Identifier: GPL-3.0-or-later
// Hands for tests of windows and dialogs: finding controls, typing, clicking, choosing, and answering the modal windows
// that come up meanwhile. A control goes by its object name, its accessible name or its text without mnemonic, whichever
// comes first in that order.
#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QMessageBox>
#include <QStringList>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace zelto {

QString withoutMnemonic(QString text);

// The control of that name for which `fits` holds; ends the test program where there is none.
QWidget& findControl(const QWidget& window, const char* name,
                     const std::function<bool(const QWidget&)>& fits);

template <class Control>
Control& control(const QWidget& window, const char* name) {
    const auto isOne = [](const QWidget& widget) { return qobject_cast<const Control*>(&widget) != nullptr; };
    return static_cast<Control&>(findControl(window, name, isOne));
}
// The control that has the keyboard where the named one is made of several.
QWidget& control(const QWidget& window, const char* name);

QAbstractButton& button(const QWidget& window, const char* name);

void click(const QWidget& window, const char* name);  // a button
void press(const QWidget& window, const char* name, Qt::Key key);
// Types over all that a field holds, key by key.
void retype(QWidget& field, const QString& text);
void type(const QWidget& window, const char* name, const QString& text);
// Chooses a row of a list with the keyboard; of a size's units where the control is a size.
void choose(const QWidget& window, const char* name, int row);
// Opens the panel of a colour well, types a colour there and closes it with a key.
void pickColor(const QWidget& window, const char* name, const QColor& color, Qt::Key close = Qt::Key_Return);

// Whether the user can read a text that begins so.
bool says(const QWidget& window, const QString& text);

// Has `drive` work on the next modal window or dialog of class `Dialog` as soon as it is open; to be called before it
// is opened. The result tells, later, whether it came; a window of another class is closed and fails the test.
std::shared_ptr<bool> whenAnyOpened(const std::function<bool(QWidget&)>& drive);
template <class Dialog>
std::shared_ptr<bool> whenOpened(std::function<void(Dialog&)> drive) {
    return whenAnyOpened([drive = std::move(drive)](QWidget& window) {
        auto* dialog = dynamic_cast<Dialog*>(&window);
        if (dialog != nullptr) drive(*dialog);
        return dialog != nullptr;
    });
}

// While it lives, notes every message box that comes up and presses a button on it.
class AnsweredMessages {
  public:
    explicit AnsweredMessages(QMessageBox::StandardButton answer = QMessageBox::Ok);

    void answerWith(QMessageBox::StandardButton answer) { answer_ = answer; }
    // What has come up since the last call: "title|text|button,button" each.
    QStringList take() { return std::exchange(seen_, {}); }

  private:
    void press();

    QMessageBox::StandardButton answer_;
    QStringList seen_;
    QTimer timer_;
};

}  // namespace zelto
