// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for the name a setting is to be saved under. Main thread only.
#pragma once

#include "persistence/settings_library.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zelto {

class SaveSettingsDialog : public QDialog {
    Q_OBJECT

  public:
    explicit SaveSettingsDialog(const SettingsLibrary& library, QWidget* parent = nullptr);

    // The path of the setting file, once the dialog is accepted.
    QString path() const { return path_; }

    // Closes the dialog with the name; one that is taken only when it may be replaced.
    void GetSettingNameandClose();

  private:
    void checkName();

    const SettingsLibrary& library_;
    QLineEdit* name_;
    QLabel* problem_;
    QPushButton* save_;
    QString path_;
};

}  // namespace zelto
