// SPDX-License-Identifier: GPL-3.0-or-later
// Dialogs that open as large as they were left, and those that also open where they were left. Main thread only.
#pragma once

#include "platform/preferences.h"

#include <QDialog>
#include <QSize>

namespace zelto {

class RememberedDialog : public QDialog {
    Q_OBJECT

  public:
    // `name` stands for this kind of dialog where its place is remembered.
    RememberedDialog(const QString& name, const QString& title, QWidget* parent);

    void done(int result) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void place();
};

// Gives `dialog` its stored size, if there is one, and stores the size it has whenever it is closed.
void rememberSize(QDialog& dialog, const Preference<QSize>& size);

}  // namespace zelto
