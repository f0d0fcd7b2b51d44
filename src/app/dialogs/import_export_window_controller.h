// SPDX-License-Identifier: GPL-3.0-or-later
// Asks for the folder that saved settings are copied from or to. Main thread only.
#pragma once

#include "persistence/settings_library.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace zelto {

class FolderField;

enum class CopyMode { Import = 1, Export = 2 };

class ImportExportWindowController : public QDialog {
    Q_OBJECT

  public:
    ImportExportWindowController(const SettingsLibrary& library, CopyMode mode, QWidget* parent = nullptr);

    CopyMode Mode() const { return mode_; }
    // The chosen folder.
    QString SelectedPath() const;

  private:
    // Tells how many settings would be copied.
    void follow();

    const SettingsLibrary& library_;
    CopyMode mode_;
    FolderField* folder_;
    QLabel* count_;
    QPushButton* copy_;
};

// Asks for the folder, copies the settings and tells how it went.
void ImportExportWatermarks(const SettingsLibrary& library, CopyMode mode, QWidget* parent);

}  // namespace zelto
