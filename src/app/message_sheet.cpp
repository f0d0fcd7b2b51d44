// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/message_sheet.h"

#include <QPushButton>

#include <utility>
#include <vector>

namespace zelto {
namespace {

// The role decides where a platform puts a button.
QMessageBox::ButtonRole roleOf(const MessageSheet& message, int button) {
    if (button == message.onEscape && message.buttons.size() > 1) return QMessageBox::RejectRole;
    return button == 0 ? QMessageBox::AcceptRole : QMessageBox::ActionRole;
}

}  // namespace

QMessageBox* openMessageSheet(QWidget* window, const MessageSheet& message,
                              std::function<void(int button)> answered) {
    auto* box = new QMessageBox(message.icon, message.title, message.title, QMessageBox::NoButton, window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(message.text);
    std::vector<QAbstractButton*> buttons;
    for (const QString& text : message.buttons) {
        const int place = static_cast<int>(buttons.size());
        QPushButton* button = box->addButton(text, roleOf(message, place));
        if (place == message.onEnter) box->setDefaultButton(button);
        if (place == message.onEscape) box->setEscapeButton(button);
        buttons.push_back(button);
    }
    QObject::connect(box, &QMessageBox::finished, window,
                     [box, buttons, onEscape = message.onEscape, answered = std::move(answered)] {
                         int answer = onEscape;
                         for (std::size_t i = 0; i < buttons.size(); ++i) {
                             if (buttons[i] == box->clickedButton()) answer = static_cast<int>(i);
                         }
                         answered(answer);
                     });
    box->open();
    return box;
}

}  // namespace zelto
