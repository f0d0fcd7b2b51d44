// SPDX-License-Identifier: GPL-3.0-or-later
// How messages and questions look, and those over the window that the program does not wait for: it goes on, and is
// told the answer. Main thread only.
#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>

#include <functional>

namespace zelto {

// Gives a message box its words and its icon: the title stands out, the text has room for a sentence.
void dressMessage(QMessageBox& box, QMessageBox::Icon icon, const QString& title, const QString& text);

struct MessageSheet {
    QMessageBox::Icon icon = QMessageBox::Information;
    QString title;
    QString text;
    QStringList buttons = {QStringLiteral("OK")};
    int onEnter = 0;   // the button that the Enter key presses
    int onEscape = 0;  // and the one for Escape and for closing the message
};

// Shows it; `answered` gets the button's place in the list. The message belongs to `window` and deletes itself; one
// that is deleted before is never answered.
QMessageBox* openMessageSheet(
    QWidget* window, const MessageSheet& message, std::function<void(int button)> answered = [](int) {});

}  // namespace zelto
