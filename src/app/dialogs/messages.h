// SPDX-License-Identifier: GPL-3.0-or-later
// The messages and questions of the dialogs. `title` says what it is about, `text` more. All are modal. Main
// thread only.
#pragma once

#include <QString>

class QWidget;

namespace zelto {

// Something went wrong or cannot be done.
void showAlert(QWidget* parent, const QString& title, const QString& text);

// Something is done.
void showMessage(QWidget* parent, const QString& title, const QString& text);

// A question that "OK" answers with yes and "Cancel" with no.
bool confirm(QWidget* parent, const QString& title, const QString& text);

}  // namespace zelto
