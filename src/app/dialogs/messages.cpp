// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/dialogs/messages.h"

#include "app/message_sheet.h"

#include <QMessageBox>

namespace zelto {
namespace {

int show(QWidget* parent, QMessageBox::Icon icon, const QString& title, const QString& text,
         QMessageBox::StandardButtons buttons) {
    QMessageBox box(parent);
    dressMessage(box, icon, title, text);
    box.setStandardButtons(buttons);
    box.setDefaultButton(QMessageBox::Ok);
    return box.exec();
}

}  // namespace

void showAlert(QWidget* parent, const QString& title, const QString& text) {
    show(parent, QMessageBox::Warning, title, text, QMessageBox::Ok);
}

void showMessage(QWidget* parent, const QString& title, const QString& text) {
    show(parent, QMessageBox::Information, title, text, QMessageBox::Ok);
}

bool confirm(QWidget* parent, const QString& title, const QString& text) {
    return show(parent, QMessageBox::Question, title, text, QMessageBox::Ok | QMessageBox::Cancel) ==
           QMessageBox::Ok;
}

}  // namespace zelto
