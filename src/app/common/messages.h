// SPDX-License-Identifier: GPL-3.0-or-later
// The messages and questions of the window. `title` says what it is about, `text` more; both are plain text, whatever
// file names they hold. showAlert, showMessage and confirm wait for the answer; openMessageSheet does not. Main thread
// only.
#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <functional>

namespace zelto {

// Something went wrong or cannot be done.
void showAlert(QWidget* parent, const QString& title, const QString& text);

// Something is done.
void showMessage(QWidget* parent, const QString& title, const QString& text);

// A question about losing something, that "OK" answers with yes and "Cancel", which Enter presses, with no.
bool confirm(QWidget* parent, const QString& title, const QString& text);

struct MessageSheet {
    QMessageBox::Icon icon = QMessageBox::Information;
    QString title;
    QString text;
    QStringList buttons = {};  // none stands for "OK"
    int onEnter = 0;           // the button that the Enter key presses
    int onEscape = 0;          // and the one for Escape and for closing the message
};

// Shows it; `answered` gets the button's place in the list. The message belongs to `window` and deletes itself; one
// that is deleted before is never answered.
QMessageBox* openMessageSheet(
    QWidget* window, const MessageSheet& message, std::function<void(int button)> answered = [](int) {});

}  // namespace zelto
